// Windows of the foundation against bare window procedures and bare calls.

#include <afxwin.h>

#include "harness.h"

#include <cstring>
#include <vector>

namespace {

LRESULT counted = 0; // so that the handlers do something

class CMappedWnd : public CWnd {
public:
    CMappedWnd() { CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 9, 9, NULL, NULL); }

protected:
    afx_msg LRESULT OnNumber(WPARAM wParam, LPARAM) { return counted += static_cast<LRESULT>(wParam); }
    DECLARE_MESSAGE_MAP()
};

// Forty entries; the last one is asked.
BEGIN_MESSAGE_MAP(CMappedWnd, CWnd)
ON_MESSAGE(WM_USER + 0, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 1, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 2, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 3, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 4, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 5, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 6, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 7, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 8, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 9, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 10, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 11, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 12, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 13, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 14, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 15, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 16, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 17, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 18, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 19, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 20, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 21, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 22, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 23, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 24, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 25, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 26, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 27, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 28, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 29, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 30, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 31, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 32, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 33, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 34, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 35, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 36, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 37, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 38, &CMappedWnd::OnNumber)
ON_MESSAGE(WM_USER + 39, &CMappedWnd::OnNumber)
END_MESSAGE_MAP()

LRESULT CALLBACK bareProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_USER + 39)
        return counted += static_cast<LRESULT>(wParam);
    if (message == WM_DRAWITEM) {
        counted += reinterpret_cast<DRAWITEMSTRUCT*>(lParam)->itemID;
        return TRUE;
    }
    return ::DefWindowProcA(hWnd, message, wParam, lParam);
}

class CDrawnCombo : public CComboBox {
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { counted += lpDrawItemStruct->itemID; }
};

// Thirty controls of the usual kinds.
std::vector<WORD> dialogTemplate() {
    std::vector<WORD> words;
    auto put = [&](std::initializer_list<int> values) {
        for (int value : values)
            words.push_back(static_cast<WORD>(value));
    };
    auto putLong = [&](DWORD value) { put({LOWORD(value), HIWORD(value)}); };
    constexpr int controls = 30;
    putLong(WS_POPUP | WS_CAPTION);
    putLong(0);
    put({controls, 0, 0, 200, 300, 0, 0, 0});
    constexpr int classes[] = {0x0081, 0x0080, 0x0082, 0x0085, 0x0083}; // edit, button, static, combo, list
    for (int i = 0; i < controls; ++i) {
        if (words.size() % 2)
            put({0});
        putLong(WS_CHILD | WS_VISIBLE | WS_TABSTOP);
        putLong(0);
        put({10, i * 10, 50, 10, 1000 + i, 0xFFFF, classes[i % 5], 0, 0});
    }
    return words;
}

INT_PTR CALLBACK bareDialogProc(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

// All windows that the rows need, made before the first is measured: a slow first call would pass for a full
// sample.
struct Windows {
    CMappedWnd mapped;
    HWND bare;
    CDrawnCombo combo;
    DRAWITEMSTRUCT item = {};
    std::vector<WORD> dialog = dialogTemplate();

    Windows() {
        WNDCLASSA bareClass = {};
        bareClass.lpfnWndProc = bareProc;
        bareClass.hInstance = AfxGetInstanceHandle();
        bareClass.lpszClassName = "orv-bench-bare";
        ::RegisterClassA(&bareClass);
        bare = ::CreateWindowExA(0, "orv-bench-bare", "", WS_POPUP, 0, 0, 9, 9, NULL, NULL,
                                 bareClass.hInstance, NULL);
        combo.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED, CRect(0, 0, 9, 9), &mapped, 1);
        item.hwndItem = combo.m_hWnd;
        item.itemID = 1;
    }

    static Windows& the() {
        static Windows& windows = *new Windows;
        return windows;
    }
};

void send(HWND window, UINT message, LPARAM lParam, int times) {
    while (times--)
        ::SendMessageA(window, message, 1, lParam);
    orv::bench::keep(static_cast<double>(counted));
}

void makeDialogs(int times) {
    auto* dialogTemplate = reinterpret_cast<LPCDLGTEMPLATE>(Windows::the().dialog.data());
    while (times--) {
        CDialog dialog;
        dialog.CreateIndirect(dialogTemplate);
        dialog.DestroyWindow();
    }
}

void makeBareDialogs(int times) {
    auto* dialogTemplate = reinterpret_cast<LPCDLGTEMPLATE>(Windows::the().dialog.data());
    while (times--)
        ::DestroyWindow(
            ::CreateDialogIndirectParamW(AfxGetInstanceHandle(), dialogTemplate, NULL, bareDialogProc, 0));
}

const orv::bench::Rows rows([](orv::bench::Suite& suite) {
    Windows::the();
    suite.add({"windows", "a message to the last of 40 entries / bare procedure", 2,
               [](int n) { send(Windows::the().mapped.m_hWnd, WM_USER + 39, 0, n); },
               [](int n) { send(Windows::the().bare, WM_USER + 39, 0, n); }});
    suite.add({"windows", "an owner-drawn item, reflected / bare procedure", 2,
               [](int n) {
                   Windows& w = Windows::the();
                   send(w.mapped.m_hWnd, WM_DRAWITEM, reinterpret_cast<LPARAM>(&w.item), n);
               },
               [](int n) {
                   Windows& w = Windows::the();
                   send(w.bare, WM_DRAWITEM, reinterpret_cast<LPARAM>(&w.item), n);
               }});
    suite.add({"windows", "a dialog of 30 controls made and destroyed / bare calls", 1.2, makeDialogs,
               makeBareDialogs});
});

} // namespace
