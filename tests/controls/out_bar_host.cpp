#include "out_bar_host.h"

#include "support/paper.h"

#include <windowsx.h>

using namespace orv::test;

bool CBarHost::make(DWORD flags) {
    if (!CreateEx(0, AfxRegisterWndClass(0, NULL, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1)), "host",
                  WS_POPUP, 100, 100, 400, 340, NULL, NULL) ||
        !other.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(200, 10, 300, 30), this, 2) ||
        !bar.Create(WS_CHILD | WS_VISIBLE, CRect(10, 20, 130, 320), this, 1, flags))
        return false;
    bar.SetNotifyWnd(this);
    for (CImageList* list : {&large, &small}) {
        const int size = list == &large ? 32 : 16;
        CClientDC dc(this);
        CDC memory;
        CBitmap bitmap;
        memory.CreateCompatibleDC(&dc);
        bitmap.CreateCompatibleBitmap(&dc, 2 * size, size);
        CBitmap* before = memory.SelectObject(&bitmap);
        memory.FillSolidRect(0, 0, size, size, RGB(255, 0, 0));
        memory.FillSolidRect(size, 0, size, size, RGB(0, 255, 0));
        memory.SelectObject(before);
        list->Create(size, size, ILC_COLOR24 | ILC_MASK, 2, 2);
        list->Add(&bitmap, RGB(1, 2, 3));
        bar.SetImageList(list, list == &small);
    }
    return true;
}

void CBarHost::fill(int items) {
    bar.AddFolder("甲");
    bar.AddFolder("乙");
    CString text;
    for (int i = 0; i < items; ++i) {
        text.Format("%d", i);
        bar.InsertItem(0, -1, text, i % 2, 100 + i);
    }
    bar.InsertItem(1, -1, "x", 0, 200);
    bar.InsertItem(1, -1, "y", 1, 201);
}

CPoint CBarHost::toScreen(CPoint point) const {
    bar.ClientToScreen(&point);
    return point;
}

CPoint CBarHost::header(int folder) const {
    CRect rect;
    EXPECT_TRUE(bar.GetFolderRect(folder, rect));
    return middle(rect);
}

CPoint CBarHost::item(int index) const {
    CRect rect;
    EXPECT_TRUE(bar.IsSmallIconView() ? bar.GetItemRect(bar.GetSelFolder(), index, rect)
                                      : bar.GetLabelRect(bar.GetSelFolder(), index, rect));
    return middle(rect);
}

int CBarHost::hit(CPoint screenPoint, int& index) const {
    bar.ScreenToClient(&screenPoint);
    return bar.HitTestEx(screenPoint, index);
}

CString CBarHost::texts() const {
    CString all;
    for (int i = 0; i < bar.GetItemCount(); ++i)
        all += (i ? " " : "") + bar.GetItemText(i);
    return all;
}

std::vector<COLORREF> CBarHost::shown() const {
    CRect rect;
    bar.GetClientRect(rect);
    const CPoint corner = toScreen(CPoint(0, 0));
    CWindowDC screen(NULL);
    Paper paper(rect.Width(), rect.Height());
    paper.dc.BitBlt(0, 0, rect.Width(), rect.Height(), &screen, corner.x, corner.y, SRCCOPY);
    return paper.pixels();
}

bool CBarHost::shows(int x, int y, COLORREF color) const {
    return waitUntil([&] {
        CWindowDC screen(NULL);
        const CPoint point = toScreen(CPoint(x, y));
        return screen.GetPixel(point.x, point.y) == color;
    });
}

LRESULT CBarHost::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_GFX_OUTBAR_LBUTTON_DOWN) {
        EXPECT_TRUE(wParam == 0 && lParam == 0);
        ++clicks;
        if (onClick)
            onClick();
    } else if (message == WM_CONTEXTMENU) {
        EXPECT_EQ(reinterpret_cast<WPARAM>(bar.m_hWnd), wParam);
        ++menus;
        menuAt = CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

// --- steps

static Steps* running = nullptr;

Steps& Steps::when(Condition condition, Action action) {
    m_steps.emplace_back(std::move(condition), std::move(action));
    return *this;
}

Steps& Steps::then(Action action) {
    return when([] { return true; }, std::move(action));
}

void CALLBACK Steps::onTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (running)
        running->take();
}

void Steps::take() {
    if (m_next >= m_steps.size())
        return;
    if (m_steps[m_next].first()) {
        m_since = ::GetTickCount64();
        m_steps[m_next++].second();
    } else if (::GetTickCount64() - m_since > 30000) {
        ADD_FAILURE() << "step " << m_next << " waits in vain";
        m_failed = true;
        m_next = m_steps.size();
        releaseMouse(1, 1);
        pressKey(VK_ESCAPE);
    }
}

void Steps::run(Condition last) {
    running = this;
    m_since = ::GetTickCount64();
    const UINT_PTR timer = ::SetTimer(NULL, 0, USER_TIMER_MINIMUM, onTimer);
    while (!m_failed && (m_next < m_steps.size() || !last())) {
        MSG msg;
        if (::GetTickCount64() - m_since > 60000) {
            ADD_FAILURE() << "the end waits in vain";
            break;
        }
        ::GetMessageW(&msg, NULL, 0, 0);
        if (!CWnd::WalkPreTranslateTree(NULL, &msg)) {
            ::TranslateMessage(&msg);
            ::DispatchMessageW(&msg);
        }
    }
    ::KillTimer(NULL, timer);
    running = nullptr;
}

// --- fixture

void OutBar::SetUp() {
    moveMouse(900, 900);
    ASSERT_TRUE(host.make());
    host.ShowWindow(SW_SHOW);
    ASSERT_TRUE(waitUntil([&] { return ::GetForegroundWindow() == host.m_hWnd; }));
}

void OutBar::TearDown() {
    releaseMouse(900, 900);
    host.DestroyWindow();
}
