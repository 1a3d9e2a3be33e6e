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
ON_WM_GETMINMAXINFO()
ON_WM_CONTEXTMENU()
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
    if (!m_bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, barId, flags)) {
        return -1;
    }
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

void Frame::choose(int page) {
    if (page < 0 || page >= static_cast<int>(m_windows.size()) || page == m_chosen) {
        return;
    }
    CWnd*& window = m_windows[static_cast<size_t>(page)];
    if (window == NULL) {
        window = pages()[static_cast<size_t>(page)].create(*this, firstPageId + static_cast<UINT>(page));
    }
    CWnd* before = chosen();
    m_chosen = page;
    RecalcLayout();
    if (window != NULL) {
        window->ShowWindow(SW_SHOW);
    }
    if (before != NULL) {
        before->ShowWindow(SW_HIDE);
    }
}

void Frame::RecalcLayout(BOOL) {
    if (m_bar.m_hWnd == NULL) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    m_bar.MoveWindow(0, 0, barWidth - 1, client.bottom); // one pixel stays for the line between
    if (CWnd* page = chosen()) {
        page->MoveWindow(barWidth, 0, std::max(0, static_cast<int>(client.right) - barWidth), client.bottom);
    }
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

void Frame::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CFrameWnd::OnGetMinMaxInfo(lpMMI);
    lpMMI->ptMinTrackSize.x = 3 * barWidth;
    lpMMI->ptMinTrackSize.y = barWidth;
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
