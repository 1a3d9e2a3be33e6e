#pragma once

#include <afxwin.h>
#include <orvfc/OrvApi.h>

// Questions about the running system and program. Nothing is cached.
class ORVFC_API CSysInfo {
public:
    // By GetVersionExA, which on newer systems tells the version that the program's manifest declares.
    static BOOL IsSystemWindows95();
    static BOOL IsSystemWindows98(); // any 4.x of that family but 4.0
    static BOOL IsSystemWindows200();
    static BOOL IsSystemWindowsXP(); // any 5.x but 5.0
    // Major version above 4; says nothing about 64 bits.
    static BOOL IsMorethanWin64();

    // The host program's directory with a trailing backslash; empty when the system does not tell.
    static CString GetAppPath();
    static CString GetAppPathAbsolute(); // the same
    // How many lines the mouse wheel scrolls, by the user's desktop setting; 3 without one, and when the
    // value is no text. 0xFFFFFFFF (also for anything larger) means a page.
    static UINT GetMouseScrollLines();

private:
    CSysInfo() = delete;
    virtual ~CSysInfo();
};
