#pragma once

// Getting hold of windows while they are made. Internal to orvafx.dll.

#include "threadstate.h"

// What the foundation's own files may touch of a window object.
struct OrvWndAccess {
    // Attaches the object and puts its procedure before the window's own.
    static void take(CWnd* object, HWND hWnd);
    static bool isModal(const CWnd* object) { return (object->m_nFlags & WF_CONTINUEMODAL) != 0; }
    static void endModal(CWnd* object) { object->m_nFlags &= ~static_cast<UINT>(WF_CONTINUEMODAL); }
    static void postNcDestroy(CWnd* object) { object->PostNcDestroy(); }
    static void endModalLoop(CWnd* object, int result) { object->EndModalLoop(result); }
};

namespace orvafx {

// While it lives, the next window that this thread makes is attached to the object: the first one only.
class CreationHook {
public:
    // dialogsOnly: leave windows of other classes alone.
    explicit CreationHook(CWnd* object);
    ~CreationHook();
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;
    // The object never got a window.
    bool missed() const { return threadState().making == object_; }

private:
    CWnd* object_;
    CWnd* outerObject_;
    HHOOK outerHook_;
};

// The same for a window that the system makes after its callback has returned.
void hookNextDialog(CWnd* object);

// Inside a catch block of a callback: traces what was thrown and swallows it. The result the message gets.
LRESULT swallowException(const MSG& message);

// The top-level window that a modal dialog disables: the parent's, or without one the program's.
HWND modalOwner(CWnd* parent);

// The owner takes no input until the dialog has ended.
class OwnerDisabled {
public:
    explicit OwnerDisabled(HWND owner);
    OwnerDisabled(const OwnerDisabled&) = delete;
    OwnerDisabled& operator=(const OwnerDisabled&) = delete;
    // Leaves the dialog without a window. The owner is enabled before, and active when the dialog was: or the
    // system would first look for another program's window to activate.
    void end(CWnd* dialog);

private:
    HWND owner_;
    bool disabled_;
};

// A window may lose its object while our procedure stays in its chain (Detach, somebody subclassing later):
// what stands behind it is left with the window, and taken again by the next object.
void leaveProcedure(HWND window, WNDPROC super, BOOL wide);
// NULL when nothing was left; wide is set only otherwise.
WNDPROC takeLeftProcedure(HWND window, BOOL* wide = NULL);

bool isModuleOfChain(HINSTANCE module);
void unregisterClasses(HINSTANCE module); // NULL: all

} // namespace orvafx
