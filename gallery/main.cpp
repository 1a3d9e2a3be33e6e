#include "Tasks.h"

#include <afxwin.h>

#include <cstdio>
#include <new>

CWinApp theApp;

namespace {

int run(int argc, char** argv) {
    using namespace gallery;
    Options options;
    std::string message;
    if (!parseOptions(argc, argv, options, message)) {
        std::fprintf(stderr, "%s%sTry gallery --help.\n", message.c_str(), message.empty() ? "" : "\n");
        return exitBadCommand;
    }
    switch (options.task) {
    case Options::Task::tour:
        return runTour(options);
    case Options::Task::draw:
        return runDraw(options);
    case Options::Task::window:
        return runWindow();
    default:
        std::fputs(helpText, stdout);
        return exitDone;
    }
}

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandleA(NULL), NULL, ::GetCommandLineA(), 0)) {
        std::fputs("gallery: the foundation does not start\n", stderr);
        return gallery::exitNoPicture;
    }
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc&) {
        std::fputs("gallery: out of memory\n", stderr);
        return gallery::exitNoPicture;
    } catch (CException* e) {
        char text[512] = "";
        e->GetErrorMessage(text, sizeof text);
        e->Delete();
        std::fprintf(stderr, "gallery: %s\n", text);
        return gallery::exitNoPicture;
    }
}
