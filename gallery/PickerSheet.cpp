// The pickers as the screen shows them: the page, each list open, the palette with its tip, disabled
// controls.

#include "PickerPage.h"
#include "ScreenCopy.h"
#include "SheetStyle.h"
#include "Sheets.h"

namespace gallery {
namespace {

const CPoint pageAt(48, 120);
const CSize pageSize(730, 420);
constexpr int tilesTop = 600;
constexpr int tileWidth = 240;

void drawTile(CDC& dc, int number, const char* caption, const CRect& from) {
    const CPoint at(48 + number * tileWidth, tilesTop);
    drawCaption(dc, at, caption);
    copyScreen(dc, at + CSize(0, captionRoom), from);
}

void drawPalette(CDC& dc, CColorPicker& picker) {
    picker.SetFocus();
    picker.CreatePaletteWindow();
    for (const WPARAM key : {VK_DOWN, VK_RIGHT, VK_RIGHT}) {
        picker.SendMessage(WM_KEYDOWN, key);
    }
    CRect field, palette;
    picker.GetWindowRect(&field);
    ::GetWindowRect(picker.GetPaletteWindow(), &palette);
    drawCaption(dc, CPoint(832, 120), "调色板");
    copyScreen(dc, CPoint(832, 150), field);
    const CPoint below(832, 150 + palette.top - field.top);
    copyScreen(dc, below, palette);
    copyScreen(dc, below + CSize(0, palette.Height()),
               CRect(palette.left, palette.bottom, palette.left + 110, palette.bottom + 26)); // the tip
    picker.DestroyPaletteWindow();
}

} // namespace

void drawPickerSheet(CDC& dc) {
    drawTitle(dc, "线与填充的选择控件");
    CWnd frame;
    PickerPage* page = NULL;
    if (frame.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, pageSize.cx, pageSize.cy,
                       NULL, NULL)) {
        page = PickerPage::make(frame, 1);
    }
    if (page == NULL) {
        drawNoScreen(dc);
        return;
    }
    page->MoveWindow(0, 0, pageSize.cx, pageSize.cy);
    page->ShowWindow(SW_SHOW);
    frame.ShowWindow(SW_SHOW);
    page->SetFocus();
    frame.UpdateWindow();
    copyScreen(dc, pageAt, CRect(CPoint(0, 0), pageSize));
    drawPalette(dc, page->m_picker);
    const struct {
        CComboBox& combo;
        const char* caption;
    } tiles[] = {{page->m_color, "颜色"},
                 {page->m_style, "线型"},
                 {page->m_width, "线宽"},
                 {page->m_figure, "图案"},
                 {page->m_fill, "填充"}};
    int number = 0;
    for (const auto& tile : tiles) {
        tile.combo.SetFocus();
        tile.combo.ShowDropDown();
        drawTile(dc, number++, tile.caption, withList(tile.combo));
        tile.combo.ShowDropDown(FALSE);
        tile.combo.EnableWindow(FALSE);
    }
    page->m_picker.EnableWindow(FALSE);
    drawCaption(dc, CPoint(832, 330), "不可用");
    copyScreen(dc, CPoint(832, 360), CRect(24 + 110, 24, 24 + 110 + 210, 24 + 3 * 40));
}

} // namespace gallery
