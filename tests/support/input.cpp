#include "input.h"

#include <afxwin.h>

#include <vector>

namespace orv::test {

namespace {

bool pump(const std::function<bool()>& condition, bool translated) {
    const ULONGLONG end = ::GetTickCount64() + 30000;
    while (!condition()) {
        MSG message;
        while (::PeekMessageW(&message, NULL, 0, 0, PM_REMOVE)) {
            if (translated && CWnd::WalkPreTranslateTree(NULL, &message))
                continue;
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
        if (::GetTickCount64() > end)
            return false;
        ::Sleep(1);
    }
    return true;
}

} // namespace

bool waitUntil(const std::function<bool()>& condition) {
    return pump(condition, false);
}

bool pumpUntil(const std::function<bool()>& condition) {
    return pump(condition, true);
}

namespace {

INPUT keyInput(WORD key, WORD scan, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = scan;
    input.ki.dwFlags = flags;
    return input;
}

INPUT mouseInput(DWORD flags, int x, int y) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    // Absolute positions count in 65536ths of the screen.
    input.mi.dx = (x * 65536 + 32768) / ::GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (y * 65536 + 32768) / ::GetSystemMetrics(SM_CYSCREEN);
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    return input;
}

void send(std::vector<INPUT> inputs) {
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

} // namespace

void pressKey(WORD key) {
    send({keyInput(key, 0, 0), keyInput(key, 0, KEYEVENTF_KEYUP)});
}

void pressKey(WORD modifier, WORD key) {
    send({keyInput(modifier, 0, 0), keyInput(key, 0, 0), keyInput(key, 0, KEYEVENTF_KEYUP),
          keyInput(modifier, 0, KEYEVENTF_KEYUP)});
}

void typeText(const std::wstring& text) {
    for (wchar_t c : text)
        send({keyInput(0, c, KEYEVENTF_UNICODE), keyInput(0, c, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP)});
}

void moveMouse(int x, int y) {
    send({mouseInput(0, x, y)});
}

void pressMouse(int x, int y) {
    send({mouseInput(MOUSEEVENTF_LEFTDOWN, x, y)});
}

void releaseMouse(int x, int y) {
    send({mouseInput(MOUSEEVENTF_LEFTUP, x, y)});
}

void clickAt(int x, int y) {
    send({mouseInput(MOUSEEVENTF_LEFTDOWN, x, y), mouseInput(MOUSEEVENTF_LEFTUP, x, y)});
}

void rightClickAt(int x, int y) {
    send({mouseInput(MOUSEEVENTF_RIGHTDOWN, x, y), mouseInput(MOUSEEVENTF_RIGHTUP, x, y)});
}

void click(HWND window) {
    RECT rect;
    ::GetWindowRect(window, &rect);
    clickAt((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

std::wstring wideText(const char* text) {
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text, -1, NULL, 0);
    std::wstring wide(static_cast<size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), length);
    wide.resize(static_cast<size_t>(length) - 1);
    return wide;
}

} // namespace orv::test
