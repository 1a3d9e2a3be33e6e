// Data between controls and members: what is accepted, what is refused and how the user learns of it.

#include "window_test.h"

#include <float.h>
#include <functional>
#include <limits.h>
#include <thread>

using namespace orv::test;

namespace {

class CFieldsDlg : public CDialog {
public:
    std::function<void(CDataExchange*)> m_exchange;
    int m_nEdits = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        if (m_exchange)
            m_exchange(pDX);
    }
    afx_msg void OnEdited() { ++m_nEdits; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CFieldsDlg, CDialog)
ON_EN_CHANGE(IDC_EDIT, &CFieldsDlg::OnEdited)
END_MESSAGE_MAP()

class Exchange : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dialog.Create(IDD_FIELDS)); }

    CString edit() {
        CString text;
        dialog.GetDlgItemText(IDC_EDIT, text);
        return text;
    }

    // Shows the value, reads it back, then reads each text.
    template <class T>
    void check(
        T shown, const char* text, std::initializer_list<std::pair<const char*, T>> accepted,
        std::initializer_list<const char*> refused,
        std::function<void(CDataExchange*, T&)> verify = [](CDataExchange*, T&) {}) {
        T value = shown;
        dialog.m_exchange = [&](CDataExchange* pDX) {
            DDX_Text(pDX, IDC_EDIT, value);
            verify(pDX, value);
        };
        EXPECT_TRUE(dialog.UpdateData(FALSE));
        EXPECT_STREQ(text, edit());
        for (const auto& row : accepted) {
            dialog.SetDlgItemText(IDC_EDIT, row.first);
            EXPECT_TRUE(dialog.UpdateData(TRUE)) << row.first;
            EXPECT_EQ(row.second, value) << row.first;
        }
        for (const char* row : refused) {
            dialog.SetDlgItemText(IDC_EDIT, row);
            EXPECT_FALSE(dialog.UpdateData(TRUE)) << row;
            const Messages messages = takeMessages();
            ASSERT_EQ(1u, messages.size()) << row;
            complaint = messages[0];
            EXPECT_EQ(::GetDlgItem(dialog.m_hWnd, IDC_EDIT), ::GetFocus()) << row;
            const auto marked = static_cast<DWORD>(dialog.SendDlgItemMessage(IDC_EDIT, EM_GETSEL));
            const int length = ::GetWindowTextLengthW(::GetDlgItem(dialog.m_hWnd, IDC_EDIT));
            EXPECT_EQ(DWORD(MAKELONG(0, length)), marked) << row;
        }
    }

    CFieldsDlg dialog;
    std::string complaint; // about the value refused last
};

TEST_F(Exchange, NumbersAreReadWholeOrRefused) {
    dialog.ShowWindow(SW_SHOW);
    check<int>(-5, "-5", {{"7", 7}, {" 12 ", 12}, {"-2147483648", INT_MIN}, {"+3", 3}},
               {"", "x", "1x", "1.5", "2147483648", "99999999999999999999"});
    check<UINT>(4000000000u, "4000000000", {{"4294967295", UINT_MAX}}, {"-1", "4294967296"});
    check<long>(LONG_MIN, "-2147483648", {{"0", 0}}, {"2147483648"});
    check<DWORD>(4000000000u, "4000000000", {{"1", 1}}, {"-1"});
    check<short>(-7, "-7", {{"32767", SHRT_MAX}}, {"32768"});
    check<BYTE>(200, "200", {{"255", 255}}, {"256", "-1"});
    check<double>(0.1, "0.1", {{"1e3", 1000}, {"-.5", -0.5}}, {"", "1,5", "nan", "inf", "1e999", "5 m"});
    check<float>(0.1f, "0.1", {{"2.5", 2.5f}}, {"1e39"});
}

TEST_F(Exchange, LimitsAreAllowedValues) {
    dialog.ShowWindow(SW_SHOW);
    check<int>(5, "5", {{"1", 1}, {"100", 100}}, {"0", "101"},
               [](CDataExchange* pDX, int& v) { DDV_MinMaxInt(pDX, v, 1, 100); });
    check<UINT>(5, "5", {{"1", 1}}, {"0", "4294967295"},
                [](CDataExchange* pDX, UINT& v) { DDV_MinMaxUInt(pDX, v, 1, 100); });
    check<double>(5, "5", {{"0.5", 0.5}, {"9.5", 9.5}}, {"0.49", "9.51"},
                  [](CDataExchange* pDX, double& v) { DDV_MinMaxDouble(pDX, v, 0.5, 9.5); });
    EXPECT_EQ("请键入 0.5 到 9.5 之间的数。", complaint);
    check<BYTE>(5, "5", {{"3", 3}}, {"2", "8"},
                [](CDataExchange* pDX, BYTE& v) { DDV_MinMaxByte(pDX, v, 3, 7); });
    check<CString>("", "", {{"四个汉字", "四个汉字"}}, {"五个汉字了"},
                   [](CDataExchange* pDX, CString& v) { DDV_MaxChars(pDX, v, 8); });
    // A member out of range is shown, not complained about.
    int value = 500;
    dialog.m_exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_EDIT, value);
        DDV_MinMaxInt(pDX, value, 1, 100);
    };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(Messages(), takeMessages());
    EXPECT_STREQ("500", edit());
}

TEST_F(Exchange, ButtonsListsAndBars) {
    // What is shown comes back, and after a change the other value does.
    const auto both = [&](auto exchange, int id, auto shown, auto changed, std::function<void()> change) {
        auto value = shown;
        dialog.m_exchange = [&](CDataExchange* pDX) { exchange(pDX, id, value); };
        EXPECT_TRUE(dialog.UpdateData(FALSE));
        EXPECT_TRUE(dialog.UpdateData(TRUE));
        EXPECT_EQ(shown, value) << id;
        change();
        EXPECT_TRUE(dialog.UpdateData(TRUE));
        EXPECT_EQ(changed, value) << id;
    };
    const auto send = [&](int id, UINT message, WPARAM wParam) {
        return [=, this] { dialog.SendDlgItemMessage(id, message, wParam); };
    };
    for (const char* text : {"一", "二", "三"}) {
        dialog.SendDlgItemMessage(IDC_COMBO, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        dialog.SendDlgItemMessage(IDC_DROPLIST, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        dialog.SendDlgItemMessage(IDC_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    both(DDX_Check, IDC_CHECK, 1, 0, [&] { dialog.CheckDlgButton(IDC_CHECK, 0); });
    const auto radio = [&](int id) {
        return [=, this] { dialog.CheckRadioButton(IDC_RADIO1, IDC_RADIO3, id); };
    };
    both(DDX_Radio, IDC_RADIO1, -1, 2, radio(IDC_RADIO3));
    both(DDX_Radio, IDC_RADIO1, 1, 0, radio(IDC_RADIO1));
    EXPECT_EQ(IDC_RADIO1, dialog.GetCheckedRadioButton(IDC_RADIO1, IDC_RADIO3));
    both(DDX_CBIndex, IDC_COMBO, 2, 0, send(IDC_COMBO, CB_SETCURSEL, 0));
    both(DDX_LBIndex, IDC_LIST, -1, 1, send(IDC_LIST, LB_SETCURSEL, 1));
    both(DDX_CBString, IDC_COMBO, CString("不在表中"), CString("键入"),
         [&] { dialog.SetDlgItemText(IDC_COMBO, "键入"); });
    both(DDX_CBString, IDC_DROPLIST, CString("二"), CString("三"), send(IDC_DROPLIST, CB_SETCURSEL, 2));
    both(DDX_LBString, IDC_LIST, CString("三"), CString(), send(IDC_LIST, LB_SETCURSEL, WPARAM(-1)));
    dialog.GetDlgItem(IDC_SCROLL)->SetScrollRange(SB_CTL, 0, 50);
    both(DDX_Scroll, IDC_SCROLL, 20, 7, [&] { dialog.GetDlgItem(IDC_SCROLL)->SetScrollPos(SB_CTL, 7); });
}

TEST_F(Exchange, ControlsAreTakenOverOnceAndTheRestIsTold) {
    CEdit control;
    dialog.m_exchange = [&](CDataExchange* pDX) { DDX_Control(pDX, IDC_EDIT, control); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.GetDlgItem(IDC_EDIT), &control);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    int value = 3;
    dialog.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, 4711, value); };
    DebugEvents events;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_NE(std::string::npos, events.text().find("there is no control 4711"));
    EXPECT_EQ(3, value);
}

TEST_F(Exchange, AFixedBufferKeepsWholeCharacters) {
    char buffer[] = "......";
    const struct {
        int room;
        const char* text;
    } rows[] = {{0, "......"}, {1, ""}, {3, "a"}, {4, "a文"}, {6, "a文b"}};
    for (const auto& row : rows) {
        strcpy(buffer, "......");
        dialog.SetDlgItemText(IDC_EDIT, "a文b");
        dialog.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_EDIT, buffer, row.room); };
        EXPECT_TRUE(dialog.UpdateData(TRUE));
        EXPECT_STREQ(row.text, buffer) << row.room;
    }
}

TEST(ThreadObject, IsTheApplicationInItsOwnThreadOnly) {
    EXPECT_EQ(&theApp, AfxGetThread());
    CWinThread* other = &theApp;
    std::thread([&] { other = AfxGetThread(); }).join();
    EXPECT_EQ(NULL, other);
}

TEST_F(Exchange, ControlsAreNotHeardDuringTheExchange) {
    dialog.SetDlgItemText(IDC_EDIT, "a");
    EXPECT_EQ(1, dialog.m_nEdits);
    CString text = "b";
    dialog.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_EDIT, text); };
    dialog.UpdateData(FALSE);
    EXPECT_EQ(1, dialog.m_nEdits);
    EXPECT_STREQ("b", edit());
    dialog.SetDlgItemText(IDC_EDIT, "c");
    EXPECT_EQ(2, dialog.m_nEdits);
}

} // namespace
