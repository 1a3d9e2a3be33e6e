#include "CharSpaceCmb.h"

#include <new>

IMPLEMENT_DYNAMIC(CCharSpaceCmb, COrvValueCombo)

CString CCmbCharSpaceData::GetName() const {
    CString text;
    text.Format("%.1f磅", m_dValue);
    return text;
}

CCharSpaceCmb::CCharSpaceCmb() : COrvValueCombo(-10000, 10000) {}

BOOL CCharSpaceCmb::PreCreateWindow(CREATESTRUCT& cs) {
    return COrvRecordCombo::PreCreateWindow(cs); // a list without a field
}

void CCharSpaceCmb::AddItem(double dDist) {
    AddValue(dDist);
}

int CCharSpaceCmb::SetCurrentDist(double dDist) {
    return SetCurrent(dDist);
}

COrvCmbValueRecord* CCharSpaceCmb::NewRecord(double dValue) const {
    return new (std::nothrow) CCmbCharSpaceData(dValue);
}
