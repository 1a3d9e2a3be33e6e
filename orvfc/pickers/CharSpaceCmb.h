#pragma once

#include <orvfc/pickers/OrvValueCombo.h>

// A spacing in points, shown with one decimal and its unit.
class ORVFC_API CCmbCharSpaceData : public COrvCmbValueRecord {
public:
    explicit CCmbCharSpaceData(double dDist = 0) : COrvCmbValueRecord(dDist) {}
    CCmbCharSpaceData(const CCmbCharSpaceData&) = default;
    CCmbCharSpaceData& operator=(const CCmbCharSpaceData&) = default;
    CString GetName() const override;
};

// The picker of spacings between characters or rows, in points. A drop-down list: its owner fills it, and a
// distance that no row holds gets a row when it is set. From -10,000 to 10,000 points.
class ORVFC_API CCharSpaceCmb : public COrvValueCombo {
    DECLARE_DYNAMIC(CCharSpaceCmb)

public:
    CCharSpaceCmb();

    void AddItem(double dDist);
    double GetCurrentDist() const { return GetCurrent(); }
    int SetCurrentDist(double dDist); // FALSE, and nothing happens, for one out of range

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    COrvCmbValueRecord* NewRecord(double dValue) const override;
};
