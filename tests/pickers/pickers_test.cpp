#include "pickers_test.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orv::test {

BEGIN_MESSAGE_MAP(CPickerDlg, CDialog)
ON_CONTROL_RANGE(CBN_SELCHANGE, 1, 0x7FFF, &CPickerDlg::OnComboChange)
END_MESSAGE_MAP()

bool CPickerDlg::open() {
    if (!Create(IDD_PICKERS))
        return false;
    // An open list follows the mouse that rests on it.
    moveMouse(1000, 700);
    ShowWindow(SW_SHOW);
    return waitUntil([this] { return ::GetForegroundWindow() == m_hWnd; });
}

std::string CPickerDlg::toldText() const {
    std::string text;
    for (const std::string& line : told)
        text += line + "; ";
    return text;
}

std::string CPickerDlg::toldBy(const std::function<void()>& act, size_t lines) {
    settle();
    told.clear();
    act();
    EXPECT_TRUE(waitUntil([&] { return told.size() >= lines; }));
    settle();
    return toldText();
}

void CPickerDlg::settle() {
    bool arrived = false;
    ::PostMessage(m_hWnd, WM_APP, 0, reinterpret_cast<LPARAM>(&arrived));
    waitUntil([&] { return arrived; });
}

LRESULT CPickerDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP && lParam)
        *reinterpret_cast<bool*>(lParam) = true;
    if (message >= 0xC000) {
        char name[64] = "";
        // Registered messages share their names' table with clipboard formats.
        if (::GetClipboardFormatNameA(message, name, sizeof name) && strncmp(name, "WM_", 3) == 0)
            told.push_back(std::string(name) + " " + std::to_string(wParam) + " " + std::to_string(lParam));
    }
    return CDialog::WindowProc(message, wParam, lParam);
}

bool focusOn(CWnd& window) {
    window.SetFocus();
    return waitUntil([&] { return ::GetFocus() == window.m_hWnd && ::GetForegroundWindow() != NULL; });
}

namespace {

HWND hostWindow;
std::vector<InDialogs::Step> stepsLeft;

void CALLBACK nextStep(HWND, UINT, UINT_PTR, DWORD) {
    const HWND dialog = ::GetForegroundWindow();
    const HWND focus = ::GetFocus();
    if (stepsLeft.empty() || dialog == hostWindow || !focus || !::IsChild(dialog, focus))
        return;
    char kind[16] = "", title[64] = "";
    ::GetClassNameA(dialog, kind, sizeof kind);
    ::GetWindowTextA(dialog, title, sizeof title);
    if (strcmp(kind, "#32770") != 0 || (*stepsLeft[0].title && strcmp(title, stepsLeft[0].title) != 0))
        return;
    const auto act = stepsLeft[0].act;
    stepsLeft.erase(stepsLeft.begin());
    act(dialog);
}

} // namespace

InDialogs::InDialogs(HWND host, std::vector<Step> steps) {
    hostWindow = host;
    stepsLeft = std::move(steps);
    m_timer = ::SetTimer(NULL, 0, 10, nextStep);
}

InDialogs::~InDialogs() {
    ::KillTimer(NULL, m_timer);
    stepsLeft.clear();
}

bool InDialogs::done() const {
    return stepsLeft.empty();
}

InDialogs::Step InDialogs::colors(int red, int green, int blue, WORD key) {
    return {"", [=](HWND dialog) {
                int field = 706;
                for (const int value : {red, green, blue})
                    ::SetDlgItemInt(dialog, field++, value, FALSE);
                pressKey(key);
            }};
}

COMBOBOXINFO partsOf(const CComboBox& combo) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_TRUE(combo.GetComboBoxInfo(&info));
    return info;
}

std::string textsOf(const CComboBox& combo) {
    std::string texts;
    for (int i = 0; i < combo.GetCount(); ++i) {
        CString text;
        combo.GetLBText(i, text);
        texts += std::string(i ? "|" : "") + text.GetString();
    }
    return texts;
}

CRect inked(const Paper& paper, COLORREF background, int left, int right) {
    CRect box(INT_MAX, INT_MAX, INT_MIN, INT_MIN);
    for (int y = 0; y < paper.height; ++y)
        for (int x = left; x < right; ++x)
            if (paper.at(x, y) != background)
                box.SetRect(std::min<int>(box.left, x), std::min<int>(box.top, y),
                            std::max<int>(box.right, x + 1), std::max<int>(box.bottom, y + 1));
    return box;
}

} // namespace orv::test
