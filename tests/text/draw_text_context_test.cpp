// What drawing text does to device contexts, handles and archives, and what bad input does to it.

#include "filled_text.h"
#include "sheet.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "afx/afx_test.h"
#include "support/debug_events.h"
#include "support/gdi_count.h"

using namespace orv::test;

namespace {

// Every attribute of a context, in one comparable line.
std::string stateOf(CDC& dc) {
    const HDC h = dc.m_hDC;
    std::ostringstream state;
    for (const UINT object : {OBJ_FONT, OBJ_PEN, OBJ_BRUSH})
        state << ::GetCurrentObject(h, object) << ' ';
    for (const auto number : {::GetBkMode, ::GetROP2, ::GetTextCharacterExtra, ::GetPolyFillMode,
                              ::GetMapMode, ::GetGraphicsMode})
        state << number(h) << ' ';
    state << ::GetBkColor(h) << ' ' << ::GetTextColor(h) << ' ' << ::GetTextAlign(h) << ' ';
    for (const auto place : {::GetWindowOrgEx, ::GetViewportOrgEx, ::GetCurrentPositionEx, ::GetBrushOrgEx}) {
        POINT p;
        place(h, &p);
        state << p.x << ',' << p.y << ' ';
    }
    for (const auto extent : {::GetWindowExtEx, ::GetViewportExtEx}) {
        SIZE size;
        extent(h, &size);
        state << size.cx << ',' << size.cy << ' ';
    }
    RECT clip;
    ::GetClipBox(h, &clip);
    state << clip.left << ',' << clip.top << ',' << clip.right << ',' << clip.bottom;
    return state.str();
}

void unusual(CDC& dc) {
    dc.SelectStockObject(WHITE_PEN);
    dc.SelectStockObject(GRAY_BRUSH);
    dc.SelectStockObject(ANSI_FIXED_FONT);
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(0x123456);
    dc.SetTextColor(0x654321);
    dc.SetROP2(R2_XORPEN);
    dc.SetTextAlign(TA_BASELINE | TA_CENTER | TA_UPDATECP);
    dc.SetTextCharacterExtra(5);
    dc.SetPolyFillMode(WINDING);
    dc.MoveTo(11, 12);
}

void full(COrvDrawText& text) {
    text.LSetBkMode(OPAQUE);
    text.LSetDrawBorder(TRUE);
    text.LSetDrawShade(TRUE);
    text.LSetRowAlign(1);
    text.LSetColAlign(6);
    text.LSetCharDist(1);
}

void everyOperation(COrvDrawText& text, CDC& dc) {
    int count;
    const CString paragraph("京沪铁路 The line\r\nfrom 北京 to 上海");
    text.Draw(&dc, paragraph);
    text.Draw(&dc);
    text.Draw2(&dc, paragraph);
    text.GetSingleText(&dc, paragraph, CSize(50, 20), count);
    text.DrawSingleText(&dc, "一", CRect(0, 0, 90, 20));
    text.DrawClueText(&dc, CRect(0, 0, 90, 20), "提示");
    text.AutoCacuBound(&dc, paragraph);
}

TEST(DrawTextContext, ComesBackAsItWas) {
    CClientDC screen(NULL);
    CDC memory;
    memory.CreateCompatibleDC(NULL);
    CDC fine; // 600 dots an inch under units of 1/1000 inch, unlike in x and y
    fine.CreateCompatibleDC(NULL);
    fine.SetMapMode(MM_ANISOTROPIC);
    fine.SetWindowExt(1000, 500);
    fine.SetViewportExt(600, -600);
    fine.SetViewportOrg(7, 9);
    CMetaFileDC file;
    file.CreateEnhanced(NULL, NULL, NULL, NULL);
    for (CDC* dc : std::initializer_list<CDC*>{&screen, &memory, &fine, &file})
        for (const double degrees : {0.0, 30.0, 90.0, 200.0}) {
            const int saved = dc->SaveDC();
            unusual(*dc);
            const std::string before = stateOf(*dc);
            Block block(150, degrees * kDegree, 100);
            full(block);
            everyOperation(block, *dc);
            EXPECT_EQ(before, stateOf(*dc));
            EXPECT_EQ(saved + 1, dc->SaveDC()) << "states left behind";
            dc->RestoreDC(saved);
        }
    ::DeleteEnhMetaFile(file.CloseEnhanced());
}

TEST(DrawTextContext, AnAttributeContextKeepsItsOwnSavedStates) {
    CDC attributes;
    attributes.CreateCompatibleDC(NULL);
    attributes.SaveDC();
    unusual(attributes);
    const std::string before = stateOf(attributes);
    drawn([&](CDC& dc) {
        const HDC own = dc.m_hAttribDC;
        dc.SetAttribDC(attributes.m_hDC);
        Block block(60);
        block.Draw(&dc, "京沪铁路");
        dc.SetAttribDC(own);
    });
    EXPECT_EQ(before, stateOf(attributes));
}

TEST(DrawTextContext, SameLinesUnderAnyScale) {
    Block block(150, 0, 100);
    const CString paragraph("京沪铁路 The line from 北京 to 上海");
    const Seen plain = drawn(block, paragraph);
    ASSERT_LT(2u, plain.size());
    const Seen fine = drawn([&](CDC& dc) {
        dc.SetMapMode(MM_ANISOTROPIC);
        dc.SetWindowExt(96, 96);
        dc.SetViewportExt(600, 600);
        block.Draw(&dc, paragraph);
    });
    ASSERT_EQ(plain.size(), fine.size());
    for (int i = 0; i < int(plain.size()); ++i) {
        int at[2][2], text[2];
        sscanf(plain[i].c_str(), "text %d,%d %n", &at[0][0], &at[0][1], &text[0]);
        sscanf(fine[i].c_str(), "text %d,%d %n", &at[1][0], &at[1][1], &text[1]);
        EXPECT_EQ(plain[i].substr(text[0]), fine[i].substr(text[1]));
        EXPECT_EQ(at[0][0], at[1][0]) << plain[i];
        // A row's height is rounded in dots: up to one unit with each.
        EXPECT_NEAR(at[0][1], at[1][1], i) << plain[i];
    }
}

TEST(DrawTextContext, AContextWithoutAttributesMeasuresOnItsOutput) {
    Block block(60);
    const CString paragraph("京沪铁路 The line");
    EXPECT_EQ(drawn(block, paragraph), drawn([&](CDC& dc) {
                  dc.ReleaseAttribDC();
                  block.Draw(&dc, paragraph);
              }));
}

TEST(DrawTextContext, LabelsReuseTheirFontAndLeaveNothing) {
    CDC dc;
    dc.CreateCompatibleDC(NULL);
    COrvDrawText label;
    full(label);
    label.SetShowRect(CRect(0, 0, 80, 20));
    label.Draw(&dc, "站");
    const HGDIOBJ font = label.LGetOrvFont()->GetFont()->m_hObject;
    const int before = liveGdiHandles();
    for (int i = 0; i < 1000; ++i) {
        label.SetShowRect(CRect(i, i, i + 80, i + 20));
        label.Draw(&dc, "站");
        label.Draw2(&dc, "站");
    }
    EXPECT_EQ(font, label.LGetOrvFont()->GetFont()->m_hObject);
    for (int i = 0; i < 100; ++i) {
        COrvDrawText copy(label);
        copy.LSetFPRect(CFPRect(0, 0, 80, 20, i * 0.1));
        everyOperation(copy, dc);
        label = copy;
    }
    EXPECT_EQ(before, liveGdiHandles());
}

TEST(DrawTextContext, ChangesOfTheFontAreSeen) {
    Block block(1000);
    drawn(block, "a");
    block.LGetOrvFont()->SetFontHeight(-40, "宋体", FALSE);
    const LONG pitch = Ruler(block).pitch(4);
    EXPECT_EQ(textLine(100, 200 + pitch, "b"), drawn(block, "a\rb")[1]);
}

TEST(DrawTextContext, WithoutAContextNothingHappens) {
    DebugEvents events;
    COrvDrawText text;
    CDC none;
    int count;
    for (CDC* dc : {static_cast<CDC*>(NULL), &none}) {
        text.Draw(dc, "a");
        text.Draw2(dc, "a");
        text.DrawSingleText(dc, "a", CRect());
        text.DrawClueText(dc, CRect(), "a");
        EXPECT_EQ(CString(), text.GetSingleText(dc, "a", CSize(9, 9), count));
        EXPECT_FALSE(text.SetDCPath(dc));
        EXPECT_FALSE(text.AutoCacuBound(dc, "a"));
    }
    text.SetFontAngle(NULL);
#ifdef _DEBUG
    EXPECT_EQ(15, events.assertions());
#endif
}

TEST(DrawTextContext, BadInputIsHarmless) {
    const double nan = std::numeric_limits<double>::quiet_NaN(),
                 inf = std::numeric_limits<double>::infinity();
    const LONG most = std::numeric_limits<LONG>::max();
    CDC dc;
    dc.CreateCompatibleDC(NULL);
    const std::string before = stateOf(dc);
    const CString texts[] = {"",
                             CString("\0\0a", 3),
                             CString("a\0b", 3),
                             "\xD6",
                             "a\xD6\r\xFF\xFF\r",
                             "\b\b\b",
                             "\r\r\r",
                             "\n\n",
                             "\x80\x80\x80",
                             "a\xD6\r\n",
                             CString('x', 3000)};
    const CFPRect rects[] = {{0, 0, 0, 0, 0},
                             {50, 50, -50, -50, 1},
                             {0, 0, 9, 9, nan},
                             {0, 0, 100, 100, inf},
                             {0, 0, 100, 100, 1e300},
                             {-most, -most, most, most, 0.3},
                             {most, most, -most, -most, 0},
                             {most - 5, most - 5, most, most, 2}};
    for (const CString& text : texts)
        for (const CFPRect& rect : rects)
            for (int flags = 0; flags < 16; ++flags) {
                COrvDrawText block;
                full(block);
                block.LSetSingleline(flags & 1);
                block.LSetAutoLinefeed(flags & 2);
                block.LSetAutoClip(flags & 4);
                block.LSetAutoCacuBound(flags & 8);
                block.LSetRowDist(flags & 1 ? most : -most);
                block.LSetCharDist(flags & 4 ? -most : 40);
                block.LSetRop2(flags * 1000);
                block.LSetFPRect(rect);
                block.LGetOrvFont()->SetFontHeight(0, "", FALSE);
                block.SetShowContent(text);
                everyOperation(block, dc);
                CFPRect measured(rect);
                CPoint point(most, -most);
                block.GetAutoRect2(measured, text);
                block.GetAutoRect(measured, point, rect.angle);
                ASSERT_EQ(before, stateOf(dc));
            }
}

TEST(DrawTextStored, AsTold) {
    COrvDrawText text;
    fill(text);
    const std::string expected = stored([&](CArchive& ar) {
        for (int field = 21; field <= 36; ++field)
            ar << field;
        ar << LONG(6) << 6.0 << CString("内容");
        text.LGetOrvFont()->Serialize(ar);
        CFPRect(1, 2, 3, 4, 0.5).Serialize(ar);
    });
    EXPECT_EQ(toHex(expected), toHex(serialized(text)));

    COrvDrawText loaded;
    ASSERT_EQ(CArchiveException::none, deserialized(loaded, expected));
    EXPECT_EQ(toHex(expected), toHex(serialized(loaded))); // the font is made anew: storing asks it
    EXPECT_EQ(UINT(TRANSPARENT), loaded.LGetBkMode());
    EXPECT_FALSE(loaded.LGetDrawShade());
    EXPECT_EQ(0, loaded.LGetSingleRowHeight());
    EXPECT_FALSE(loaded.LGetAutoCacuBound());

    COrvDrawText copy(text);
    text.init();
    EXPECT_EQ(30u, text.LGetDrawMode());
    EXPECT_EQ(toHex(expected), toHex(serialized(copy)));
    EXPECT_EQ(37u, copy.LGetBkMode());
    EXPECT_EQ(38, copy.LGetDrawShade());
    EXPECT_EQ(39, copy.LGetSingleRowHeight());
    EXPECT_EQ(40, copy.LGetAutoCacuBound());
}

TEST(DrawTextStored, ACutArchiveChangesNothing) {
    COrvDrawText text, kept;
    fill(text);
    const std::string whole = serialized(text), before = serialized(kept);
    const int handles = liveGdiHandles();
    for (size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(CArchiveException::endOfFile, deserialized(kept, whole.substr(0, length))) << length;
        EXPECT_EQ(before, serialized(kept)) << length;
    }
    EXPECT_EQ(handles, liveGdiHandles());
}

TEST(DrawTextStored, DefaultsOfBothKinds) {
    COrvDrawText fresh, label;
    fill(label);
    label.LSetDrawMode(0);
    label.init();
    EXPECT_EQ(serialized(fresh), serialized(label));
    EXPECT_EQ(CString("显示内容"), fresh.GetShowContent());
    EXPECT_TRUE(fresh.LGetSingleline() && fresh.LGetRop2() == R2_COPYPEN);
    fill(label);
    label.InitSingleText();
    EXPECT_EQ(0, label.LGetRowDist());
    EXPECT_FALSE(label.LGetAutoLinefeed());
    EXPECT_EQ(9, label.LGetOrvFont()->GetFontSize());
    EXPECT_EQ(CString("宋体"), label.LGetOrvFont()->GetFontName());
    EXPECT_EQ(0, label.LGetFPRect().right);
    EXPECT_EQ(30u, label.LGetDrawMode());
    EXPECT_EQ(36, label.LGetDrawFontLine());
    EXPECT_EQ(39, label.LGetSingleRowHeight());
    EXPECT_EQ(CString("内容"), label.GetShowContent());
}

} // namespace
