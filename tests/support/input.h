#pragma once

// Real mouse and keyboard input on the screen, and waiting for what it brings about.

#include <windows.h>

#include <functional>
#include <string>

namespace orv::test {

// Until the condition holds; this thread's messages are pumped meanwhile. False after half a minute.
bool waitUntil(const std::function<bool()>& condition);
// The same as a program's loop does it: windows see their messages before they are dispatched.
bool pumpUntil(const std::function<bool()>& condition);

// Keys as a user presses them. A key name is a virtual key; modifiers are held around it.
void pressKey(WORD key);
void pressKey(WORD modifier, WORD key);
// Any characters, also those no key has.
void typeText(const std::wstring& text);

// Screen coordinates. Each event carries its place: the screen's own late news of the pointer cannot come in
// between.
void moveMouse(int x, int y);
void pressMouse(int x, int y);
void releaseMouse(int x, int y);
void clickAt(int x, int y);
void rightClickAt(int x, int y);
// Into the middle of the window.
void click(HWND window);

// Code page text as wide text.
std::wstring wideText(const char* text);

} // namespace orv::test
