#pragma once

#include <orvfc/pickers/OrvValueCombo.h>

// A slope in degrees, shown with two decimals.
class ORVFC_API CCmbFontAslopeData : public COrvCmbValueRecord {
public:
    explicit CCmbFontAslopeData(double dAngle = 0) : COrvCmbValueRecord(dAngle) {}
    CCmbFontAslopeData(const CCmbFontAslopeData&) = default;
    CCmbFontAslopeData& operator=(const CCmbFontAslopeData&) = default;
    CString GetName() const override;
};

// The picker of the slope of a text, in degrees counter-clockwise: a list and a field for others, from -360
// to 360.
class ORVFC_API CFontAslopeCmb : public COrvValueCombo {
    DECLARE_DYNAMIC(CFontAslopeCmb)

public:
    CFontAslopeCmb();

    // Adds 0, 15, 30, 45, 90, 105, 130, 145, 160, 175, 190, 205, 300 and 350: 60 and 75 are left out.
    void Init();
    void AddItem(double dAngle);
    double GetCurrentAngle() const { return GetCurrent(); }
    // An angle that no row holds stands in the field. FALSE, and nothing happens, for one out of range.
    int SetCurrentAngle(double dAngle);

protected:
    COrvCmbValueRecord* NewRecord(double dValue) const override;
};
