#include <afxwin.h>

#include <gtest/gtest.h>

#include "support/debug_events.h"
#include "support/gdi_count.h"

namespace {

TEST(GdiObject, EveryKindIsCreatedDescribedAndDeleted) {
    CPen pen(PS_DASH, 3, RGB(1, 2, 3));
    LOGPEN logPen;
    ASSERT_TRUE(pen.GetLogPen(&logPen));
    EXPECT_EQ(3, logPen.lopnWidth.x);
    EXPECT_EQ(RGB(1, 2, 3), logPen.lopnColor);

    LOGBRUSH red = {BS_SOLID, RGB(255, 0, 0), 0};
    CPen geometric(PS_GEOMETRIC | PS_ENDCAP_FLAT, 7, &red);
    EXPECT_EQ(static_cast<UINT>(OBJ_EXTPEN), geometric.GetObjectType());

    CBrush brush(RGB(9, 8, 7));
    LOGBRUSH logBrush;
    ASSERT_TRUE(brush.GetLogBrush(&logBrush));
    EXPECT_EQ(RGB(9, 8, 7), logBrush.lbColor);

    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, "宋体"));
    LOGFONT logFont;
    ASSERT_TRUE(font.GetLogFont(&logFont));
    CClientDC screen(NULL);
    EXPECT_EQ(-::MulDiv(screen.GetDeviceCaps(LOGPIXELSY), 120, 720), logFont.lfHeight);
    EXPECT_STREQ("宋体", logFont.lfFaceName);

    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(5, 4, 1, 32, NULL));
    BITMAP record;
    ASSERT_TRUE(bitmap.GetBitmap(&record));
    EXPECT_EQ(5, record.bmWidth);
    EXPECT_EQ(4, record.bmHeight);

    struct {
        WORD version, count;
        PALETTEENTRY entries[3];
    } colours = {0x300, 3, {{0, 0, 0, 0}, {255, 255, 255, 0}, {200, 0, 0, 0}}};
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<LPLOGPALETTE>(&colours)));
    EXPECT_EQ(3, palette.GetEntryCount());
    EXPECT_EQ(2u, palette.GetNearestPaletteIndex(RGB(190, 10, 10)));
    ASSERT_TRUE(palette.ResizePalette(5));
    EXPECT_EQ(5, palette.GetEntryCount());

    CRgn left, right, both;
    ASSERT_TRUE(left.CreateRectRgn(0, 0, 10, 10));
    ASSERT_TRUE(right.CreateRectRgn(10, 0, 20, 10));
    ASSERT_TRUE(both.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(SIMPLEREGION, both.CombineRgn(&left, &right, RGN_OR));
    CRect box;
    both.GetRgnBox(&box);
    EXPECT_EQ(CRect(0, 0, 20, 10), box);
    EXPECT_TRUE(both.PtInRegion(15, 5));

    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_FALSE(pen.DeleteObject());
}

TEST(GdiObject, HandlesLeadBackToTheirObjects) {
    EXPECT_EQ(NULL, CPen::FromHandle(NULL));
    CPen* volatile none = NULL;
    EXPECT_EQ(NULL, none->GetSafeHandle());

    CPen own(PS_SOLID, 1, RGB(0, 0, 0));
    EXPECT_EQ(&own, CPen::FromHandle(own));

    HPEN raw = ::CreatePen(PS_SOLID, 2, 0);
    CPen* temporary = CPen::FromHandle(raw);
    ASSERT_TRUE(temporary);
    EXPECT_TRUE(temporary->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(temporary, CPen::FromHandle(raw));
    AfxLockTempMaps();
    EXPECT_TRUE(AfxUnlockTempMaps());
    // Emptying the map must not have deleted the handle, which is not the map's.
    EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), ::GetObjectType(raw));

    CPen owner;
    owner.Attach(raw);
    EXPECT_EQ(&owner, CPen::FromHandle(raw));
    EXPECT_EQ(raw, owner.Detach());
    EXPECT_NE(&owner, CPen::FromHandle(raw));
    ::DeleteObject(raw);

    // A stock brush asked for as a pen is no pen.
    EXPECT_EQ(NULL, CPen::FromHandle(static_cast<HPEN>(::GetStockObject(WHITE_BRUSH))));
}

TEST(GdiObject, SecondCreationAssertsAndDoesNotLeak) {
    const int before = orv::test::liveGdiHandles();
    {
        orv::test::DebugEvents events;
        CBrush brush(RGB(1, 1, 1));
        EXPECT_TRUE(brush.CreateSolidBrush(RGB(2, 2, 2)));
        EXPECT_EQ(1, events.assertions());
    }
    EXPECT_EQ(before, orv::test::liveGdiHandles());
}

TEST(GdiObject, MissingResourceThrowsWhereTheConstructorPromisesAnObject) {
    bool caught = false;
    TRY {
        CBrush brush(static_cast<CBitmap*>(NULL));
    }
    CATCH(CResourceException, e) {
        caught = e->IsKindOf(RUNTIME_CLASS(CResourceException));
    }
    END_CATCH
    EXPECT_TRUE(caught);
}

} // namespace
