#include "Frame.h"

#include "BarIcons.h"
#include "Pages.h"
#include "Tasks.h"

#include <algorithm>
#include <cstdio>

namespace gallery {
namespace {

constexpr int barWidth = 160;
constexpr UINT barId = 100;
constexpr UINT firstPageId = 200;
constexpr UINT changeViewId = 300;

} // namespace

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
ON_WM_CREATE()
ON_WM_SETFOCUS()
ON_WM_ERASEBKGND()
ON_WM_CONTEXTMENU()
ON_WM_SYSCOLORCHANGE()
ON_REGISTERED_MESSAGE(WM_GFX_OUTBAR_LBUTTON_DOWN, &Frame::OnClicked)
ON_COMMAND(changeViewId, &Frame::OnChangeView)
END_MESSAGE_MAP()

BOOL Frame::make() {
    return Create(NULL, "ORVFC 图库", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(40, 40, 1240, 940));
}

int Frame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    m_windows.resize(pages().size());
    constexpr DWORD flags =
        OUTBAR_DEFAULT_FLAGS & ~(OUTBAR_REMOVE_FOLDERS | OUTBAR_REMOVE_ITEMS | OUTBAR_ADD_ENTRIES);
    CRect client;
    GetClientRect(&client);
    client.right = barWidth - 1; // one pixel stays for the line between
    if (!m_bar.Create(WS_CHILD | WS_VISIBLE, client, this, barId, flags) || !m_resize.Create(this)) {
        return -1;
    }
    m_resize.Add(&m_bar, 0, 0, 0, 100);
    m_resize.SetMinimumTrackingSize(CSize(3 * barWidth, barWidth));
    m_bar.SetNotifyWnd(this);
    fillBar();
    choose(0);
    return 0;
}

void Frame::fillBar() {
    makeBarIcons(m_largeIcons, 32);
    makeBarIcons(m_smallIcons, 16);
    m_bar.SetImageList(&m_largeIcons, 0);
    m_bar.SetImageList(&m_smallIcons, 1);
    DWORD_PTR number = 0;
    for (const Page& page : pages()) {
        int folder = m_bar.GetFolderText(page.folder);
        if (folder < 0) {
            folder = m_bar.AddFolder(page.folder);
        }
        m_bar.InsertItem(folder, -1, page.title, folder % barIcons, number++);
    }
}

void Frame::OnSysColorChange() {
    CFrameWnd::OnSysColorChange();
    SendMessageToDescendants(WM_SYSCOLORCHANGE);
}

void Frame::choose(int page) {
    if (page < 0 || page >= static_cast<int>(m_windows.size()) || page == m_chosen) {
        return;
    }
    CWnd*& window = m_windows[static_cast<size_t>(page)];
    if (window == NULL) {
        window = pages()[static_cast<size_t>(page)].create(*this, firstPageId + static_cast<UINT>(page));
        if (window != NULL) {
            place(*window);
        }
    }
    CWnd* before = chosen();
    m_chosen = page;
    if (window != NULL) {
        window->ShowWindow(SW_SHOW);
    }
    if (before != NULL) {
        before->ShowWindow(SW_HIDE);
    }
}

// From here on the resize control keeps the page beside the bar.
void Frame::place(CWnd& page) {
    CRect client;
    GetClientRect(&client);
    page.MoveWindow(barWidth, 0, std::max(0, static_cast<int>(client.right) - barWidth), client.bottom);
    m_resize.Add(&page, 0, 0, 100, 100);
}

BOOL Frame::PreTranslateMessage(MSG* pMsg) {
    CWnd* page = chosen();
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB && page != NULL) {
        // A page with controls of its own keeps the key while it has somewhere to go.
        const bool inBar = GetFocus() == &m_bar;
        if (inBar) {
            page->SetFocus();
            return TRUE;
        }
        if (GetFocus() == page) {
            m_bar.SetFocus();
            return TRUE;
        }
    }
    return CFrameWnd::PreTranslateMessage(pMsg);
}

void Frame::OnSetFocus(CWnd*) {
    m_bar.SetFocus();
}

BOOL Frame::OnEraseBkgnd(CDC* pDC) {
    // The line between bar and page, and where no page is.
    CRect client;
    GetClientRect(&client);
    pDC->FillSolidRect(client, ::GetSysColor(COLOR_3DSHADOW));
    return TRUE;
}

LRESULT Frame::OnClicked(WPARAM, LPARAM) {
    choose(static_cast<int>(m_bar.GetCurrentItemData()));
    return 0;
}

void Frame::OnContextMenu(CWnd* pWnd, CPoint pos) {
    if (pWnd->GetSafeHwnd() != m_bar.m_hWnd) {
        CFrameWnd::OnContextMenu(pWnd, pos);
        return;
    }
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, changeViewId, m_bar.IsSmallIconView() ? "大图标(&L)" : "小图标(&S)");
    menu.TrackPopupMenu(TPM_RIGHTBUTTON, pos.x, pos.y, this);
}

void Frame::OnChangeView() {
    m_bar.SetSmallIconView(!m_bar.IsSmallIconView());
}

ExitStatus runWindow() {
    auto* frame = new Frame;
    if (!frame->make()) {
        std::fputs("gallery: there is no screen for a window\n", stderr);
        return exitNoPicture;
    }
    CWinApp* app = AfxGetApp();
    app->m_pMainWnd = frame;
    frame->ShowWindow(SW_SHOW);
    frame->UpdateWindow();
    app->Run();
    return exitDone;
}

} // namespace gallery
