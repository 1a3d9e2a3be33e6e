#include "ColorSet.h"

#include <orvfc/services/ArchiveFields.h>
#include <orvfc/services/NamedRows.h>

template class COrvNamedSet<ColorSetStruct, COLORREF>;

namespace {

constexpr struct {
    LPCTSTR pszName;
    COLORREF crColor;
} kBuiltIn[] = {
    {_T("黑色"), 0x000000},   {_T("白色"), 0xFFFFFF},   {_T("红色"), 0x0000FF},     {_T("绿色"), 0x00FF00},
    {_T("蓝色"), 0xFF0000},   {_T("蓝绿"), 0x80FF00},   {_T("粉红"), 0xFF00FF},     {_T("青色"), 0xFF8000},
    {_T("绿色"), 0x008000},   {_T("紫色"), 0x800080},   {_T("紫红色"), 0xFF00FF},   {_T("深红"), 0x004080},
    {_T("浅红色"), 0x8080FF}, {_T("黄色"), 0x00FFFF},   {_T("灰色-50%"), 0x808080}, {_T("银色"), 0xC0C0C0},
    {_T("深银色"), 0x8E8E8E}, {_T("浅银色"), 0xE3E3E3}, {_T("亮蓝色"), 0xFFFF00},   {_T("其它..."), 0x000000},
};

} // namespace

ColorSetStruct::ColorSetStruct(const ColorSetStruct* pRow) : ColorSetStruct() {
    ASSERT(pRow);
    if (pRow)
        *this = *pRow;
}

BOOL ColorSetStruct::operator==(const ColorSetStruct& row) const {
    return strName.Compare(row.strName) == 0 && crColor == row.crColor;
}

void ColorSetStruct::Serialize(CArchive& ar) {
    orv::archiveWhole(*this, ar, [](ColorSetStruct& row, CArchive& fields) {
        orv::archiveFields(fields, row.strName, row.crColor);
    });
}

void ColorSetStruct::Dump(CDumpContext& dc) const {
    dc << "ColorSetStruct strName = " << strName << ", crColor = " << crColor << "\n";
}

CColorSet::CColorSet() {
    Init();
}

void CColorSet::Init() {
    EmptyAllColors();
    AddGerColors();
}

void CColorSet::EmptyAllColors() {
    m_rows.RemoveAll();
}

void CColorSet::AddGerColors() {
    for (const auto& color : kBuiltIn)
        AddItem(color.pszName, color.crColor);
}

CString CColorSet::GetColorName(COLORREF cr) const {
    const ColorSetStruct* pRow =
        orv::firstRow(m_rows, [cr](const ColorSetStruct& row) { return row.crColor == cr; });
    if (pRow)
        return pRow->strName;
    CString strName;
    strName.Format(_T(" %d , %d , %d "), int(cr & 0xFF), int((cr & 0xFFFF) >> 8), int((cr >> 16) & 0xFF));
    return strName;
}

COLORREF CColorSet::GetColorIndex(CString strName) const {
    const ColorSetStruct* pRow = orv::firstRowNamed(m_rows, strName);
    return pRow ? pRow->crColor : 0;
}

COLORREF CColorSet::GetColorByName(CString strName) {
    for (const auto& color : kBuiltIn)
        if (strName.Compare(color.pszName) == 0)
            return color.crColor;
    return 0;
}
