// The text property page as the screen shows it: new, in a sheet after changes, without permission to change,
// and the lists of its font pickers.

#include "ScreenCopy.h"
#include "SheetStyle.h"
#include "Sheets.h"

#include <orvfc/ORVFC.h>

namespace gallery {
namespace {

const CPoint windowAt(0, 0);

struct Shown {
    const char* caption;
    CPoint at;
};

void copyWindow(CDC& dc, const CWnd& window, const Shown& place) {
    CRect rect;
    window.GetWindowRect(&rect);
    drawCaption(dc, place.at, place.caption);
    copyScreen(dc, place.at + CSize(0, captionRoom), rect);
}

void drawAlone(CDC& dc, CWnd& frame, DWORD enable, const Shown& place) {
    COrvFCDrawTextPropPage page;
    page.m_dwEnable = enable;
    if (!page.Create(IDD_ORV_TEXT_PAGE, &frame))
        return;
    page.SetWindowPos(NULL, windowAt.x, windowAt.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
    page.UpdateWindow();
    copyWindow(dc, page, place);
    page.DestroyWindow();
}

void drawInSheet(CDC& dc, CWnd& frame, const Shown& place) {
    COrvDrawText text;
    text.SetShowContent("线路名称 Line name 1:2000");
    text.LSetTextColor(RGB(0, 0, 192));
    text.LSetRowAlign(1);
    text.LSetColAlign(6);
    text.LSetDrawBorder(TRUE);
    text.LGetOrvFont()->SetFontAttribute("宋体", 22, 0, TRUE, FALSE, TRUE, TRUE);
    COrvFCDrawTextPropPage page;
    page.ExchangeData(&text, 0);
    CPropertySheet sheet("文本");
    sheet.AddPage(&page);
    if (!sheet.Create(&frame, WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_TOPMOST))
        return;
    sheet.SetWindowPos(NULL, windowAt.x, windowAt.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
    page.SetModified(TRUE);
    copyWindow(dc, sheet, place);
    sheet.DestroyWindow();
}

const struct {
    int id;
    Shown place;
} kLists[] = {
    {IDC_ORV_FACE, {"字体", {48, 880}}},         {IDC_ORV_SIZE, {"大小", {290, 880}}},
    {IDC_ORV_SLOPE, {"倾斜", {420, 880}}},       {IDC_ORV_COLOR, {"颜色", {550, 880}}},
    {IDC_ORV_ROW_ALIGN, {"横", {680, 880}}},     {IDC_ORV_COLUMN_ALIGN, {"纵", {800, 880}}},
    {IDC_ORV_ROW_SPACE, {"行间距", {920, 880}}}, {IDC_ORV_CHAR_SPACE, {"字符间距", {1050, 880}}},
};

void drawLists(CDC& dc, CWnd& frame) {
    COrvFCDrawTextPropPage page;
    if (!page.Create(IDD_ORV_TEXT_PAGE, &frame))
        return;
    page.SetWindowPos(NULL, windowAt.x, windowAt.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
    for (const auto& list : kLists) {
        auto& combo = *static_cast<CComboBox*>(page.GetDlgItem(list.id));
        combo.SetFocus();
        combo.ShowDropDown();
        drawCaption(dc, list.place.at, list.place.caption);
        copyScreen(dc, list.place.at + CSize(0, captionRoom), withList(combo));
        combo.ShowDropDown(FALSE);
    }
    page.DestroyWindow();
}

} // namespace

void drawTextPropertySheet(CDC& dc) {
    drawTitle(dc, "文本属性页");
    CWnd frame;
    if (frame.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, 0, 0, 640, 560, NULL,
                       NULL)) {
        drawAlone(dc, frame, ORVTEXT_ALL, {"单独使用", {48, 110}});
        drawInSheet(dc, frame, {"在属性表中，已修改", {640, 110}});
        drawAlone(dc, frame, 0, {"不可修改", {48, 500}});
        drawLists(dc, frame);
    } else {
        drawNoScreen(dc);
    }
}

} // namespace gallery
