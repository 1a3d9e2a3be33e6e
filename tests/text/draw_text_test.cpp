// Blocks of text, read back from a metafile.

#include "sheet.h"

#include <gtest/gtest.h>

#include <limits>

#include "orvfc/text/TextContext.h"
#include "support/paper.h"

using namespace orv::test;

TEST(DrawText, LinesStandAcrossTheAngle) {
    for (const int degrees : {0, 30, 90, 200, -45})
        for (const UINT align : {0u, 1u, 2u, 3u}) {
            const double a = degrees * kDegree;
            Block block(500, a);
            block.LSetRowAlign(align);
            block.LSetRowDist(3);
            block.LSetCharDist(2);
            Ruler ruler(block);
            const LONG pitch = ruler.pitch(3);
            Seen expected;
            LONG x = 100, y = 200;
            for (const char* line : {"铁路", "Railway", "线"}) {
                const LONG spare = 500 - ruler.width(line);
                const LONG d = align == 1 ? spare / 2 : align == 2 ? spare : 0;
                expected.push_back(textLine(x + int(d * cos(a)), y - int(d * sin(a)), line, degrees * 10));
                x += int(pitch * sin(a));
                y += int(pitch * cos(a));
            }
            EXPECT_EQ(expected, drawn(block, "铁路\r\nRailway\r线")) << degrees << " " << align;
        }
}

TEST(DrawText, AFixedRowHeightSpacesLines) {
    Block block;
    block.LSetSingleRowHeight(30);
    EXPECT_EQ((Seen{textLine(100, 200, "a"), textLine(100, 260, "b")}), drawn(block, "a\r\n\r\nb"));
    block.LSetSingleRowHeight(-30);
    EXPECT_EQ((Seen{textLine(100, 200, "a"), textLine(100, 200 + Ruler(block).pitch(4), "b")}),
              drawn(block, "a\r\nb"));
}

TEST(DrawText, BlocksAreAlignedByTheirMeasure) {
    Block block(500, 0, 301);
    Ruler ruler(block);
    const LONG height = 2 * ruler.pitch(4);
    const CFPRect before = block.LGetFPRect();
    block.LSetColAlign(6);
    EXPECT_EQ(textLine(100, 350 - height / 2 + ruler.fontHeight() / 2, "ab"), drawn(block, "ab\rc")[0]);
    block.LSetColAlign(7);
    EXPECT_EQ(textLine(100, 501 - height, "ab"), drawn(block, "ab\rc")[0]);
    EXPECT_EQ(before.top, block.LGetFPRect().top);
    EXPECT_EQ(Seen{}, drawn(block, ""));
    EXPECT_EQ(501, block.LGetFPRect().top); // no line, no height, and the top stays there
}

TEST(DrawText, ClipsAtTheBottomAndInNarrowBoxes) {
    Block block(500);
    const LONG pitch = Ruler(block).pitch(4), wide = Ruler(block).width("中");
    block.LSetAutoClip(TRUE);
    block.SetShowRect(CRect(100, 200, 600, 200 + 2 * pitch));
    EXPECT_EQ(2u, drawn(block, "a\rb\rc").size());
    block.SetShowRect(CRect(100, 200, 600, 199 + 2 * pitch));
    EXPECT_EQ(1u, drawn(block, "a\rb\rc").size());
    block.LSetBkMode(OPAQUE);
    block.LSetDrawBorder(TRUE);
    block.SetShowRect(CRect(100, 200, 99 + wide, 600));
    EXPECT_EQ(Seen{}, drawn(block, "中a"));
    EXPECT_EQ(200, block.LGetFPRect().top);
    EXPECT_NE(Seen{}, drawn(block, "a中"));
    block.LSetAutoClip(FALSE);
    block.LSetDrawMode(1);
    EXPECT_EQ((Seen{textLine(100, 200, "中"), textLine(100, 200 + pitch, "a")}), drawn(block, "中a"));
}

TEST(DrawText, KeepsToItsLineRules) {
    Block block;
    const LONG width = Ruler(block).width("中文"), pitch = Ruler(block).pitch(4);
    block.SetShowRect(CRect(100, 200, 100 + width, 300));
    EXPECT_EQ((Seen{textLine(100, 200, "中文"), textLine(100, 200 + pitch, "字")}), drawn(block, "中文字"));
    block.LSetAutoLinefeed(FALSE);
    EXPECT_EQ((Seen{textLine(100, 200, "中文字体")}), drawn(block, "中文字体"));
    block.LSetSingleline(TRUE);
    EXPECT_EQ((Seen{textLine(100, 200, "中文")}), drawn(block, "中文\r字"));
    EXPECT_EQ((Seen{textLine(100, 200, "中文字")}), drawn(block, CString("中文字\0体", 9)));
}

TEST(DrawText, FillsFramesAndShadesTheTurnedRectangle) {
    Block block(200, 90 * kDegree, 100);
    block.LSetBkMode(OPAQUE);
    block.LSetBkColor(0x112233);
    block.LSetTextColor(0x0000FF);
    block.LSetDrawBorder(TRUE);
    block.LSetBorderColor(0x445566);
    block.LSetDrawShade(TRUE);
    char shade[80];
    snprintf(shade, sizeof(shade), "region 106,6 206,206 fill %06X",
             unsigned(::GetSysColor(COLOR_3DDKSHADOW)));
    const Seen seen = drawn(block, "a");
    ASSERT_EQ(4u, seen.size());
    EXPECT_EQ("block 100,200 200,200 200,0 100,0 w0 000000 fill 112233", seen[0]);
    EXPECT_EQ(textLine(100, 200, "a", 900, 0x0000FF), seen[1]);
    EXPECT_EQ("path w1 445566", seen[2]);
    EXPECT_EQ(shade, seen[3]);
    block.LSetDrawMode(1);
    EXPECT_EQ(Seen{seen[1]}, drawn(block, "a"));
}

TEST(DrawText, BorderRunsAlongTheSides) {
    Paper paper(100, 100);
    COrvDrawText text;
    text.SetShowRect(CRect(10, 20, 90, 80));
    text.LSetDrawBorder(TRUE);
    text.LSetBorderColor(0x0000FF);
    text.LSetDrawShade(TRUE);
    text.Draw(&paper.dc, " ");
    for (const CPoint p : {CPoint(10, 20), CPoint(10, 50), CPoint(50, 20), CPoint(90, 22), CPoint(12, 80)})
        EXPECT_EQ(0x0000FFu, paper.at(p.x, p.y)) << p.x << "," << p.y;
    const COLORREF shade = ::GetSysColor(COLOR_3DDKSHADOW);
    for (const CPoint p : {CPoint(90, 50), CPoint(50, 80), CPoint(95, 85)})
        EXPECT_EQ(shade, paper.at(p.x, p.y)) << p.x << "," << p.y;
    for (const CPoint p : {CPoint(50, 50), CPoint(93, 22), CPoint(12, 83), CPoint(97, 87)})
        EXPECT_EQ(kWhite, paper.at(p.x, p.y)) << p.x << "," << p.y;
}

TEST(DrawText, MeasuresWhatItDraws) {
    Block block;
    Ruler ruler(block);
    const LONG width = ruler.width("中文"), pitch = ruler.pitch(4);
    struct Row {
        const char* name;
        BOOL single, feed;
        LONG room;
        const char* text;
        LONG width, lines;
    } const rows[] = {
        {"single", TRUE, TRUE, 0, "中文", width, 1},
        {"single, whole", TRUE, TRUE, 0, "中\r文", ruler.width("中\r文"), 1},
        {"single, empty", TRUE, TRUE, 70, "", 0, 1},
        {"empty", FALSE, TRUE, 70, "", 0, 0},
        {"broken", FALSE, TRUE, width, "中文字", width, 2},
        {"narrow", FALSE, TRUE, 0, "中文字", ruler.width("中"), 3},
        {"returns", FALSE, TRUE, 1000, "a\r\n\r中文\r\n", width, 3},
        {"without line feed", FALSE, FALSE, width, "中文\r中文字\r\n文", ruler.width("中文字\r\n文"), 2},
    };
    for (const Row& row : rows) {
        block.LSetSingleline(row.single);
        block.LSetAutoLinefeed(row.feed);
        CFPRect rect(7, 8, 7 + row.room, 9, 0.5);
        EXPECT_TRUE(block.GetAutoRect(rect, row.text));
        EXPECT_EQ(CFPRect(7, 8, 7 + row.width, 8 + row.lines * pitch, 0.5).GetBottom(), rect.bottom)
            << row.name;
        EXPECT_EQ(row.width, rect.GetWidth()) << row.name;
        EXPECT_EQ(7, rect.left);
        EXPECT_EQ(8, rect.top);
        EXPECT_EQ(0.5, rect.angle);
    }
}

TEST(DrawText, OtherWaysToMeasure) {
    Block block(1000, 0.5);
    block.SetShowContent("中\b文字");
    Ruler ruler(block);
    const LONG pitch = ruler.pitch(4);
    CFPRect rect(1, 2, 1001, 3, 0);
    block.GetAutoRect2(rect, block.GetShowContent());
    EXPECT_EQ(ruler.width("文字"), rect.GetWidth());
    EXPECT_EQ(2 * pitch, rect.GetHeight());
    CSize size;
    block.SetShowContent("文字");
    block.GetAutoRect(size);
    EXPECT_EQ(CSize(ruler.width("文字"), pitch), size);
    const LONG right = block.LGetFPRect().right;
    block.AddNewRow();
    EXPECT_EQ(right + pitch, block.LGetFPRect().right);

    CPoint point(500, 300);
    const LONG w = ruler.width("文字");
    for (const double angle : {0.0, 1.0, 4.0}) {
        block.GetAutoRect(rect, point, angle);
        EXPECT_EQ(int(500 + cos(angle - 3.1415926) * w / 2), rect.left);
        EXPECT_EQ(int(300 + sin(angle - 3.1415926) * w / 2), rect.top);
        EXPECT_EQ(CSize(w, ruler.pitch(0)), CSize(rect.GetWidth(), rect.GetHeight()));
        EXPECT_EQ(angle, rect.angle);
    }
    block.LSetAutoCacuBound(TRUE);
    drawn(block, "文字");
    EXPECT_EQ(100 + w, block.LGetFPRect().right);
    EXPECT_EQ(200 + pitch, block.LGetFPRect().bottom);
}

// Whatever code page the font takes the text in.
TEST(DrawText, PrefixesAreThoseOfSingleCalls) {
    for (const BYTE charSet : {BYTE(GB2312_CHARSET), BYTE(ANSI_CHARSET), BYTE(RUSSIAN_CHARSET)})
        for (const int escapement : {0, 300, 900, 2000})
            for (const int extra : {0, 3, -1}) {
                COrvFont font;
                LOGFONT lf;
                font.GetLogFontFont(lf, 1);
                lf.lfCharSet = charSet;
                font.SetLogFont(lf, FALSE);
                font.SetFontAngle(escapement / 10, TRUE);
                CClientDC dc(NULL);
                const orv::SavedDC saved(&dc);
                dc.SelectObject(font.GetFont());
                dc.SetTextCharacterExtra(extra);
                const CString text("京沪铁路 Jinghu AVAWAT fi, 1318 km。\ttab");
                orv::TextMeasurer measurer(dc);
                const int* prefixes = measurer.prefixes({text, size_t(text.GetLength())});
                const std::vector<int> kept(prefixes, prefixes + text.GetLength());
                for (int i = 0; i < text.GetLength(); i += text[i] < 0 ? 2 : 1) {
                    const int count = i + (text[i] < 0 ? 2 : 1);
                    EXPECT_EQ(dc.GetTextExtent(text, count).cx, kept[count - 1])
                        << int(charSet) << " " << escapement << " " << count;
                }
            }
}

TEST(DrawText, SingleTexts) {
    Block block;
    CDC dc;
    dc.CreateCompatibleDC(NULL);
    const LONG width = dc.GetTextExtent("abc", 3).cx;
    int count = -1;
    EXPECT_EQ(CString("abc"), block.GetSingleText(&dc, "abcdef", CSize(width, 0), count));
    EXPECT_EQ(3, count);
    EXPECT_EQ(CString("ab"), block.GetSingleText(&dc, "ab\bcd", CSize(width, 0), count));
    EXPECT_EQ(2, count);
    block.LSetAutoClip(TRUE);
    EXPECT_EQ(CString(""), block.GetSingleText(&dc, "abc", CSize(0, 0), count));
    EXPECT_EQ(0, count);

    Block feed;
    const LONG two = Ruler(feed).width("中文"), pitch = Ruler(feed).pitch(4);
    feed.SetShowRect(CRect(100, 200, 100 + two, 300));
    EXPECT_EQ((Seen{textLine(100, 200, "中文"), textLine(100, 200 + pitch, "字"),
                    textLine(100, 200 + 2 * pitch, "a")}),
              drawn([&](CDC& sheet) { feed.Draw2(&sheet, "中文字\ba"); }));
    feed.LSetRowAlign(2);
    const Seen line = drawn([&](CDC& sheet) {
        CFont* old = sheet.SelectObject(feed.LGetOrvFont()->GetFont());
        feed.DrawSingleText(&sheet, "中文", CRect(10, 20, 30 + two, 40));
        sheet.SelectObject(old);
    });
    EXPECT_EQ((Seen{textLine(30, 20, "中文")}), line);
}

TEST(DrawText, AClueIsGreyAndUpright) {
    Block block(200, 1.0);
    block.SetFontAngle(&block.LGetFPRect());
    const Seen seen =
        drawn([&](CDC& dc) { block.DrawClueText(&dc, CRect(10, 10, 400, 60), CString("站名\0a", 6)); });
    ASSERT_EQ(1u, seen.size());
    char color[16];
    snprintf(color, sizeof(color), "%06X", unsigned(::GetSysColor(COLOR_GRAYTEXT)));
    EXPECT_EQ(std::string("站名 ") + color, seen[0].substr(seen[0].find("站")));
}

TEST(DrawText, TheOutlineBecomesAPath) {
    CDC dc;
    dc.CreateCompatibleDC(NULL);
    dc.MoveTo(3, 4);
    dc.ReleaseAttribDC();
    Block block(40, 90 * kDegree, 30);
    EXPECT_TRUE(block.SetDCPath(&dc));
    dc.SetAttribDC(dc.m_hDC);
    POINT points[8];
    BYTE types[8];
    ASSERT_EQ(4, dc.GetPath(points, types, 8));
    const CPoint expected[] = {{100, 200}, {130, 200}, {130, 160}, {100, 160}};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(expected[i], CPoint(points[i]));
    EXPECT_EQ(PT_LINETO | PT_CLOSEFIGURE, types[3]);
    EXPECT_EQ(CPoint(3, 4), dc.GetCurrentPosition());
}

TEST(DrawText, TheFontTakesWholeDegrees) {
    const double nan = std::numeric_limits<double>::quiet_NaN(),
                 inf = std::numeric_limits<double>::infinity();
    const struct {
        double angle;
        int degrees;
    } rows[] = {{30 * kDegree, 30},
                {3.1415926 / 2, 90},
                {-30 * kDegree, -30},
                {0.5, 28},
                {-0.5, -28},
                {7.0, 401},
                {nan, 0},
                {inf, 0}};
    for (const auto& row : rows) {
        COrvDrawText text;
        const CFPRect rect(0, 0, 1, 1, row.angle);
        text.SetFontAngle(&rect);
        EXPECT_EQ(row.degrees, text.LGetOrvFont()->GetFontAngle()) << row.angle;
    }
}
