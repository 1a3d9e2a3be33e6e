#include "SheetStyle.h"
#include "Sheets.h"

#include <orvfc/ORVFC.h>

// What a host's about box shows: version resources side by side, and what the system tells of the program.

namespace gallery {
namespace {

constexpr int columns[] = {300, 770}; // of the two modules
constexpr int columnWidth = 440;
constexpr int rowHeight = 34;

struct TextRow {
    const char* label;
    CString tagVersionInformation::*text;
};
constexpr TextRow textRows[] = {
    {"产品名称  product", &tagVersionInformation::strProductName},
    {"产品版本  product version", &tagVersionInformation::strProductVersion},
    {"文件版本  file version", &tagVersionInformation::strFileVersion},
    {"说明  description", &tagVersionInformation::strFileDescription},
    {"公司  company", &tagVersionInformation::strCompanyName},
    {"内部名称  internal name", &tagVersionInformation::strInternalName},
    {"原始文件名  original file", &tagVersionInformation::strOriginalFileName},
    {"文件类型  file type", &tagVersionInformation::strFileType},
    {"目标系统  made for", &tagVersionInformation::strFileOS},
    {"版权  copyright", &tagVersionInformation::strLegalCopyright},
    {"备注  comments", &tagVersionInformation::strComments},
};

CString fourNumbers(DWORD upper, DWORD lower) {
    CString text;
    text.Format("%d.%d.%d.%d", HIWORD(upper), LOWORD(upper), HIWORD(lower), LOWORD(lower));
    return text;
}

CString timeText(const FILETIME& time) {
    FILETIME local = {};
    SYSTEMTIME parts = {};
    ::FileTimeToLocalFileTime(&time, &local);
    ::FileTimeToSystemTime(&local, &parts);
    CString text;
    text.Format("%04d-%02d-%02d %02d:%02d", parts.wYear, parts.wMonth, parts.wDay, parts.wHour,
                parts.wMinute);
    return text;
}

class AboutSheet {
public:
    explicit AboutSheet(CDC& dc) : m_dc(dc), m_library(CSysInfo::GetAppPath() + "ORVFC.dll") {
        Label::setFace(m_nameFont, 22);
        Label::setFace(m_textFont, 17);
        dc.SetBkMode(TRANSPARENT);
    }

    void draw();

private:
    void moduleHeads();
    void moduleRow(const char* label, const CString& program, const CString& library);
    void systemRow(const char* label, const CString& value);
    void rule();
    void text(COrvFont& font, COLORREF color, int x, int width, const CString& text);

    CDC& m_dc;
    COrvFont m_nameFont;
    COrvFont m_textFont;
    COrvVersion m_program; // the one that runs
    COrvVersion m_library;
    int m_top = 96; // of the row in hand
};

// In the middle of a row's height; a text that is too wide ends in dots.
void AboutSheet::text(COrvFont& font, COLORREF color, int x, int width, const CString& text) {
    CFont* previous = m_dc.SelectObject(font.GetFont());
    m_dc.SetTextColor(color);
    CRect box(x, m_top, x + width, m_top + rowHeight);
    m_dc.DrawText(text, &box, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    m_dc.SelectObject(previous);
}

void AboutSheet::rule() {
    m_dc.FillSolidRect(leftEdge, m_top, rightEdge - leftEdge, 1, ruleColor);
}

void AboutSheet::moduleHeads() {
    const COrvVersion* modules[] = {&m_program, &m_library};
    m_dc.FillSolidRect(leftEdge, m_top, rightEdge - leftEdge, rowHeight + 12, headColor);
    m_top += 6;
    for (int i = 0; i < 2; ++i)
        text(m_nameFont, accentColor, columns[i], columnWidth,
             GetFileNameExistExtend(modules[i]->m_Info.strFilePath));
    m_top += rowHeight + 6;
}

void AboutSheet::moduleRow(const char* label, const CString& program, const CString& library) {
    const CString* values[] = {&program, &library};
    text(m_textFont, noteColor, leftEdge + 12, columns[0] - leftEdge - 24, label);
    for (int i = 0; i < 2; ++i) {
        const bool given = !values[i]->IsEmpty();
        text(m_textFont, given ? inkColor : ruleColor, columns[i], columnWidth,
             given ? *values[i] : CString("(none)"));
    }
    m_top += rowHeight;
    rule();
}

void AboutSheet::systemRow(const char* label, const CString& value) {
    text(m_textFont, noteColor, leftEdge + 12, columns[0] - leftEdge - 24, label);
    text(m_textFont, inkColor, columns[0], rightEdge - columns[0], value);
    m_top += rowHeight;
    rule();
}

void AboutSheet::draw() {
    drawTitle(m_dc, "关于  About");
    moduleHeads();
    for (const TextRow& row : textRows)
        moduleRow(row.label, m_program.m_Info.*row.text, m_library.m_Info.*row.text);
    moduleRow("版本号  file numbers", fourNumbers(m_program.m_dwFileVersionMS, m_program.m_dwFileVersionLS),
              fourNumbers(m_library.m_dwFileVersionMS, m_library.m_dwFileVersionLS));
    moduleRow("修改时间  last written", timeText(m_program.m_ftLastWrite), timeText(m_library.m_ftLastWrite));

    m_top += 26;
    rule();
    const tagVersionInformation& library = m_library.m_Info;
    const int order = m_program.CompareVersion(library.strProductVersion, library.strFileVersion,
                                               library.strSpecialBuild, library.strPrivateBuild);
    const char* const orders[] = {"程序较旧  the program is older", "相同  the same",
                                  "程序较新  the program is newer"};
    systemRow("版本比较  compared", orders[order < 0 ? 0 : order > 0 ? 2 : 1]);
    systemRow("程序目录  directory", CSysInfo::GetAppPath());
    const UINT lines = CSysInfo::GetMouseScrollLines();
    CString scroll;
    scroll.Format("%u 行  lines", lines);
    systemRow("滚轮  mouse wheel", lines == WHEEL_PAGESCROLL ? CString("一页  a page") : scroll);
}

} // namespace

void drawAboutSheet(CDC& dc) {
    AboutSheet(dc).draw();
}

} // namespace gallery
