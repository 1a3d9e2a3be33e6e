#include "Extend.h"

#include <limits.h>

#include <orvmathfunc/orvmathfunc.h>

namespace {

int g_nPreBit = 5;

double rounded(double value) {
    const int power = g_nPreBit == INT_MIN ? INT_MAX : -g_nPreBit;
    return GetNearestValue(value, power);
}

} // namespace

CExtend::CExtend(double v) : m_dValue(rounded(v)) {}

CExtend& CExtend::operator=(double v) {
    m_dValue = rounded(v);
    return *this;
}

void CExtend::ResetValue() {
    m_dValue = rounded(m_dValue);
}

void CExtend::SetPreBit(int nPreBit) {
    g_nPreBit = nPreBit;
}

int CExtend::GetPreBit() {
    return g_nPreBit;
}

void CExtend::Dump(CDumpContext& dc) const {
    CString str;
    str.Format(_T("CExtend %.17g, class-wide decimals %d"), m_dValue, g_nPreBit);
    dc << str;
}
