#include "LineTypeSet.h"

#include <orvfc/services/NamedRows.h>

#include <orvfc/services/ArchiveFields.h>

template class COrvNamedSet<LineTypeStruct, unsigned int>;

namespace {

struct LineType {
    LPCTSTR pszName;
    unsigned int nValue;
};
constexpr LineType kBuiltIn[] = {
    {_T("实线"), 0},     {_T("虚线"), 1}, {_T("点线"), 2},     {_T("虚点线"), 3},
    {_T("虚点点线"), 4}, {_T("空线"), 5}, {_T("铁道线"), 101},
};

} // namespace

LineTypeStruct::LineTypeStruct(const LineTypeStruct* pRow) : LineTypeStruct() {
    ASSERT(pRow);
    if (pRow)
        *this = *pRow;
}

BOOL LineTypeStruct::operator==(const LineTypeStruct& row) const {
    return strName.Compare(row.strName) == 0 && nValue == row.nValue;
}

void LineTypeStruct::Serialize(CArchive& ar) {
    orv::archiveWhole(*this, ar, [](LineTypeStruct& row, CArchive& fields) {
        orv::archiveFields(fields, row.strName, row.nValue);
    });
}

void LineTypeStruct::Dump(CDumpContext& dc) const {
    dc << "LineTypeStruct strName = " << strName << ", nValue = " << nValue << "\n";
}

CLineTypeSet::CLineTypeSet() {
    Init();
}

void CLineTypeSet::Init() {
    m_rows.RemoveAll();
    AddGerLineType();
}

int CLineTypeSet::AddGerLineType() {
    for (const LineType& type : kBuiltIn)
        AddItem(type.pszName, type.nValue);
    return 1;
}

CString CLineTypeSet::GetLineName(unsigned int nValue) const {
    const LineTypeStruct* pRow =
        orv::firstRow(m_rows, [nValue](const LineTypeStruct& row) { return row.nValue == nValue; });
    if (pRow)
        return pRow->strName;
    TRACE(_T("%s"), _T("在动态数组中没有nLineType的值 "));
    CString strName;
    strName.Format(_T("自定义线型 %u "), nValue);
    return strName;
}

unsigned int CLineTypeSet::GetLineIndex(CString strName) const {
    const LineTypeStruct* pRow = orv::firstRowNamed(m_rows, strName);
    return pRow ? pRow->nValue : 0xFFFFFFFF;
}
