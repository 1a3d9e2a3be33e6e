#pragma once

// Calling the handler of a message-map entry. Internal to orvafx.dll.

#include "afxwin.h"

namespace orvafx {

// The first entry for a command or notification in the map and its bases, NULL when there is none.
const AFX_MSGMAP_ENTRY* findCommandEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);
// The same for a window message; registered ones are looked up by number.
const AFX_MSGMAP_ENTRY* findMessageEntry(const AFX_MSGMAP* map, UINT message);

// A notification on its way through OnCmdMsg.
struct Notification {
    LRESULT* result;
    NMHDR* header;
};

// What WM_CTLCOLOR carries through the message map (all WM_CTLCOLORxxx in one).
struct ControlColor {
    HWND control;
    HDC dc;
    UINT type; // CTLCOLOR_...
};

// FALSE when the handler passes the command on.
BOOL callCommandHandler(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra);
// The handler reads a record behind lParam: without one it is not called.
bool wantsRecord(UINT_PTR sig);
// Where a dialog's or sheet's commands go that it has no handler for: to its owner and the application.
// Notifications and buttons end with it.
BOOL passDialogCommandOn(const CWnd* dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);
LRESULT callMessageHandler(CWnd* window, const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam);

} // namespace orvafx
