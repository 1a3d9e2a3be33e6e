#include "LineWidthSet.h"

#include <math.h>

#include <orvfc/services/NamedRows.h>

#include "ArchiveFields.h"

template class COrvNamedSet<LineWidthStruct, double>;

namespace {

constexpr double kBuiltIn[] = {0.5, 1, 2, 3, 4, 5, 6, 8, 12, 15, 20, 25};
constexpr double kOther = 1.0;

} // namespace

LineWidthStruct::LineWidthStruct(const LineWidthStruct* pRow) : LineWidthStruct() {
    ASSERT(pRow);
    if (pRow)
        *this = *pRow;
}

BOOL LineWidthStruct::operator==(const LineWidthStruct& row) const {
    return strName.Compare(row.strName) == 0 && dValue == row.dValue;
}

void LineWidthStruct::Serialize(CArchive& ar) {
    orv::archiveWhole(*this, ar, [](LineWidthStruct& row, CArchive& fields) {
        orv::archiveFields(fields, row.strName, row.dValue);
    });
}

void LineWidthStruct::Dump(CDumpContext& dc) const {
    dc << "LineWidthStruct strName = " << strName << ", dValue = " << dValue << "\n";
}

CLineWidthSet::CLineWidthSet() {
    Init();
}

void CLineWidthSet::Init() {
    m_rows.RemoveAll();
    AddGerLineWidth(1);
}

int CLineWidthSet::AddGerLineWidth(int bMillimetre) {
    for (double dWidth : kBuiltIn) {
        if (!bMillimetre && dWidth < 1.0) // no half pixels
            continue;
        CString strName;
        strName.Format(bMillimetre ? _T("%g毫米") : _T("%g象素"), dWidth);
        AddItem(strName, dWidth);
    }
    return AddItem(_T("其它..."), kOther);
}

CString CLineWidthSet::GetLineName(double dValue) const {
    const LineWidthStruct* pRow = orv::firstRow(
        m_rows, [dValue](const LineWidthStruct& row) { return fabs(row.dValue - dValue) < 0.000001; });
    if (pRow)
        return pRow->strName;
    CString strName;
    strName.Format(_T("自定义线型%.2f"), dValue);
    return strName;
}

double CLineWidthSet::GetLineIndex(CString strName) const {
    const LineWidthStruct* pRow = orv::firstRowNamed(m_rows, strName);
    return pRow ? pRow->dValue : kOther;
}
