// Modal loops, sheets and the pump.

#include "window_test.h"

#include "support/heap_count.h"

#include <functional>

namespace {

// Runs a function each time the window's loop is idle.
template <class Self, class Base>
class CIdle : public Base {
public:
    using Base::Base;
    std::function<void(Self&)> m_idle;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_KICKIDLE)
            return Base::WindowProc(message, wParam, lParam);
        m_idle(static_cast<Self&>(*this));
        return 0;
    }
};

class CIdleDlg : public CIdle<CIdleDlg, CDialog> {
public:
    explicit CIdleDlg(UINT nIDTemplate = IDD_EMPTY, CWnd* pParent = NULL) : CIdle(nIDTemplate, pParent) {}
    std::function<void(CIdleDlg&)> m_init;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (m_init)
            m_init(*this);
        return TRUE;
    }
};

TEST(Dialog, AnswersWhatEndsIt) {
    Made<CHiddenWnd> parent;
    const struct {
        const char* what;
        std::function<void(CIdleDlg&)> idle;
        INT_PTR expected;
    } rows[] = {
        {"OK", [](CIdleDlg& d) { d.SendMessage(WM_COMMAND, IDOK); }, IDOK},
        {"cancel", [](CIdleDlg& d) { d.PostMessage(WM_COMMAND, IDCANCEL); }, IDCANCEL},
        {"a number", [](CIdleDlg& d) { d.EndDialog(4711); }, 4711},
        {"close", [](CIdleDlg& d) { d.PostMessage(WM_CLOSE); }, IDCANCEL},
        {"destroyed from outside", [](CIdleDlg& d) { ::DestroyWindow(d.m_hWnd); }, IDABORT},
        {"nested",
         [](CIdleDlg& d) {
             CIdleDlg inner(IDD_EMPTY, &d);
             inner.m_idle = [&](CIdleDlg& i) {
                 EXPECT_FALSE(d.IsWindowEnabled());
                 i.EndDialog(8);
             };
             const INT_PTR answer = inner.DoModal();
             EXPECT_TRUE(d.IsWindowEnabled());
             d.EndDialog(static_cast<int>(answer) + 1);
         },
         9},
    };
    for (const auto& row : rows) {
        CIdleDlg dialog(IDD_EMPTY, &parent);
        dialog.m_idle = [&](CIdleDlg& d) {
            EXPECT_FALSE(parent.IsWindowEnabled()) << row.what;
            EXPECT_TRUE(d.IsWindowVisible()) << row.what;
            row.idle(d);
        };
        EXPECT_EQ(row.expected, dialog.DoModal()) << row.what;
        EXPECT_EQ(NULL, dialog.m_hWnd) << row.what;
        EXPECT_TRUE(parent.IsWindowEnabled()) << row.what;
        // The same object again.
        EXPECT_EQ(row.expected, dialog.DoModal()) << row.what;
    }
}

TEST(Dialog, MayEndBeforeItBegins) {
    CIdleDlg dialog;
    dialog.m_idle = [](CIdleDlg&) { FAIL() << "the loop should not have run"; };
    dialog.m_init = [](CIdleDlg& d) { d.EndDialog(12); };
    EXPECT_EQ(12, dialog.DoModal());
    dialog.m_init = [](CIdleDlg&) { AfxThrowUserException(); };
    EXPECT_EQ(-1, dialog.DoModal()) << "half a dialog is none";
    CIdleDlg missing(9999);
    EXPECT_EQ(-1, missing.DoModal());
    CDialog modeless;
    EXPECT_FALSE(modeless.Create(9999u));
    CIdleDlg half;
    half.m_init = dialog.m_init;
    EXPECT_FALSE(half.Create(IDD_EMPTY));
    EXPECT_EQ(NULL, half.m_hWnd);
}

TEST(Dialog, AnOwnerThatGoesTakesTheDialogAlong) {
    Made<CHiddenWnd> parent;
    CIdleDlg dialog(IDD_EMPTY, &parent);
    dialog.m_idle = [&](CIdleDlg&) { parent.DestroyWindow(); };
    EXPECT_EQ(IDABORT, dialog.DoModal());
}

TEST(Dialog, TheEndOfTheProgramEndsEveryLoop) {
    CIdleDlg outer;
    INT_PTR inside = 0;
    outer.m_idle = [&](CIdleDlg& d) {
        CIdleDlg inner(IDD_EMPTY, &d);
        inner.m_idle = [](CIdleDlg&) { ::PostQuitMessage(6); };
        inside = inner.DoModal();
    };
    EXPECT_EQ(-1, outer.DoModal());
    EXPECT_EQ(-1, inside);
    MSG quit = {};
    ASSERT_TRUE(::PeekMessageW(&quit, NULL, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(6, int(quit.wParam));
}

TEST(Dialog, ItsLastMessageIsNoExitStatus) {
    CIdleDlg dialog;
    dialog.m_idle = [](CIdleDlg& d) { d.PostMessage(WM_COMMAND, IDCANCEL); };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(0, AfxGetApp()->ExitInstance());
    ::PostQuitMessage(6);
    while (AfxPumpMessage()) {
    }
    EXPECT_EQ(6, AfxGetApp()->ExitInstance());
}

TEST(Dialog, TemporaryObjectsFromBeforeOutliveTheLoop) {
    Made<CHiddenWnd> parent;
    HWND statics[2];
    for (HWND& window : statics)
        window = ::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 9, 9, parent.m_hWnd, NULL, NULL, NULL);
    CWnd* before = CWnd::FromHandle(statics[0]);
    CIdleDlg dialog(IDD_EMPTY, &parent);
    int rounds = 0;
    dialog.m_idle = [&](CIdleDlg& d) {
        EXPECT_EQ(before, CWnd::FromHandle(statics[0]));
        CWnd::FromHandle(statics[1]);
        if (++rounds == 3)
            d.EndDialog(1);
        else
            d.PostMessage(WM_USER);
    };
    dialog.DoModal();
    EXPECT_EQ(statics[0], before->m_hWnd);
    AfxLockTempMaps();
    AfxUnlockTempMaps();
}

TEST(Dialog, KeysPassTheControlsBeforeTheDialog) {
    class CGreedyEdit : public CEdit {
    public:
        BOOL PreTranslateMessage(MSG* pMsg) override {
            return pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE && ++taken == 1;
        }
        int taken = 0;
    } edit;
    CIdleDlg dialog(IDD_FIELDS);
    dialog.m_init = [&](CIdleDlg& d) { edit.SubclassDlgItem(IDC_EDIT, &d); };
    dialog.m_idle = [&](CIdleDlg&) { edit.PostMessage(WM_KEYDOWN, VK_ESCAPE, 1); };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(2, edit.taken) << "the first Esc was the control's, the second the dialog's";
}

// --- sheets

class CIdlePage : public CPropertyPage {
public:
    explicit CIdlePage(UINT nIDTemplate) : CPropertyPage(nIDTemplate) {}
    int m_nSet = 0, m_nApplied = 0, m_nReset = 0;
    int m_nValue = 0; // in its field, when it has one

    BOOL OnSetActive() override {
        ++m_nSet;
        return CPropertyPage::OnSetActive();
    }
    void DoDataExchange(CDataExchange* pDX) override {
        if (GetDlgItem(IDC_EDIT))
            DDX_Text(pDX, IDC_EDIT, m_nValue);
    }
    void OnOK() override { ++m_nApplied; }
    void OnCancel() override { ++m_nReset; }
};

class CIdleSheet : public CIdle<CIdleSheet, CPropertySheet> {
public:
    using CIdle::CIdle;
};

TEST(Sheet, PagesAreMadeLeftAndConfirmed) {
    CIdlePage first(IDD_FIELDS), second(IDD_EMPTY);
    CIdleSheet sheet("表单");
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    EXPECT_EQ(2, sheet.GetPageCount());
    sheet.m_idle = [&](CIdleSheet& s) {
        EXPECT_EQ(0, s.GetActiveIndex());
        EXPECT_EQ(&sheet, first.GetParentSheet());
        EXPECT_EQ(NULL, second.m_hWnd) << "a page is made when it is first shown";
        CString text;
        s.GetWindowText(text);
        EXPECT_STREQ("表单", text);
        first.SetDlgItemText(IDC_EDIT, "7x");
        s.SetActivePage(1);
        EXPECT_EQ(0, s.GetActiveIndex()) << "not left";
        s.PressButton(PSBTN_OK);
        EXPECT_EQ(0, first.m_nApplied) << "not confirmed either";
        EXPECT_EQ(2u, orv::test::takeMessages().size());
        first.SetDlgItemText(IDC_EDIT, "7");
        s.SetActivePage(&second);
        EXPECT_EQ(&second, s.GetActivePage());
        s.PressButton(PSBTN_OK);
    };
    EXPECT_EQ(IDOK, sheet.DoModal());
    EXPECT_EQ(7, first.m_nValue);
    EXPECT_EQ(1, first.m_nApplied);
    EXPECT_EQ(1, second.m_nApplied);
    EXPECT_EQ(0, first.m_nReset);
    EXPECT_EQ(NULL, first.m_hWnd);
    EXPECT_EQ(NULL, second.m_hWnd);
    // The same objects again, cancelled.
    sheet.m_idle = [](CIdleSheet& s) { s.PostMessage(WM_CLOSE); };
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
    EXPECT_EQ(1, first.m_nApplied);
    EXPECT_EQ(1, first.m_nReset);
    sheet.m_idle = [](CIdleSheet& s) { ::DestroyWindow(s.m_hWnd); };
    EXPECT_EQ(IDABORT, sheet.DoModal());
}

TEST(Sheet, ModelessItEndsWithItsButtons) {
    Made<CHiddenWnd> parent;
    for (int button : {PSBTN_OK, PSBTN_CANCEL}) {
        CIdlePage page(IDD_EMPTY);
        CPropertySheet sheet("表单");
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create(&parent));
        EXPECT_TRUE(parent.IsWindowEnabled());
        EXPECT_TRUE(::IsWindow(page.m_hWnd));
        sheet.PressButton(button);
        MSG message;
        while (::PeekMessageW(&message, NULL, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&message);
        EXPECT_EQ(NULL, sheet.m_hWnd) << button;
        EXPECT_EQ(NULL, page.m_hWnd) << button;
        EXPECT_EQ(button == PSBTN_OK ? 1 : 0, page.m_nApplied);
    }
    CPropertySheet empty("空");
    EXPECT_EQ(-1, empty.DoModal());
    CIdlePage missing(9999);
    empty.AddPage(&missing);
    EXPECT_EQ(-1, empty.DoModal());
}

// --- a wizard

class CWizardPage : public CIdlePage {
public:
    CWizardPage(UINT nIDTemplate, DWORD dwButtons) : CIdlePage(nIDTemplate), m_dwButtons(dwButtons) {}
    DWORD m_dwButtons;
    LRESULT m_answer = 0; // to the next button

    BOOL OnSetActive() override {
        GetParentSheet()->SetWizardButtons(m_dwButtons);
        return CIdlePage::OnSetActive();
    }
    LRESULT OnWizardBack() override { return m_answer; }
    LRESULT OnWizardNext() override { return m_answer; }
    BOOL OnWizardFinish() override { return m_answer == 0; }
};

TEST(Sheet, AWizardGoesWhereItsPagesSay) {
    const struct {
        int button;
        LRESULT answer;
        int page; // where it is then
    } steps[] = {
        {ID_WIZNEXT, -1, 0},         {ID_WIZNEXT, 0, 1},
        {ID_WIZBACK, 0, 0},          {ID_WIZNEXT, 9999, 0}, // no such page
        {ID_WIZNEXT, IDD_FIELDS, 2},                        // over the second
        {ID_WIZBACK, -1, 2},         {ID_WIZFINISH, 1, 2},  // refused
        {ID_WIZFINISH, 0, -1},
    };
    CWizardPage first(IDD_EMPTY, PSWIZB_NEXT), second(IDD_EMPTY, PSWIZB_BACK | PSWIZB_NEXT),
        third(IDD_FIELDS, PSWIZB_BACK | PSWIZB_FINISH);
    CIdleSheet sheet("向导");
    for (CWizardPage* page : {&first, &second, &third})
        sheet.AddPage(page);
    sheet.SetWizardMode();
    EXPECT_TRUE(sheet.IsWizard());
    size_t step = 0;
    auto press = [](CIdleSheet& s, int button) {
        CWnd* window = s.GetDlgItem(button);
        EXPECT_TRUE(window->IsWindowVisible() && window->IsWindowEnabled()) << button;
        window->SendMessage(BM_CLICK);
    };
    sheet.m_idle = [&](CIdleSheet& s) {
        if (step >= std::size(steps)) {
            s.EndDialog(-2); // the last one should have closed it
            return;
        }
        const auto& [button, answer, page] = steps[step++];
        EXPECT_EQ(s.GetActiveIndex() != 0, s.GetDlgItem(ID_WIZBACK)->IsWindowEnabled() != 0) << step;
        static_cast<CWizardPage*>(s.GetActivePage())->m_answer = answer;
        press(s, button);
        if (page >= 0) {
            EXPECT_EQ(page, s.GetActiveIndex()) << step;
        }
        s.PostMessage(WM_NULL);
    };
    EXPECT_EQ(ID_WIZFINISH, sheet.DoModal());
    EXPECT_EQ(std::size(steps), step);
    EXPECT_EQ(2, first.m_nSet);
    EXPECT_EQ(1, second.m_nSet);
    EXPECT_EQ(1, third.m_nSet);

    sheet.m_idle = [&](CIdleSheet& s) { press(s, IDCANCEL); };
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
    EXPECT_EQ(1, first.m_nReset);
}

// --- exceptions and the loops

class CThrowingEdit : public CEdit {
public:
    bool m_bThrow = true;
    BOOL PreTranslateMessage(MSG* pMsg) override {
        if (pMsg->message == WM_KEYDOWN && m_bThrow)
            AfxThrowResourceException();
        return FALSE;
    }
};

// Opens a dialog, or a sheet with one page, in the handler of a message.
class COpeningWnd : public CHiddenWnd {
public:
    std::function<INT_PTR()> m_open;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_USER ? m_open() : CHiddenWnd::WindowProc(message, wParam, lParam);
    }
};

TEST(Dialog, WhatPreTranslateMessageThrowsEndsTheLoopAndTheWindow) {
    orv::test::DebugEvents events;
    Made<COpeningWnd> parent;
    CThrowingEdit edit;
    CIdleDlg dialog(IDD_FIELDS, &parent);
    dialog.m_init = [&](CIdleDlg& d) { edit.SubclassDlgItem(IDC_EDIT, &d); };
    dialog.m_idle = [&](CIdleDlg&) { edit.PostMessage(WM_KEYDOWN, VK_ESCAPE, 1); };
    CIdlePage page(IDD_FIELDS);
    CIdleSheet sheet("表单");
    sheet.AddPage(&page);
    sheet.m_idle = [&](CIdleSheet&) {
        if (!edit.m_hWnd)
            edit.SubclassDlgItem(IDC_EDIT, &page);
        edit.PostMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    };
    const std::function<INT_PTR()> opens[] = {[&] { return dialog.DoModal(); },
                                              [&] { return sheet.DoModal(); }};
    for (const auto& open : opens) {
        edit.m_bThrow = true;
        parent.m_open = open;
        EXPECT_EQ(0, parent.SendMessage(WM_USER)) << "traced where the dialog was opened";
        EXPECT_NE(std::string::npos, events.text().find("CResourceException left the handler"));
        EXPECT_TRUE(parent.IsWindowEnabled());
        EXPECT_EQ(NULL, dialog.m_hWnd);
        EXPECT_EQ(NULL, sheet.m_hWnd);
        EXPECT_EQ(NULL, edit.m_hWnd);
        edit.m_bThrow = false;
        EXPECT_EQ(IDCANCEL, parent.SendMessage(WM_USER)) << "and it can be opened again";
    }
}

// --- the program's loop

TEST(Pump, RunsUntilItsMainWindowGoes) {
    auto* frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(NULL, "主窗口"));
    theApp.m_pMainWnd = frame;
    frame->PostMessage(WM_CLOSE);
    EXPECT_EQ(0, theApp.Run());
    EXPECT_EQ(NULL, theApp.m_pMainWnd);
}

TEST(Pump, EachWindowIsAskedAboutAMessageOnce) {
    class CAskedFrame : public CFrameWnd {
    public:
        BOOL PreTranslateMessage(MSG*) override {
            ++asked;
            return FALSE;
        }
        int asked = 0;
    };
    auto* frame = new CAskedFrame;
    ASSERT_TRUE(frame->Create(NULL, "主窗口"));
    theApp.m_pMainWnd = frame;
    CHiddenWnd owned, beside;
    ASSERT_TRUE(owned.Make(frame) && beside.Make());
    for (CWnd* window :
         {static_cast<CWnd*>(frame), static_cast<CWnd*>(&owned), static_cast<CWnd*>(&beside)}) {
        // A control that has no object, and one that has.
        const HWND plain =
            ::CreateWindowExA(0, "EDIT", "", WS_CHILD, 0, 0, 9, 9, window->m_hWnd, NULL, NULL, NULL);
        for (HWND control : {plain, window->m_hWnd}) {
            frame->asked = 0;
            MSG key = {control, WM_KEYDOWN, VK_F4, 1, 0, {}};
            EXPECT_FALSE(AfxPreTranslateMessage(&key));
            EXPECT_EQ(1, frame->asked);
        }
    }
    theApp.m_pMainWnd = NULL;
    frame->DestroyWindow();
}

TEST(Pump, IdleTimeEmptiesTheMapsOfTemporaryObjects) {
    Made<CHiddenWnd> parent;
    HWND window = ::CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 9, 9, parent.m_hWnd, NULL, NULL, NULL);
    CWnd::FromHandle(window);
    theApp.OnIdle(1);
    const size_t before = orv::test::heapUse().blocks;
    CWnd::FromHandle(window);
    EXPECT_TRUE(theApp.OnIdle(0)) << "there is more to do";
    EXPECT_LT(before, orv::test::heapUse().blocks);
    EXPECT_FALSE(theApp.OnIdle(1));
    EXPECT_EQ(before, orv::test::heapUse().blocks);
    MSG still = {NULL, WM_PAINT, 0, 0, 0, {}};
    EXPECT_FALSE(theApp.IsIdleMessage(&still));
    MSG mouse = {NULL, WM_MOUSEMOVE, 0, 0, 0, {50, 50}};
    theApp.IsIdleMessage(&mouse);
    ++mouse.pt.x;
    EXPECT_TRUE(theApp.IsIdleMessage(&mouse));
    EXPECT_FALSE(theApp.IsIdleMessage(&mouse)) << "a mouse at rest";
}

} // namespace
