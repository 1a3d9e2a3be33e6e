#pragma once

#include <windows.h>

#include <string>

// A running host program, seen from outside: its windows, and how it ended.
class HostProcess {
public:
    // program: the file's name beside the test; argument: its command line. Waits for the frame.
    HostProcess(const char* program, const std::string& argument);
    // Ends a host that is still there.
    ~HostProcess();
    HostProcess(const HostProcess&) = delete;
    HostProcess& operator=(const HostProcess&) = delete;

    HWND frame() const { return frame_; }
    // Visible top-level windows of the host with this title; NULL when there is none.
    HWND window(const char* title) const;
    // Waits for it to be there, enabled and in front.
    HWND dialog(const char* title) const;
    bool waitGone(HWND window) const;
    // Waits until keys go to the window.
    bool waitReady(HWND window) const;
    // Waits for the text; the frame's title when there is no control.
    bool waitTitle(const std::string& text) const;
    bool waitText(HWND window, const std::string& text) const;
    bool waitFocus(HWND window) const;
    HWND focus() const;
    // The exit status, -1 when it does not end.
    int waitExit() const;

    static std::string textOf(HWND window);

private:
    PROCESS_INFORMATION process_ = {};
    HWND frame_ = NULL;
};
