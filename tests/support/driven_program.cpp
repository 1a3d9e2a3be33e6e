#include "driven_program.h"

#include "input.h"

namespace orv::test {

namespace {

struct Search {
    DWORD process;
    const char* title;
    HWND found;
};

BOOL CALLBACK look(HWND window, LPARAM lParam) {
    auto& search = *reinterpret_cast<Search*>(lParam);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process != search.process || !::IsWindowVisible(window) ||
        DrivenProgram::textOf(window) != search.title)
        return TRUE;
    search.found = window;
    return FALSE;
}

} // namespace

std::string programBeside(const char* name) {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(NULL, path, MAX_PATH);
    const std::string own = path;
    return own.substr(0, own.rfind('\\') + 1) + name;
}

DrivenProgram::DrivenProgram(const char* program, const std::string& argument, const char* title) {
    std::string command = "\"" + programBeside(program) + "\" " + argument;
    STARTUPINFOA start = {};
    start.cb = sizeof start;
    if (!::CreateProcessA(NULL, command.data(), NULL, NULL, FALSE, 0, NULL, NULL, &start, &process_))
        return;
    waitUntil([&] { return (frame_ = window(title)) != NULL; });
    waitReady(frame_);
}

DrivenProgram::~DrivenProgram() {
    if (process_.hProcess && ::WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT)
        ::TerminateProcess(process_.hProcess, 99);
    ::CloseHandle(process_.hProcess);
    ::CloseHandle(process_.hThread);
}

HWND DrivenProgram::window(const char* title) const {
    Search search = {process_.dwProcessId, title, NULL};
    ::EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND DrivenProgram::dialog(const char* title) const {
    HWND found = NULL;
    return waitUntil([&] { return (found = window(title)) != NULL; }) && waitReady(found) ? found : NULL;
}

bool DrivenProgram::waitReady(HWND window) const {
    return waitUntil([&] {
        HWND focused = focus();
        return ::IsWindowEnabled(window) && ::GetForegroundWindow() == window &&
               (focused == window || ::IsChild(window, focused));
    });
}

bool DrivenProgram::waitGone(HWND window) const {
    return waitUntil([&] { return !::IsWindow(window); });
}

std::string DrivenProgram::textOf(HWND window) {
    // Across programs only the message reads the text of a control.
    char text[512] = "";
    DWORD_PTR length = 0;
    ::SendMessageTimeoutA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                          1000, &length);
    return text;
}

bool DrivenProgram::waitText(HWND window, const std::string& text) const {
    return waitUntil([&] { return textOf(window) == text; });
}

bool DrivenProgram::waitTitle(const std::string& text) const {
    return waitText(frame_, text);
}

HWND DrivenProgram::focus() const {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(process_.dwThreadId, &info) ? info.hwndFocus : NULL;
}

bool DrivenProgram::waitFocus(HWND window) const {
    return waitUntil([&] { return focus() == window; });
}

int DrivenProgram::waitExit() const {
    if (::WaitForSingleObject(process_.hProcess, 30000) != WAIT_OBJECT_0)
        return -1;
    DWORD status = 0;
    ::GetExitCodeProcess(process_.hProcess, &status);
    return static_cast<int>(status);
}

} // namespace orv::test
