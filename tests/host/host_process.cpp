#include "host_process.h"

#include "support/input.h"

using orv::test::waitUntil;

namespace {

struct Search {
    DWORD process;
    const char* title; // NULL: the frame's begins like this program's
    HWND found;
};

BOOL CALLBACK look(HWND window, LPARAM lParam) {
    auto& search = *reinterpret_cast<Search*>(lParam);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process != search.process || !::IsWindowVisible(window) ||
        HostProcess::textOf(window) != search.title)
        return TRUE;
    search.found = window;
    return FALSE;
}

} // namespace

HostProcess::HostProcess(const char* program, const std::string& argument) {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(NULL, path, MAX_PATH);
    std::string command = path;
    command = "\"" + command.substr(0, command.rfind('\\') + 1) + program + "\" " + argument;
    STARTUPINFOA start = {};
    start.cb = sizeof start;
    if (!::CreateProcessA(NULL, command.data(), NULL, NULL, FALSE, 0, NULL, NULL, &start, &process_))
        return;
    waitUntil([&] { return (frame_ = window("计划")) != NULL; });
    waitReady(frame_);
}

HostProcess::~HostProcess() {
    if (process_.hProcess && ::WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT)
        ::TerminateProcess(process_.hProcess, 99);
    ::CloseHandle(process_.hProcess);
    ::CloseHandle(process_.hThread);
}

HWND HostProcess::window(const char* title) const {
    Search search = {process_.dwProcessId, title, NULL};
    ::EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND HostProcess::dialog(const char* title) const {
    HWND found = NULL;
    return waitUntil([&] { return (found = window(title)) != NULL; }) && waitReady(found) ? found : NULL;
}

bool HostProcess::waitReady(HWND window) const {
    return waitUntil([&] {
        HWND focused = focus();
        return ::IsWindowEnabled(window) && ::GetForegroundWindow() == window &&
               (focused == window || ::IsChild(window, focused));
    });
}

bool HostProcess::waitGone(HWND window) const {
    return waitUntil([&] { return !::IsWindow(window); });
}

std::string HostProcess::textOf(HWND window) {
    // Across programs only the message reads the text of a control.
    char text[512] = "";
    DWORD_PTR length = 0;
    ::SendMessageTimeoutA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                          1000, &length);
    return text;
}

bool HostProcess::waitText(HWND window, const std::string& text) const {
    return waitUntil([&] { return textOf(window) == text; });
}

bool HostProcess::waitTitle(const std::string& text) const {
    return waitText(frame_, text);
}

HWND HostProcess::focus() const {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(process_.dwThreadId, &info) ? info.hwndFocus : NULL;
}

bool HostProcess::waitFocus(HWND window) const {
    return waitUntil([&] { return focus() == window; });
}

int HostProcess::waitExit() const {
    if (::WaitForSingleObject(process_.hProcess, 30000) != WAIT_OBJECT_0)
        return -1;
    DWORD status = 0;
    ::GetExitCodeProcess(process_.hProcess, &status);
    return static_cast<int>(status);
}
