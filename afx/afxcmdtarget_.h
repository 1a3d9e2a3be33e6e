#pragma once

// CCmdTarget and CWnd: as much of them as device contexts and the application object stand on.

#include <afx.h>

// Base of everything that will receive commands and messages.
class ORVAFX_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

protected:
    CCmdTarget() = default;

public:
    ~CCmdTarget() override = default;
};

// A window handle known to the foundation. A CWnd made by FromHandle is temporary: it does not own the
// window.
class ORVAFX_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd() = default;
    ~CWnd() override;

    HWND m_hWnd = NULL;

    operator HWND() const { return m_hWnd; }
    // NULL on a null pointer as well: hosts call it on any CWnd*.
    HWND GetSafeHwnd() const;

    // The permanent object of the handle, else a temporary one that lives until the temporary maps are
    // emptied.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static CWnd* PASCAL GetDesktopWindow();

    // TRUE when the handle was taken over; the window is not destroyed with the object.
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    void GetClientRect(LPRECT lpRect) const;
    void GetWindowRect(LPRECT lpRect) const;
};
