// The outlook bar in its states: both views, hover, a drag, renaming, a pressed arrow.

#include "BarIcons.h"
#include "SheetStyle.h"
#include "Sheets.h"

#include <orvfc/ORVFC.h>

namespace gallery {
namespace {

constexpr int width = 170, height = 420;

// A bar in a hidden window, and what is under way in it.
class ShownBar {
public:
    bool make() {
        if (!m_frame.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, width, height, NULL, NULL) ||
            !bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &m_frame, 1,
                        OUTBAR_DEFAULT_FLAGS & ~OUTBAR_ANIMATE)) {
            return false;
        }
        makeBarIcons(m_large, 32);
        makeBarIcons(m_small, 16);
        bar.SetImageList(&m_large, 0);
        bar.SetImageList(&m_small, 1);
        for (const char* folder : {"图形", "控件", "服务"}) {
            bar.AddFolder(folder);
        }
        int image = 0;
        for (const char* item : {"线型", "文字与字体", "位图", "一个较长的名称，在图标下面分成几行显示",
                                 "时间刻度", "颜色", "对齐", "字体", "字号"}) {
            bar.InsertItem(0, -1, item, image++ % barIcons);
        }
        return true;
    }

    void draw(CDC& dc, CPoint at, const char* caption) {
        drawCaption(dc, at, caption);
        const int saved = dc.SaveDC();
        dc.OffsetViewportOrg(at.x, at.y + captionRoom);
        bar.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.m_hDC), PRF_CLIENT);
        for (CWnd* child = bar.GetTopWindow(); child != NULL; child = child->GetWindow(GW_HWNDNEXT)) {
            CRect place;
            child->GetWindowRect(&place);
            bar.ScreenToClient(&place);
            dc.FillSolidRect(place, RGB(0, 0, 0));
            place.DeflateRect(1, 1);
            dc.FillSolidRect(place, bar.m_crWindow2);
            dc.OffsetViewportOrg(place.left, place.top);
            child->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.m_hDC), PRF_CLIENT);
            dc.OffsetViewportOrg(-place.left, -place.top);
        }
        dc.RestoreDC(saved);
    }

    CGfxOutBarCtrl bar;

private:
    CWnd m_frame;
    CImageList m_large, m_small;
};

const struct {
    const char* caption;
    void (*prepare)(CGfxOutBarCtrl& bar);
} states[] = {
    {"大图标", [](CGfxOutBarCtrl&) {}},
    {"小图标", [](CGfxOutBarCtrl& bar) { bar.SetSmallIconView(true); }},
    {"鼠标指向，已选中",
     [](CGfxOutBarCtrl& bar) {
         bar.m_nLastItemHighlighted = 1;
         bar.m_nLastFolderHighlighted = 1;
         bar.m_nSelItem = 2;
     }},
    {"滚动",
     [](CGfxOutBarCtrl& bar) {
         bar.ScrollItems(2);
         bar.m_bDownPressed = true;
     }},
    {"拖动",
     [](CGfxOutBarCtrl& bar) {
         bar.m_nLastDragItemDraw = 2;
         bar.m_nLastDragItemDrawType = 1;
     }},
    {"改名", [](CGfxOutBarCtrl& bar) { bar.StartItemEdit(1); }},
    {"小图标改名",
     [](CGfxOutBarCtrl& bar) {
         bar.SetSmallIconView(true);
         bar.StartItemEdit(3);
     }},
    {"文件夹改名，底色渐变",
     [](CGfxOutBarCtrl& bar) {
         bar.m_crBackground = RGB(40, 70, 120);
         bar.m_crBackground2 = RGB(150, 180, 220);
         bar.SetSelFolder(1);
         bar.InsertItem(1, -1, "按钮", 1);
         bar.StartGroupEdit(2);
     }},
    {"停用",
     [](CGfxOutBarCtrl& bar) {
         bar.m_nSelItem = 1;
         bar.EnableWindow(FALSE);
     }},
    {"空间很小", [](CGfxOutBarCtrl& bar) { bar.MoveWindow(0, 0, 110, 150); }},
};

} // namespace

void drawOutBarSheet(CDC& dc) {
    drawTitle(dc, "文件夹栏");
    int number = 0;
    for (const auto& state : states) {
        ShownBar shown;
        if (!shown.make()) {
            drawNoScreen(dc);
            break;
        }
        state.prepare(shown.bar);
        shown.draw(dc, CPoint(48 + number % 5 * 240, 110 + number / 5 * (height + 70)), state.caption);
        ++number;
    }
}

} // namespace gallery
