#pragma once

#include <windows.h>

#include <string>

namespace orv::test {

// The path of a program that lies beside this one.
std::string programBeside(const char* name);

// A running program, seen from outside: its windows, and how it ended.
class DrivenProgram {
public:
    // program: the file's name beside the test; argument: its command line; title: of its frame, which is
    // waited for.
    DrivenProgram(const char* program, const std::string& argument, const char* title);
    // Ends a program that is still there.
    ~DrivenProgram();
    DrivenProgram(const DrivenProgram&) = delete;
    DrivenProgram& operator=(const DrivenProgram&) = delete;

    HWND frame() const { return frame_; }
    // Visible top-level windows with this title; NULL when there is none.
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

} // namespace orv::test
