#pragma once

#include <orvfc/pickers/OrvValueCombo.h>

// A size in points, shown with two decimals.
class ORVFC_API CCmbFontSizeData : public COrvCmbValueRecord {
public:
    explicit CCmbFontSizeData(double dSize = 0) : COrvCmbValueRecord(dSize) {}
    CCmbFontSizeData(const CCmbFontSizeData&) = default;
    CCmbFontSizeData& operator=(const CCmbFontSizeData&) = default;
    CString GetName() const override;
};

// The picker of font sizes in points: a list and a field for others, from 0.01 to 1638 (what rich text fields
// can show).
//
// A choice from the list posts to the parent WM_FONT_SIZE_CMB_SELCHANGE (wParam: the combo's identifier,
// lParam 0), and behind it WM_COMMAND with wParam 1 and lParam the combo's window. A plain dialog takes that
// command for its OK button: swallow it in PreTranslateMessage, as COrvFCDrawTextPropPage does.
class ORVFC_API CFontSizeCmb : public COrvValueCombo {
    DECLARE_DYNAMIC(CFontSizeCmb)

public:
    CFontSizeCmb();

    // Adds 5, 7, 8, 9, 10, 12, 14, 18, 22, 26, 35, 45 and 60.
    void InitSize();
    void AddItem(double dSize);
    // The size chosen, typed or set last; 0 before that.
    double GetCurrentSize() const { return GetCurrent(); }
    // A size that no row holds stands in the field. FALSE, and nothing happens, for one out of range.
    int SetCurrentSize(double dSize);
    int IsFontSizeIn(double dSize) const; // 1 when a row has it

protected:
    COrvCmbValueRecord* NewRecord(double dValue) const override;
    void OnSelchange() override;
};
