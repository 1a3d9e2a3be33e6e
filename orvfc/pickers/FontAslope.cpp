#include "FontAslope.h"

#include <new>

namespace {

const double kAngles[] = {0, 15, 30, 45, 90, 105, 130, 145, 160, 175, 190, 205, 300, 350}; // degrees
constexpr double kFullTurn = 360;

} // namespace

IMPLEMENT_DYNAMIC(CFontAslopeCmb, COrvValueCombo)

CString CCmbFontAslopeData::GetName() const {
    CString text;
    text.Format("%.2f", m_dValue);
    return text;
}

CFontAslopeCmb::CFontAslopeCmb() : COrvValueCombo(-kFullTurn, kFullTurn) {}

void CFontAslopeCmb::Init() {
    for (const double angle : kAngles)
        AddItem(angle);
}

void CFontAslopeCmb::AddItem(double dAngle) {
    AddValue(dAngle);
}

int CFontAslopeCmb::SetCurrentAngle(double dAngle) {
    return SetCurrent(dAngle);
}

COrvCmbValueRecord* CFontAslopeCmb::NewRecord(double dValue) const {
    return new (std::nothrow) CCmbFontAslopeData(dValue);
}
