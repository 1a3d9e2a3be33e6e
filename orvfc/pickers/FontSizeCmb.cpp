#include "FontSizeCmb.h"

#include <new>

#include <orvfc/ORVFC.h>

#include "FontChoice.h"

namespace {

const double kSizes[] = {5, 7, 8, 9, 10, 12, 14, 18, 22, 26, 35, 45, 60}; // points
constexpr double kSmallest = 0.01, kLargest = 1638;                       // 32,760 twips

} // namespace

IMPLEMENT_DYNAMIC(CFontSizeCmb, COrvValueCombo)

CString CCmbFontSizeData::GetName() const {
    CString text;
    text.Format("%.2f", m_dValue);
    return text;
}

CFontSizeCmb::CFontSizeCmb() : COrvValueCombo(kSmallest, kLargest) {}

void CFontSizeCmb::InitSize() {
    for (const double size : kSizes)
        AddItem(size);
}

void CFontSizeCmb::AddItem(double dSize) {
    AddValue(dSize);
}

int CFontSizeCmb::SetCurrentSize(double dSize) {
    return SetCurrent(dSize);
}

int CFontSizeCmb::IsFontSizeIn(double dSize) const {
    return FindValue(dSize) >= 0;
}

COrvCmbValueRecord* CFontSizeCmb::NewRecord(double dValue) const {
    return new (std::nothrow) CCmbFontSizeData(dValue);
}

void CFontSizeCmb::OnSelchange() {
    if (TakeChosenRow()) {
        PostChoice(WM_FONT_SIZE_CMB_SELCHANGE);
        orv::postCommandBehind(*this);
    }
}
