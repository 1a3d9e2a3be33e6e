#include "Frame.h"

#include "Pages.h"
#include "Tasks.h"

#include <algorithm>
#include <cstdio>

namespace gallery {
namespace {

constexpr int listWidth = 160;
constexpr UINT listId = 100;
constexpr UINT firstPageId = 200;

} // namespace

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
ON_WM_CREATE()
ON_WM_SETFOCUS()
ON_WM_ERASEBKGND()
ON_WM_GETMINMAXINFO()
ON_LBN_SELCHANGE(listId, &Frame::OnSelchange)
END_MESSAGE_MAP()

BOOL Frame::make() {
    return Create(NULL, "ORVFC 图库", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(40, 40, 1240, 940));
}

int Frame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    m_windows.resize(pages().size());
    m_font.CreatePointFont(110, "SimSun");
    if (!m_list.Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                       CRect(0, 0, 0, 0), this, listId)) {
        return -1;
    }
    m_list.SetFont(&m_font);
    for (const Page& page : pages()) {
        m_list.AddString(page.title);
    }
    m_list.SetCurSel(0);
    choose(0);
    return 0;
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
    if (m_list.m_hWnd == NULL) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    m_list.MoveWindow(0, 0, listWidth - 1, client.bottom); // one pixel stays for the line between
    if (CWnd* page = chosen()) {
        page->MoveWindow(listWidth, 0, std::max(0, static_cast<int>(client.right) - listWidth),
                         client.bottom);
    }
}

BOOL Frame::PreTranslateMessage(MSG* pMsg) {
    CWnd* page = chosen();
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB && page != NULL) {
        // A page with controls of its own keeps the key while it has somewhere to go.
        const bool inList = GetFocus() == &m_list;
        if (inList) {
            page->SetFocus();
            return TRUE;
        }
        if (GetFocus() == page) {
            m_list.SetFocus();
            return TRUE;
        }
    }
    return CFrameWnd::PreTranslateMessage(pMsg);
}

void Frame::OnSetFocus(CWnd*) {
    m_list.SetFocus();
}

BOOL Frame::OnEraseBkgnd(CDC* pDC) {
    // The line between list and page, and where no page is.
    CRect client;
    GetClientRect(&client);
    pDC->FillSolidRect(client, ::GetSysColor(COLOR_3DSHADOW));
    return TRUE;
}

void Frame::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CFrameWnd::OnGetMinMaxInfo(lpMMI);
    lpMMI->ptMinTrackSize.x = 3 * listWidth;
    lpMMI->ptMinTrackSize.y = listWidth;
}

void Frame::OnSelchange() {
    choose(m_list.GetCurSel());
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
