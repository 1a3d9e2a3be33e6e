#pragma once

// A dialog with combos to attach to, which keeps what it is told.

#include <orvfc/ORVFC.h>

#include "support/input.h"
#include "support/paper.h"

#include <functional>
#include <string>
#include <vector>

#define IDD_PICKERS 101
#define IDC_COMBO 1000 // owner-drawn, with strings
#define IDC_NO_STRINGS 1001
#define IDC_OTHER 1002  // another focus
#define IDC_BUTTON 1003 // owner-drawn
#define IDC_BUDDY 1004

namespace orv::test {

// Notes registered messages and the notifications of its controls as "name id" lines, in order.
class CPickerDlg : public CDialog {
public:
    std::vector<std::string> told;

    // Creates and shows it, and waits until it has the keyboard.
    bool open();
    std::string toldText() const;
    // What it is told by this from now on; so many lines are waited for.
    std::string toldBy(const std::function<void()>& act, size_t lines);
    // Lets what was posted arrive.
    void settle();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override {}
    // The host's own handler.
    afx_msg void OnComboChange(UINT nID) { told.push_back("CBN_SELCHANGE " + std::to_string(nID)); }
    DECLARE_MESSAGE_MAP()
};

// Waits for it and lets its key messages be processed.
bool focusOn(CWnd& window);

// What a user does in dialogs that turn a loop of their own. Each step waits until its dialog, or with an
// empty title any new dialog, has the keyboard.
class InDialogs {
public:
    struct Step {
        const char* title;
        std::function<void(HWND)> act;
    };
    // host: is none of them.
    InDialogs(HWND host, std::vector<Step> steps);
    ~InDialogs();
    InDialogs(const InDialogs&) = delete;
    InDialogs& operator=(const InDialogs&) = delete;
    bool done() const;
    // The system's dialog of colours, fully open: its fields are filled in and a key ends it.
    static Step colors(int red, int green, int blue, WORD key);

private:
    UINT_PTR m_timer;
};

// The parts of a combo.
COMBOBOXINFO partsOf(const CComboBox& combo);
// What rows 0 to n - 1 are called, separated by bars.
std::string textsOf(const CComboBox& combo);

// What a row is drawn on: in no colour that a row has.
struct Picture : Paper {
    Picture(int w, int h) : Paper(w, h, RGB(1, 2, 3)) {}
};
// Bounding box of the pixels that differ from the colour in the columns from left on.
CRect inked(const Paper& paper, COLORREF background, int left, int right);

} // namespace orv::test
