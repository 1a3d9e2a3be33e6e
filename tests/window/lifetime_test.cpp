// Windows and objects that end in every order, and handlers that throw.

#include "window_test.h"

#include "support/gdi_count.h"
#include "support/heap_count.h"

#include <stdexcept>
#include <string>
#include <vector>

using orv::test::DebugEvents;

namespace {

int ends = 0; // calls of PostNcDestroy

class CCountedWnd : public CHiddenWnd {
protected:
    void PostNcDestroy() override { ++ends; }
};

TEST(Lifetime, AParentTakesItsChildrenAlong) {
    CCountedWnd parent, child;
    ASSERT_TRUE(parent.Make());
    ASSERT_TRUE(child.Create(NULL, NULL, WS_CHILD, CRect(0, 0, 9, 9), &parent, 1));
    ends = 0;
    const HWND window = child.m_hWnd;
    parent.DestroyWindow();
    EXPECT_EQ(2, ends);
    EXPECT_EQ(NULL, child.m_hWnd);
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(window));
    EXPECT_FALSE(child.DestroyWindow());
    EXPECT_TRUE(parent.Make()) << "an object may get another window";
}

TEST(Lifetime, AnObjectThatGoesFirstTakesItsWindowAlong) {
    HWND window;
    ends = 0;
    {
        Made<CCountedWnd> object;
        window = object.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(0, ends) << "the derived part was gone already";
    Made<CHiddenWnd> parent;
    {
        CEdit edit;
        ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 9, 9), &parent, 5));
        window = edit.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
    CEdit again;
    ASSERT_TRUE(again.Create(WS_CHILD, CRect(0, 0, 9, 9), &parent, 5));
    ::DestroyWindow(again.m_hWnd); // by the system, behind the object's back
    EXPECT_EQ(NULL, again.m_hWnd);
}

// Destroys itself, or its owner, in the midst of a message.
class CSuicidalWnd : public CHiddenWnd {
protected:
    afx_msg LRESULT OnEnd(WPARAM wParam, LPARAM) {
        ::DestroyWindow(reinterpret_cast<HWND>(wParam));
        return 3;
    }
    void PostNcDestroy() override {
        ++ends;
        delete this;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSuicidalWnd, CWnd)
ON_MESSAGE(WM_USER, &CSuicidalWnd::OnEnd)
END_MESSAGE_MAP()

TEST(Lifetime, AWindowMayEndInItsOwnHandler) {
    ends = 0;
    auto* alone = new CSuicidalWnd;
    ASSERT_TRUE(alone->Make());
    EXPECT_EQ(3, alone->SendMessage(WM_USER, reinterpret_cast<WPARAM>(alone->m_hWnd)));
    EXPECT_EQ(1, ends);
    auto* owner = new CSuicidalWnd;
    auto* child = new CSuicidalWnd;
    ASSERT_TRUE(owner->Make());
    ASSERT_TRUE(child->Create(NULL, NULL, WS_CHILD, CRect(0, 0, 9, 9), owner, 1));
    EXPECT_EQ(3, child->SendMessage(WM_USER, reinterpret_cast<WPARAM>(owner->m_hWnd)));
    EXPECT_EQ(3, ends);
}

TEST(Lifetime, OnlyTheFirstWindowMadeIsTaken) {
    class CFirstWnd : public CHiddenWnd {
    public:
        HWND inner = NULL;

    protected:
        void PreSubclassWindow() override {
            inner = ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, NULL, NULL, NULL, NULL);
        }
    } object;
    ASSERT_TRUE(object.Make());
    EXPECT_NE(object.inner, object.m_hWnd);
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(object.inner));
    HWND later = ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, NULL, NULL, NULL, NULL);
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(later));
    ::DestroyWindow(later);
    ::DestroyWindow(object.inner);
}

TEST(Lifetime, OtherHooksSeeTheWindowsOfObjects) {
    static int seen;
    static LRESULT answer;
    seen = 0;
    const HHOOK hook = ::SetWindowsHookExA(
        WH_CBT,
        [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
            // The system makes windows of its own meanwhile.
            char name[5] = "";
            ::GetClassNameA(reinterpret_cast<HWND>(wParam), name, sizeof name);
            if (code != HCBT_CREATEWND || strcmp(name, "Afx:") != 0)
                return ::CallNextHookEx(NULL, code, wParam, lParam);
            ++seen;
            return answer;
        },
        NULL, ::GetCurrentThreadId());
    ASSERT_NE(nullptr, hook);
    ends = 0;
    for (LRESULT refuses : {0, 1}) {
        answer = refuses;
        CCountedWnd object;
        EXPECT_EQ(refuses == 0, object.Make() != FALSE);
        EXPECT_EQ(refuses == 0, object.m_hWnd != NULL);
        object.DestroyWindow();
    }
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(2, seen);
    EXPECT_EQ(2, ends);
}

TEST(Lifetime, FailedCreationEndsTheObjectOnce) {
    class CRefusing : public CCountedWnd {
    public:
        int where = 0;

    protected:
        BOOL PreCreateWindow(CREATESTRUCT& cs) override {
            if (where == 1)
                cs.lpszClass = "no such class";
            return where != 0 && CCountedWnd::PreCreateWindow(cs);
        }
        void PreSubclassWindow() override {
            if (where == 2)
                AfxThrowResourceException();
        }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if ((where == 3 && message == WM_NCCREATE) || (where == 5 && message == WM_CREATE))
                return where == 3 ? FALSE : -1;
            if (where == 4 && message == WM_CREATE)
                AfxThrowMemoryException();
            return CCountedWnd::WindowProc(message, wParam, lParam);
        }
    };
    for (int where = 0; where <= 5; ++where) {
        DebugEvents events;
        CRefusing object;
        object.where = where;
        ends = 0;
        EXPECT_FALSE(object.Make()) << where;
        EXPECT_EQ(1, ends) << where;
        EXPECT_EQ(NULL, object.m_hWnd) << where;
    }
}

// --- subclassing

LRESULT CALLBACK strangersProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    if (nMsg == WM_USER + 1)
        return 44;
    auto before = reinterpret_cast<WNDPROC>(reinterpret_cast<LONG_PTR>(::GetPropA(hWnd, "before")));
    return ::CallWindowProcW(before, hWnd, nMsg, wParam, lParam);
}

void subclassByStranger(HWND window) {
    ::SetPropA(window, "before", reinterpret_cast<HANDLE>(::GetWindowLongPtrW(window, GWLP_WNDPROC)));
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(strangersProc));
}

TEST(Lifetime, SubclassingIsUndoneInAnyOrder) {
    HWND window = ::CreateWindowExA(0, "EDIT", "文", WS_POPUP, 0, 0, 50, 20, NULL, NULL, NULL, NULL);
    CEdit edit, second;
    EXPECT_FALSE(edit.SubclassWindow(NULL));
    EXPECT_FALSE(edit.SubclassWindow(reinterpret_cast<HWND>(static_cast<INT_PTR>(0x77777))));
    ASSERT_TRUE(edit.SubclassWindow(window));
    EXPECT_TRUE(::IsWindowUnicode(window)) << "typed characters of every kind";
    EXPECT_FALSE(second.SubclassWindow(window)) << "one object a window";
    // Somebody subclasses on top, and goes on calling through us.
    subclassByStranger(window);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ("文", text);
    EXPECT_EQ(44, ::SendMessageA(window, WM_USER + 1, 0, 0));
    ::DestroyWindow(window);
    EXPECT_EQ(NULL, edit.m_hWnd);
}

TEST(Lifetime, AControlWorksOnWithoutItsObject) {
    const struct {
        const char* name;
        bool stranger, detach;
    } rows[] = {{"unsubclassed", false, false}, {"under a stranger", true, false}, {"detached", false, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        HWND window = ::CreateWindowExA(0, "EDIT", "", WS_POPUP, 0, 0, 50, 20, NULL, NULL, NULL, NULL);
        CEdit edit, next;
        ASSERT_TRUE(edit.SubclassWindow(window));
        const LONG_PTR procedure = ::GetWindowLongPtrW(window, GWLP_WNDPROC);
        if (row.stranger)
            subclassByStranger(window);
        EXPECT_EQ(window, row.detach ? edit.Detach() : edit.UnsubclassWindow());
        EXPECT_EQ(NULL, edit.m_hWnd);
        EXPECT_EQ(row.detach, procedure == ::GetWindowLongPtrW(window, GWLP_WNDPROC));
        char text[8] = "";
        ::SetWindowTextA(window, "文");
        EXPECT_EQ(1, ::SendMessageA(window, EM_GETLINECOUNT, 0, 0));
        ::GetWindowTextA(window, text, 8);
        EXPECT_STREQ("文", text);
        // Another object takes it over and gets in nobody's way.
        ASSERT_TRUE(row.detach ? next.Attach(window) : next.SubclassWindow(window));
        next.SetSel(0, -1);
        next.ReplaceSel("字");
        CString replaced;
        next.GetWindowText(replaced);
        EXPECT_STREQ("字", replaced);
        ::DestroyWindow(window);
        EXPECT_EQ(NULL, next.m_hWnd);
    }
}

// --- ends that fail

class CBadEndWnd : public CCountedWnd {
public:
    int how = 0;

protected:
    void PreSubclassWindow() override {
        if (how == 2)
            AfxThrowResourceException();
    }
    afx_msg void OnNcDestroy() {
        if (how == 0)
            AfxThrowResourceException();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBadEndWnd, CCountedWnd)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

TEST(Lifetime, NoObjectStaysAtAWindowThatIsGone) {
    for (int how : {0, 1}) { // throws, forgets its base
        DebugEvents events;
        CBadEndWnd object;
        object.how = how;
        ASSERT_TRUE(object.Make());
        const HWND window = object.m_hWnd;
        ends = 0;
        ::DestroyWindow(window);
        EXPECT_EQ(1, ends) << how;
        EXPECT_EQ(NULL, object.m_hWnd) << how;
        EXPECT_EQ(NULL, CWnd::FromHandlePermanent(window)) << how;
    }
    HWND plain = ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, NULL, NULL, NULL, NULL);
    CBadEndWnd object;
    object.how = 2;
    EXPECT_THROW(object.SubclassWindow(plain), CException*);
    EXPECT_EQ(NULL, object.m_hWnd);
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(plain));
    ::DestroyWindow(plain);
}

// --- handlers that throw

class CThrowingWnd : public CHiddenWnd {
public:
    int paints = 0;

protected:
    afx_msg LRESULT OnThrow(WPARAM wParam, LPARAM) {
        switch (wParam) {
        case 0:
            AfxThrowUserException();
        case 1:
            throw std::runtime_error("standard");
        case 2:
            throw 2;
        }
        return 7;
    }
    afx_msg void OnPaint() {
        ++paints;
        AfxThrowResourceException();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CThrowingWnd, CWnd)
ON_MESSAGE(WM_USER, &CThrowingWnd::OnThrow)
ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(Lifetime, WhatAHandlerThrowsEndsAtTheWindow) {
    Made<CThrowingWnd> window;
    for (int kind = 0; kind < 3; ++kind) {
        DebugEvents events;
        EXPECT_EQ(0, window.SendMessage(WM_USER, static_cast<WPARAM>(kind))) << kind;
        EXPECT_NE(std::string::npos, events.text().find("left the handler of message 400")) << events.text();
    }
    EXPECT_EQ(7, window.SendMessage(WM_USER, 3));
    window.ShowWindow(SW_SHOWNA);
    window.Invalidate();
    window.UpdateWindow();
    const int paints = window.paints;
    EXPECT_GT(paints, 0);
    EXPECT_FALSE(window.GetUpdateRect(NULL)) << "or it would paint for ever";
    window.UpdateWindow();
    EXPECT_EQ(paints, window.paints);
}

TEST(Lifetime, StrangeParametersDoNoHarm) {
    Made<CHiddenWnd> parent;
    CComboBox combo;
    ASSERT_TRUE(
        combo.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED, CRect(0, 0, 50, 60), &parent, 3));
    auto* frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(NULL, "", WS_OVERLAPPEDWINDOW, CRect(0, 0, 90, 90), &parent));
    const auto stranger = reinterpret_cast<LPARAM>(::GetDesktopWindow());
    for (UINT message :
         {WM_DRAWITEM, WM_MEASUREITEM, WM_DELETEITEM, WM_COMPAREITEM, WM_NOTIFY, WM_COMMAND, WM_HSCROLL,
          WM_CTLCOLOREDIT, WM_CHARTOITEM, WM_INITMENUPOPUP, WM_NOTIFYFORMAT, WM_SETCURSOR, WM_CONTEXTMENU})
        for (CWnd* window : {static_cast<CWnd*>(&parent), static_cast<CWnd*>(frame)})
            window->SendMessage(message, 0, 0);
    parent.SendMessage(WM_CTLCOLOR, 0, 0x12345);
    combo.SendMessage(WM_CTLCOLOR + WM_REFLECT_BASE, 0, 0x12345);
    for (UINT message : {WM_COMMAND, WM_HSCROLL, WM_CHARTOITEM})
        for (LPARAM lParam : {stranger, LPARAM(0x12345), LPARAM(-1)}) {
            parent.SendMessage(message, static_cast<WPARAM>(-1), lParam);
            combo.SendMessage(message, static_cast<WPARAM>(-1), lParam);
        }
    DRAWITEMSTRUCT draw = {};
    draw.hwndItem = parent.m_hWnd;
    parent.SendMessage(WM_DRAWITEM, 3, reinterpret_cast<LPARAM>(&draw));
    MEASUREITEMSTRUCT measure = {};
    measure.CtlID = 0xFFFFFFFF;
    parent.SendMessage(WM_MEASUREITEM, 3, reinterpret_cast<LPARAM>(&measure));
    EXPECT_TRUE(::IsWindow(parent.m_hWnd) && ::IsWindow(combo.m_hWnd));
}

// --- nothing is left over

struct Census {
    int windows = 0, gdi = 0;
    orv::test::HeapUse heap;
    bool operator==(const Census&) const = default;
};

BOOL CALLBACK countWindow(HWND window, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    ::EnumChildWindows(window, countWindow, count);
    return TRUE;
}

Census census() {
    AfxLockTempMaps();
    AfxUnlockTempMaps();
    MSG message;
    while (::PeekMessageW(&message, NULL, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
    Census c;
    ::EnumThreadWindows(::GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&c.windows));
    c.gdi = orv::test::liveGdiHandles();
    c.heap = orv::test::heapUse();
    return c;
}

void makeAndDestroy(int count) {
    for (int i = 0; i < count; i += 10) {
        CHiddenWnd parent;
        CEdit edit, subclassed;
        CComboBox combo;
        CListBox list;
        CButton button;
        CDialog dialog;
        const CRect rect(0, 0, 50, 50);
        parent.Make();
        edit.Create(WS_CHILD, rect, &parent, 1);
        combo.Create(WS_CHILD | CBS_DROPDOWN, rect, &parent, 2);
        list.Create(WS_CHILD, rect, &parent, 3);
        button.Create("按钮", WS_CHILD, rect, &parent, 4);
        dialog.Create(102u, &parent);
        subclassed.SubclassDlgItem(IDOK, &dialog);
        combo.AddString("文字");
        parent.GetDlgItem(1)->SetWindowText("甲");
        CClientDC dc(&parent);
        CDC::FromHandle(dc.m_hDC)->TextOut(0, 0, "字", 2);
        switch (i / 10 % 3) {
        case 0:
            parent.DestroyWindow();
            break;
        case 1:
            dialog.DestroyWindow();
            break;
        }
    }
}

TEST(Lifetime, AThousandWindowsLeaveNothing) {
    makeAndDestroy(1000);
    census();
    const Census before = census();
    makeAndDestroy(1000);
    const Census after = census();
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_EQ(before.gdi, after.gdi);
    EXPECT_EQ(before.heap.blocks, after.heap.blocks);
    EXPECT_EQ(before.heap.bytes, after.heap.bytes);
    CHiddenWnd another;
    another.Make();
    EXPECT_NE(before, census()) << "the count sees a window";
}

} // namespace
