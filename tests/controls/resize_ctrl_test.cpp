// The resize control on real windows, most of them without any object behind them.

#include <orvfc/ORVFC.h>

#include <gtest/gtest.h>

#include "support/gdi_count.h"
#include "support/heap_count.h"
#include "support/paper.h"

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

using namespace orv::test;

namespace {

constexpr char property[] = "___CResizeCtrl___Class___";

// What the procedures of this file saw.
std::vector<HWND> painted;
int lastMessages = 0;
int erasings = 0; // of parents
std::function<void(UINT)> onChildMessage;
bool givesHollowBrushes = false;

LRESULT CALLBACK parentProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    lastMessages += message == WM_NCDESTROY;
    erasings += message == WM_ERASEBKGND;
    if (message == WM_CTLCOLORSTATIC && givesHollowBrushes)
        return reinterpret_cast<LRESULT>(::GetStockObject(HOLLOW_BRUSH));
    return message == WM_USER ? 77 : ::DefWindowProcA(hWnd, message, wParam, lParam);
}

LRESULT CALLBACK childProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT)
        painted.push_back(hWnd);
    if (onChildMessage)
        onChildMessage(message);
    return ::DefWindowProcA(hWnd, message, wParam, lParam);
}

const char* windowClass(const char* name, WNDPROC procedure, int color) {
    WNDCLASSA made = {};
    made.lpfnWndProc = procedure;
    made.hInstance = AfxGetInstanceHandle();
    made.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(color + 1));
    made.lpszClassName = name;
    ::RegisterClassA(&made);
    return name;
}

// A window with 400 x 300 pixels inside. Its procedure is an ANSI one, which subclassing has to give back.
struct Parent {
    explicit Parent(DWORD style = WS_OVERLAPPEDWINDOW)
        : window(::CreateWindowExA(0, windowClass("resize-parent", parentProc, COLOR_BTNFACE), "", style, 50,
                                   50, 100, 100, NULL, NULL, NULL, NULL)),
          procedure(current()) {
        size(400, 300);
    }
    ~Parent() {
        onChildMessage = nullptr;
        ::DestroyWindow(window);
    }
    HWND child(const CRect& rect, int id = 0, const char* name = NULL, DWORD style = 0) {
        return ::CreateWindowExA(
            0, name != NULL ? name : windowClass("resize-child", childProc, COLOR_WINDOW), "",
            WS_CHILD | WS_VISIBLE | style, rect.left, rect.top, rect.Width(), rect.Height(), window,
            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), NULL, NULL);
    }
    void size(int cx, int cy) {
        CRect outer, client;
        ::GetWindowRect(window, &outer);
        ::GetClientRect(window, &client);
        ::SetWindowPos(window, NULL, 0, 0, outer.Width() + cx - client.right,
                       outer.Height() + cy - client.bottom, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    LONG_PTR current() const { return ::GetWindowLongPtrA(window, GWLP_WNDPROC); }
    HANDLE owner() const { return ::GetPropA(window, property); }
    const HWND window;
    const LONG_PTR procedure;
};

// "x y width height", in the parent's client area.
std::string place(HWND child) {
    CRect rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(NULL, ::GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    const int numbers[] = {static_cast<int>(rect.left), static_cast<int>(rect.top), rect.Width(),
                           rect.Height()};
    std::string text;
    for (int number : numbers)
        text += (text.empty() ? "" : " ") + std::to_string(number);
    return text;
}

TEST(ResizeCtrl, ChildrenFollowTheSizeOfTheirParent) {
    Parent parent;
    const HWND wide = parent.child({10, 10, 110, 60}), corner = parent.child({300, 200, 340, 220}, 7);
    CResizeCtrl control(parent.window);
    ASSERT_TRUE(control.Add(wide, 0, 0, 50, 100) && control.Add(7, 100, 100, 0, 0));
    parent.size(403, 300);
    EXPECT_EQ("10 10 101 50", place(wide));
    parent.size(406, 310);
    EXPECT_EQ("10 10 103 60", place(wide)) << "the half pixels came together";
    EXPECT_EQ("306 210 40 20", place(corner));
    parent.size(150, 200);
    EXPECT_EQ("10 10 0 0", place(wide)) << "not negative";
    parent.size(406, 310);
    EXPECT_EQ("10 10 103 60", place(wide)) << "and what was missing is paid back";

    ::ShowWindow(parent.window, SW_SHOWNA);
    for (int command : {SW_MINIMIZE, SW_RESTORE, SW_MAXIMIZE, SW_RESTORE}) {
        ::ShowWindow(parent.window, command);
        if (command != SW_MAXIMIZE) {
            EXPECT_EQ("10 10 103 60", place(wide)) << command;
            EXPECT_EQ("306 210 40 20", place(corner)) << command;
        } else {
            EXPECT_NE("306 210 40 20", place(corner));
        }
    }
    control.Remove(7);
    ::DestroyWindow(wide);
    parent.size(500, 400);
    EXPECT_EQ("306 210 40 20", place(corner)) << "neither is registered any more";
}

TEST(ResizeCtrl, AParentThatIsMinimisedWhenTheControlComes) {
    Parent parent(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND child = parent.child({10, 10, 110, 60});
    ::ShowWindow(parent.window, SW_MINIMIZE);
    CResizeCtrl control(parent.window);
    control.Add(child, 50, 50, 50, 50);
    control.SetMinimumTrackingSize();
    ::ShowWindow(parent.window, SW_RESTORE);
    EXPECT_EQ("10 10 100 50", place(child));
    CRect rect;
    ASSERT_TRUE(control.GetWindowRect(&rect));
    EXPECT_EQ(rect.Size(), control.GetMinimumTrackingSize());
}

TEST(ResizeCtrl, Registration) {
    Parent parent;
    const HWND child = parent.child({0, 0, 10, 10}, 5);
    CWnd object;
    object.Attach(child);
    const HWND noWindow = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x77777));
    CResizeCtrl control;
    EXPECT_FALSE(control.Add(child, 0, 0, 0, 0)) << "no parent yet";
    EXPECT_FALSE(control.Remove(child) || control.Remove(5) || control.SetEnabled(TRUE));
    EXPECT_FALSE(control.Create(parent.window, TRUE, 0) || control.Create(parent.window, TRUE, -5) ||
                 control.Create(noWindow) || control.Create(static_cast<CWnd*>(NULL)));
    ASSERT_TRUE(control.Create(parent.window, TRUE, 8));
    EXPECT_FALSE(control.Create(parent.window, TRUE, 8)) << "once";
    EXPECT_FALSE(control.Add(child, 0, 0, 9, 0) || control.Add(child, 5, 0, 4, 0) ||
                 control.Add(child, 0, 0, 0, -1) || control.Add(noWindow, 0, 0, 0, 0) ||
                 control.Add(6, 0, 0, 0, 0) || control.Add(static_cast<CWnd*>(NULL), 0, 0, 0, 0) ||
                 control.Add(static_cast<CResizeInfo*>(NULL)));
    parent.size(408, 308);
    EXPECT_EQ("0 0 10 10", place(child)) << "what failed left nothing";

    const CResizeInfo info = {child, 4, 0, 4, 8};
    EXPECT_TRUE(control.Add(&object, 8, 8, 0, 0) && control.Add(&info)) << "the later shares count";
    parent.size(424, 324);
    EXPECT_EQ("8 0 18 26", place(child));
    EXPECT_TRUE(control.Remove(&object));
    EXPECT_FALSE(control.Remove(5)) << "there was one entry";
    const HWND stranger = ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 3, 3, 9, 9, NULL, NULL, NULL, NULL);
    EXPECT_TRUE(control.Add(stranger, 8, 8, 0, 0) && control.Add(child, 8, 8, 0, 0));
    parent.size(434, 334);
    EXPECT_EQ("18 10 18 26", place(child)) << "a window that is no child does not spoil the batch";
    EXPECT_EQ("3 3 9 9", place(stranger));
    ::DestroyWindow(stranger);
    object.Detach();
}

TEST(ResizeCtrl, TheControlEndsFirst) {
    Parent parent;
    const HWND child = parent.child({0, 0, 10, 10});
    {
        CResizeCtrl control(parent.window, FALSE), other(parent.window);
        EXPECT_TRUE(control.Add(child, 100, 100, 0, 0));
        EXPECT_EQ(&other, parent.owner());
        EXPECT_FALSE(control.SetEnabled(TRUE) || control.GetEnabled()) << "one enabled control a window";
        CResizeCtrl third;
        EXPECT_FALSE(third.Create(parent.window));
        EXPECT_TRUE(third.Create(parent.window, FALSE));
        other.SetEnabled(FALSE);
        EXPECT_EQ(NULL, parent.owner());
        EXPECT_EQ(parent.procedure, parent.current());
        parent.size(410, 310);
        EXPECT_TRUE(control.SetEnabled(TRUE) && control.GetEnabled());
        parent.size(411, 311);
        EXPECT_EQ("1 1 10 10", place(child)) << "from the size at which it was enabled";
    }
    EXPECT_EQ(NULL, parent.owner());
    EXPECT_EQ(parent.procedure, parent.current());
    EXPECT_FALSE(::IsWindowUnicode(parent.window));
}

// --- other subclasses

struct Stranger {
    explicit Stranger(HWND w) : window(w) {
        ::SetPropA(window, "stranger", this);
        before = ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    }
    void leave() { ::SetWindowLongPtrA(window, GWLP_WNDPROC, before); }
    static LRESULT CALLBACK procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* self = static_cast<Stranger*>(::GetPropA(hWnd, "stranger"));
        return ::CallWindowProcA(reinterpret_cast<WNDPROC>(self->before), hWnd, message, wParam, lParam);
    }
    HWND window;
    LONG_PTR before;
};

TEST(ResizeCtrl, ASubclassAbove) {
    for (bool destroyed : {false, true}) {
        for (bool strangerLeaves : {false, true}) {
            SCOPED_TRACE(testing::Message() << destroyed << strangerLeaves);
            auto parent = std::make_unique<Parent>();
            const HWND child = parent->child({0, 0, 10, 10});
            auto control = std::make_unique<CResizeCtrl>(parent->window);
            Stranger above(parent->window);
            EXPECT_TRUE(control->Add(child, 100, 0, 0, 0));
            control->SetEnabled(FALSE);
            if (destroyed)
                control.reset();
            EXPECT_NE(nullptr, parent->owner()) << "the stranger still calls";
            EXPECT_EQ(77, ::SendMessageA(parent->window, WM_USER, 0, 0));
            parent->size(500, 300);
            EXPECT_EQ("0 0 10 10", place(child));
            if (strangerLeaves) {
                above.leave();
                EXPECT_EQ(77, ::SendMessageA(parent->window, WM_USER, 0, 0));
                EXPECT_EQ(NULL, parent->owner()) << "unhooked as soon as it was safe";
                EXPECT_EQ(parent->procedure, parent->current());
            } else {
                CResizeCtrl next(parent->window); // takes the place over
                EXPECT_EQ(&next, parent->owner());
                next.Add(child, 100, 0, 0, 0);
                parent->size(501, 300);
                EXPECT_EQ("1 0 10 10", place(child));
            }
            lastMessages = 0;
            parent.reset();
            EXPECT_EQ(1, lastMessages) << "the last message reaches the old procedure";
        }
    }
}

TEST(ResizeCtrl, TheParentEndsFirst) {
    CResizeCtrl control;
    for (bool strangerAbove : {false, true}) {
        auto parent = std::make_unique<Parent>();
        ASSERT_TRUE(control.Create(parent->window, TRUE, 5));
        std::unique_ptr<Stranger> above(strangerAbove ? new Stranger(parent->window) : NULL);
        EXPECT_TRUE(control.Add(parent->child({0, 0, 10, 10}), 1, 1, 1, 1));
        lastMessages = 0;
        parent.reset();
        EXPECT_EQ(1, lastMessages);
        CRect rect(1, 2, 3, 4);
        EXPECT_FALSE(control.GetEnabled() || control.GetWindowRect(&rect) || control.SetEnabled(TRUE));
        EXPECT_EQ(CRect(1, 2, 3, 4), rect);
    }
}

TEST(ResizeCtrl, EndsInTheMidstOfAStep) {
    for (bool parentEnds : {false, true}) {
        Parent parent;
        const HWND window = parent.window, first = parent.child({0, 0, 9, 9}),
                   second = parent.child({20, 0, 29, 9});
        auto* control = new CResizeCtrl(window);
        EXPECT_TRUE(control->Add(first, 100, 0, 0, 0) && control->Add(second, 100, 0, 0, 0));
        onChildMessage = [&](UINT message) {
            if (message == WM_MOVE && control != NULL) {
                delete std::exchange(control, nullptr);
                if (parentEnds)
                    ::DestroyWindow(window);
            }
        };
        lastMessages = 0;
        parent.size(410, 300);
        onChildMessage = nullptr;
        EXPECT_EQ(nullptr, control);
        EXPECT_EQ(parentEnds, !::IsWindow(window));
        EXPECT_EQ(parentEnds ? 1 : 0, lastMessages);
    }
}

// --- what the user sees

TEST(ResizeCtrl, AStepPaintsEachChildOnce) {
    Parent parent(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    CResizeCtrl control(parent.window);
    control.SetGripEnabled(TRUE);
    const size_t count = 20;
    for (int i = 0; i < static_cast<int>(count); ++i)
        ASSERT_TRUE(control.Add(parent.child({i * 10, 0, i * 10 + 9, 50}), 5 * i, 0, 5, 100));
    ::RedrawWindow(parent.window, NULL, NULL, RDW_UPDATENOW | RDW_ALLCHILDREN);
    for (int step = 1; step <= 3; ++step) {
        painted.clear();
        erasings = 0;
        parent.size(400 + 40 * step, 300 + 10 * step);
        ::RedrawWindow(parent.window, NULL, NULL, RDW_UPDATENOW | RDW_ALLCHILDREN);
        EXPECT_EQ(count, painted.size());
        EXPECT_EQ(count, std::set<HWND>(painted.begin(), painted.end()).size());
        EXPECT_GE(2, erasings) << "once for its own growth, once for what its children left";
    }
}

TEST(ResizeCtrl, TheParentWipesOnlyWhatShowsItThrough) {
    Parent parent(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    CResizeCtrl control(parent.window);
    const struct {
        const char* name; // NULL: a window of the host's own
        DWORD style;
        bool hollow, wiped;
    } rows[] = {
        {NULL, 0, false, false},
        {"STATIC", 0, false, false},
        {"BUTTON", BS_PUSHBUTTON, false, false},
        {"STATIC", 0, true, true},
        {"BUTTON", BS_AUTOCHECKBOX, true, true},
        {"EDIT", 0, true, false},
        {"BUTTON", BS_GROUPBOX, false, true},
    };
    for (const auto& row : rows) {
        givesHollowBrushes = row.hollow;
        const HWND child = parent.child({10, 10, 60, 40}, 0, row.name, row.style);
        ASSERT_TRUE(control.Add(child, 0, 0, 0, 0));
        ::RedrawWindow(parent.window, NULL, NULL, RDW_UPDATENOW | RDW_ALLCHILDREN);
        const HDC dc = ::GetDC(child);
        ::SetPixel(dc, 2, 25, RGB(255, 0, 0));
        ::RedrawWindow(parent.window, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_ERASENOW | RDW_NOCHILDREN);
        EXPECT_EQ(row.wiped ? ::GetSysColor(COLOR_BTNFACE) : RGB(255, 0, 0), ::GetPixel(dc, 2, 25))
            << (row.name != NULL ? row.name : "own") << row.style << row.hollow;
        ::ReleaseDC(child, dc);
        ::DestroyWindow(child);
    }
    givesHollowBrushes = false;
}

// What stands in the parent's client area.
std::vector<COLORREF> shown(HWND window) {
    ::RedrawWindow(window, NULL, NULL, RDW_UPDATENOW | RDW_ALLCHILDREN);
    CRect client;
    ::GetClientRect(window, &client);
    Paper paper(client.Width(), client.Height());
    const HDC dc = ::GetDC(window);
    ::BitBlt(paper.dc, 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
    ::ReleaseDC(window, dc);
    return paper.pixels();
}

TEST(ResizeCtrl, NothingOfTheOldPictureStays) {
    const struct {
        const char* name;
        DWORD style;
        bool hollow;
        CResizeInfo shares;
    } rows[] = {
        {"BUTTON", BS_GROUPBOX, false, {NULL, 0, 0, 100, 100}},
        {"BUTTON", BS_GROUPBOX, false, {NULL, 50, 50, 0, 0}},
        {"STATIC", SS_RIGHT, true, {NULL, 0, 0, 100, 0}},
        {"BUTTON", BS_AUTOCHECKBOX | BS_VCENTER, true, {NULL, 0, 0, 0, 100}},
        {"STATIC", SS_CENTER, false, {NULL, 0, 0, 100, 100}},
    };
    for (const auto& row : rows) {
        givesHollowBrushes = row.hollow;
        Parent parent(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
        CResizeCtrl control(parent.window);
        const HWND child = parent.child({40, 40, 160, 140}, 0, row.name, row.style);
        ::SetWindowTextA(child, "文字");
        CResizeInfo shares = row.shares;
        shares.hWnd = child;
        ASSERT_TRUE(control.Add(&shares));
        if (row.style == BS_GROUPBOX) {
            ASSERT_TRUE(control.Add(parent.child({60, 60, 90, 90}), 0, 0, 0, 0));
        }
        shown(parent.window);
        for (const CSize size : {CSize(440, 330), CSize(500, 360), CSize(380, 290)}) {
            parent.size(size.cx, size.cy);
            const auto left = shown(parent.window);
            ::InvalidateRect(parent.window, NULL, TRUE);
            EXPECT_TRUE(left == shown(parent.window))
                << row.name << " " << row.style << (row.hollow ? " hollow " : " ") << size.cx;
        }
    }
    givesHollowBrushes = false;
}

TEST(ResizeCtrl, ADropDownComboKeepsItsList) {
    Parent parent(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    const HWND combo =
        parent.child({10, 10, 110, 160}, 0, "COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | CBS_NOINTEGRALHEIGHT);
    for (int i = 0; i < 50; ++i)
        ::SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("文字"));
    auto droppedHeight = [combo] {
        CRect rect;
        ::SendMessageA(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect));
        return rect.Height();
    };
    CRect field, after;
    ::GetWindowRect(combo, &field);
    const int before = droppedHeight();
    ASSERT_GT(before, 100);
    CResizeCtrl control(parent.window);
    ASSERT_TRUE(control.Add(combo, 0, 0, 100, 100));
    for (int i = 1; i <= 30; ++i)
        parent.size(400 + i, 300 + i);
    ::GetWindowRect(combo, &after);
    EXPECT_EQ(CSize(field.Width() + 30, field.Height()), after.Size());
    EXPECT_EQ(before, droppedHeight());
    ::SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(::GetComboBoxInfo(combo, &info));
    CRect list;
    ::GetWindowRect(info.hwndList, &list);
    EXPECT_TRUE(::IsWindowVisible(info.hwndList) && list.Height() > 100) << list.Height();
}

TEST(ResizeCtrl, TheGripIsDrawnAndTheSizeKeepsToItsLimits) {
    Parent parent(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    CResizeCtrl control(parent.window);
    EXPECT_FALSE(control.GetGripEnabled());
    const CSize grip(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL));
    auto hit = [&](int x, int y) {
        POINT point = {x, y};
        ::ClientToScreen(parent.window, &point);
        return ::SendMessageA(parent.window, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
    };
    auto isDrawn = [&] {
        ::UpdateWindow(parent.window);
        const HDC dc = ::GetDC(parent.window);
        bool drawn = false;
        for (int i = 1; i < grip.cx; ++i) {
            drawn |= ::GetPixel(dc, 400 - i, 300 - grip.cy / 3) != ::GetSysColor(COLOR_BTNFACE);
        }
        ::ReleaseDC(parent.window, dc);
        return drawn;
    };
    EXPECT_EQ(HTCLIENT, hit(399, 299));
    EXPECT_FALSE(isDrawn());
    EXPECT_EQ(0, control.SetGripEnabled(TRUE));
    EXPECT_TRUE(isDrawn());
    EXPECT_EQ(HTBOTTOMRIGHT, hit(399, 299));
    EXPECT_EQ(HTBOTTOMRIGHT, hit(400 - grip.cx, 300 - grip.cy));
    EXPECT_EQ(HTCLIENT, hit(399 - grip.cx, 299));
    EXPECT_EQ(HTCLIENT, hit(399, 299 - grip.cy));

    control.SetMinimumTrackingSize();
    CRect rect;
    ASSERT_TRUE(control.GetWindowRect(&rect));
    const CSize first = rect.Size(), most(first.cx + 60, -1);
    EXPECT_EQ(first, control.GetMinimumTrackingSize());
    control.SetMaximumTrackingSize(most);
    EXPECT_EQ(most, control.GetMaximumTrackingSize());
    // The system asks for the limits whenever a window with a sizing border gets a size.
    const struct {
        CSize by, becomes;
    } steps[] = {{{40, 30}, {40, 30}}, {{130, 100}, {60, 100}}, {{-60, -90}, {0, 0}}};
    for (const auto& step : steps) {
        const CSize size = first + step.by;
        ::SetWindowPos(parent.window, NULL, 0, 0, size.cx, size.cy,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        ASSERT_TRUE(control.GetWindowRect(&rect));
        EXPECT_EQ(first + step.becomes, rect.Size()) << step.by.cx;
    }
    EXPECT_TRUE(isDrawn());
    ::ShowWindow(parent.window, SW_MAXIMIZE);
    CRect client;
    ::GetClientRect(parent.window, &client);
    EXPECT_EQ(HTCLIENT, hit(client.right - 1, client.bottom - 1)) << "a maximised window is not dragged";
}

TEST(ResizeCtrl, ACaptionedWindowGetsASizingBorder) {
    Parent parent(WS_POPUP | WS_CAPTION | WS_SYSMENU);
    auto clientOnScreen = [&] {
        CRect rect;
        ::GetClientRect(parent.window, &rect);
        ::MapWindowPoints(parent.window, NULL, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    };
    auto style = [&] { return ::GetWindowLongPtrA(parent.window, GWL_STYLE); };
    const LONG_PTR before = style();
    const CRect client = clientOnScreen();
    CResizeCtrl control(parent.window);
    EXPECT_EQ(before | WS_THICKFRAME, style());
    EXPECT_EQ(client, clientOnScreen());
    control.SetEnabled(FALSE);
    EXPECT_EQ(before, style());
    EXPECT_EQ(client, clientOnScreen());
    for (DWORD kind : {DWORD(WS_POPUP), DWORD(WS_OVERLAPPEDWINDOW)}) {
        Parent other(kind);
        const LONG_PTR own = ::GetWindowLongPtrA(other.window, GWL_STYLE);
        CResizeCtrl(other.window).SetEnabled(FALSE);
        EXPECT_EQ(own, ::GetWindowLongPtrA(other.window, GWL_STYLE));
    }
}

// --- nothing is left over

void makeAndEnd() {
    for (int i = 0; i < 50; ++i) {
        auto parent = std::make_unique<Parent>();
        auto control = std::make_unique<CResizeCtrl>(parent->window);
        control->SetGripEnabled(TRUE);
        for (int k = 0; k < 20; ++k)
            control->Add(parent->child({k, k, k + 9, k + 9}), k, k, k, k);
        parent->size(500 + i, 400);
        if (i % 2 != 0)
            control.reset();
        parent.reset();
    }
}

TEST(ResizeCtrl, NothingIsLeftOver) {
    makeAndEnd();
    const int gdi = liveGdiHandles();
    const HeapUse heap = heapUse();
    makeAndEnd();
    EXPECT_EQ(gdi, liveGdiHandles());
    EXPECT_EQ(heap.blocks, heapUse().blocks);
}

TEST(ResizeCtrl, StrangeMessagesDoNoHarm) {
    Parent parent;
    const HWND child = parent.child({0, 0, 10, 10});
    CResizeCtrl control(parent.window);
    control.SetGripEnabled(TRUE);
    control.Add(child, 100, 100, 0, 0);
    for (WPARAM kind : {WPARAM(SIZE_MINIMIZED), WPARAM(SIZE_MAXSHOW), WPARAM(SIZE_MAXHIDE), WPARAM(99)})
        ::SendMessageA(parent.window, WM_SIZE, kind, MAKELPARAM(9, 9));
    for (UINT message : {WM_ERASEBKGND, WM_PRINTCLIENT, WM_PARENTNOTIFY})
        ::SendMessageA(parent.window, message, 0x12345, -1);
    EXPECT_EQ("0 0 10 10", place(child));
    ::RemovePropA(parent.window, property);
    EXPECT_EQ(0, ::SendMessageA(parent.window, WM_USER, 0, 0)) << "nobody is known to pass it on to";
    ::SetPropA(parent.window, property, &control);
    EXPECT_EQ(77, ::SendMessageA(parent.window, WM_USER, 0, 0));
    ::SendMessageA(parent.window, WM_SIZE, SIZE_RESTORED, MAKELPARAM(20400, 20300));
    EXPECT_EQ("20000 20000 10 10", place(child));
    ::SendMessageA(parent.window, WM_SIZE, SIZE_RESTORED, MAKELPARAM(400, 300));
    EXPECT_EQ("0 0 10 10", place(child));
}

} // namespace
