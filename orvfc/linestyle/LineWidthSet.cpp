#include "LineWidthSet.h"

#include <math.h>

#include <orvfc/services/NamedRows.h>

#include <orvfc/services/ArchiveFields.h>

template class COrvNamedSet<LineWidthStruct, double>;

namespace {

// The names are fixed texts: formatted, they would follow the host's locale ("0,5").
constexpr struct {
    const char* lpszMillimetres;
    const char* lpszPixels; // null: there are no half pixels
    double dWidth;
} kBuiltIn[] = {
    {"0.5毫米", NULL, 0.5},   {"1毫米", "1象素", 1},    {"2毫米", "2象素", 2},    {"3毫米", "3象素", 3},
    {"4毫米", "4象素", 4},    {"5毫米", "5象素", 5},    {"6毫米", "6象素", 6},    {"8毫米", "8象素", 8},
    {"12毫米", "12象素", 12}, {"15毫米", "15象素", 15}, {"20毫米", "20象素", 20}, {"25毫米", "25象素", 25},
};
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
    for (const auto& row : kBuiltIn)
        if (const char* lpszName = bMillimetre ? row.lpszMillimetres : row.lpszPixels)
            AddItem(lpszName, row.dWidth);
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
