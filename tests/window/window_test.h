#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxdlgs.h>

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/debug_events.h"
#include "support/message_boxes.h"

inline CWinApp& theApp = orv::test::messageKeepingApp;

// Dialogs of window_test.rc.
#define IDD_FIELDS 101
#define IDD_EMPTY 102

#define IDC_EDIT 1000
#define IDC_CHECK 1001
#define IDC_RADIO1 1002
#define IDC_RADIO2 1003
#define IDC_RADIO3 1004
#define IDC_COMBO 1005
#define IDC_LIST 1006
#define IDC_SCROLL 1007
#define IDC_DROPLIST 1008

// A top-level window that is not shown.
class CHiddenWnd : public CWnd {
public:
    BOOL Make(CWnd* pParent = NULL) {
        return CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 100, 100, pParent->GetSafeHwnd(),
                        NULL);
    }
};

// One that has its window from the start.
template <class Window>
class Made : public Window {
public:
    Made() {
        if (!this->Make())
            throw std::runtime_error("no window");
    }
};
