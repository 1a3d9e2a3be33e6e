#pragma once

// A window with an outlook bar in it, and steps of a user who works with it.

#include <orvfc/ORVFC.h>

#include <gtest/gtest.h>

#include "support/input.h"

#include <functional>
#include <vector>

// Counts how often a rename is said to end.
class CCountedBar : public CGfxOutBarCtrl {
public:
    int ends = 0;
    int repeats = 0; // of a held arrow's timer
    int clicks = 0;  // told to itself

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        repeats += message == WM_TIMER && wParam == 2;
        clicks += message == WM_GFX_OUTBAR_LBUTTON_DOWN;
        ends += message == WM_GFX_END_LABEL_EDIT;
        return CGfxOutBarCtrl::WindowProc(message, wParam, lParam);
    }
};

class CBarHost : public CWnd {
public:
    CCountedBar bar;
    CEdit other; // another tab stop, above the bar
    CImageList large, small;
    int clicks = 0; // click messages
    int menus = 0;  // context menus
    CPoint menuAt;
    std::function<void()> onClick;

    // The bar is 120 by 300; nothing is in it. It has notified this window from the start.
    bool make(DWORD flags = OUTBAR_DEFAULT_FLAGS & ~OUTBAR_ANIMATE);
    // Two folders of items (the first one open, with so many) and one with a child window.
    void fill(int items);
    CPoint toScreen(CPoint point) const;
    // The middle of a header, of an item's label, of an arrow, on the screen.
    CPoint header(int folder) const;
    CPoint item(int index) const;
    CPoint middle(const CRect& rect) const { return toScreen(rect.CenterPoint()); }
    int hit(CPoint screenPoint, int& index) const;
    CString texts() const; // of the open folder's items, with blanks between
    // What the screen shows of the bar, row by row. It is the window system's to be late with it: wait.
    std::vector<COLORREF> shown() const;
    // Waits until it shows the colour there.
    bool shows(int x, int y, COLORREF color) const;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

// Steps of a user: each one's action follows when its condition holds. They are taken by a timer, so that
// they go on inside loops of the control's own.
class Steps {
public:
    using Condition = std::function<bool()>;
    using Action = std::function<void()>;

    Steps& when(Condition condition, Action action);
    Steps& then(Action action); // at once
    // All of them, and then until the last condition holds. A step that waits half a minute fails, and the
    // mouse is let go.
    void run(Condition last);

private:
    static void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD);
    void take();
    std::vector<std::pair<Condition, Action>> m_steps;
    size_t m_next = 0;
    ULONGLONG m_since = 0;
    bool m_failed = false;
};

class OutBar : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    CBarHost host;
    CCountedBar& bar = host.bar;
};
