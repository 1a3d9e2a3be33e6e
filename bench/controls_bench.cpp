// The outlook bar with many items against the same bar with few; the resize control against a bare batch.

#include <orvfc/ORVFC.h>

#include "harness.h"

#include <memory>
#include <vector>

namespace {

constexpr int few = 100, many = 10000;

// A window 150 by 400 with one folder, scrolled to its middle.
struct Bar {
    CWnd parent;
    CGfxOutBarCtrl bar;
    CDC dc;
    CBitmap bitmap;

    explicit Bar(int items) {
        parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 150, 400, NULL, NULL);
        bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 150, 400), &parent, 1,
                   OUTBAR_DEFAULT_FLAGS & ~OUTBAR_ANIMATE);
        bar.AddFolder("文件夹");
        insert(bar, 0, items);
        bar.ScrollItems(items / 2);
        CClientDC screen(&bar);
        dc.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, 150, 400);
        dc.SelectObject(&bitmap);
    }

    static void insert(CGfxOutBarCtrl& bar, int folder, int items) {
        for (int i = 0; i < items; ++i)
            bar.InsertItem(folder, -1, "一项", -1, static_cast<DWORD_PTR>(i));
    }

    void paint(int times) {
        while (times--)
            bar.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.m_hDC), PRF_CLIENT);
    }
    void hit(int times) {
        int index = 0;
        for (int i = 0; i < times; ++i)
            orv::bench::keep(bar.HitTestEx(CPoint(75, 30 + i % 370), index) + index);
    }
    void hover(int times) {
        for (int i = 0; i < times; ++i)
            bar.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(75, 30 + i % 370));
    }
};

// Windows that are filled anew: all items in one of them, or a tenth in each of ten.
using Bars = std::vector<std::unique_ptr<Bar>>;
void fill(const Bars& bars, int times) {
    while (times--) {
        for (const auto& one : bars) {
            one->bar.RemoveAllFolder();
            one->bar.AddFolder("文件夹");
            Bar::insert(one->bar, 0, many / static_cast<int>(bars.size()));
        }
    }
}

std::shared_ptr<Bars> makeBars(int count) {
    auto bars = std::make_shared<Bars>();
    while (count--)
        bars->push_back(std::make_unique<Bar>(0));
    return bars;
}

// A window full of children, to be made larger and smaller by turns.
struct Sizes {
    static constexpr int children = 200;
    CWnd parent;
    std::vector<HWND> windows;
    bool large = false;

    explicit Sizes(DWORD style) {
        parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | style, 0, 0, 600, 600, NULL, NULL);
        for (int i = 0; i < children; ++i)
            windows.push_back(::CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, i % 20 * 30,
                                                i / 20 * 30, 28, 28, parent.m_hWnd, NULL, NULL, NULL));
    }
    int step() {
        large = !large;
        const int size = large ? 640 : 600;
        ::SetWindowPos(parent.m_hWnd, NULL, 0, 0, size, size, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        return large ? 40 : -40;
    }
};

struct Resized : Sizes {
    CResizeCtrl control;
    explicit Resized(DWORD style) : Sizes(style) {
        control.Create(&parent);
        for (const HWND window : windows)
            control.Add(window, 50, 25, 25, 50);
    }
    void run(int times) {
        while (times--)
            step();
    }
};

// The same moves, known beforehand.
struct Batched : Sizes {
    std::vector<CRect> places;
    explicit Batched(DWORD style) : Sizes(style) {
        for (const HWND window : windows) {
            CRect rect;
            ::GetWindowRect(window, &rect);
            ::MapWindowPoints(NULL, parent.m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
            places.push_back(rect);
        }
    }
    void run(int times) {
        while (times--) {
            const int change = step();
            HDWP batch = ::BeginDeferWindowPos(children);
            for (size_t i = 0; i < windows.size(); ++i) {
                CRect& place = places[i];
                place.OffsetRect(change / 2, change / 4);
                place.right += change / 4;
                place.bottom += change / 2;
                batch = ::DeferWindowPos(batch, windows[i], NULL, place.left, place.top, place.Width(),
                                         place.Height(), SWP_NOZORDER);
            }
            ::EndDeferWindowPos(batch);
        }
    }
};

const orv::bench::Rows resizeRows([](orv::bench::Suite& suite) {
    suite.add({"controls", "a size step of 200 children / a bare deferred batch", 1.2,
               [control = std::make_shared<Resized>(0)](int times) { control->run(times); },
               [batch = std::make_shared<Batched>(0)](int times) { batch->run(times); }});
    // There the parent is also asked for each text's brush, to see whether it is seen through.
    suite.add({"controls", "the same on the screen / a bare deferred batch", 1.5,
               [control = std::make_shared<Resized>(WS_VISIBLE)](int times) { control->run(times); },
               [batch = std::make_shared<Batched>(WS_VISIBLE)](int times) { batch->run(times); }});
});

const orv::bench::Rows barRows([](orv::bench::Suite& suite) {
    const auto small = std::make_shared<Bar>(few), large = std::make_shared<Bar>(many);
    const struct {
        const char* name;
        void (Bar::*work)(int);
    } rows[] = {{"outlook bar painted, 10,000 items / 100 items", &Bar::paint},
                {"outlook bar hit test, 10,000 items / 100 items", &Bar::hit},
                {"outlook bar hover, 10,000 items / 100 items", &Bar::hover}};
    for (const auto& row : rows) {
        const auto work = row.work;
        suite.add({"controls", row.name, 1.1, [large, work](int times) { ((*large).*work)(times); },
                   [small, work](int times) { ((*small).*work)(times); }});
    }
    suite.add({"controls", "10,000 items put into one folder / 1,000 into each of ten", 1.2,
               [one = makeBars(1)](int times) { fill(*one, times); },
               [ten = makeBars(10)](int times) { fill(*ten, times); }, 11});
});

} // namespace
