#pragma once

#include <orvfc/pickers/OrvRecordCombo.h>

// A row of a picker of numbers: the number, and its text as the row's name.
class ORVFC_API COrvCmbValueRecord : public COrvCmbRecord {
public:
    void DrawItem(CDC* pDC, const CRect& rc, int nState) override;
    double GetValue() const { return m_dValue; }

protected:
    explicit COrvCmbValueRecord(double dValue) : m_dValue(dValue) {}
    COrvCmbValueRecord(const COrvCmbValueRecord&) = default;
    COrvCmbValueRecord& operator=(const COrvCmbValueRecord&) = default;
    double m_dValue;
};

// The pickers of numbers: rows of records, and a current value that need not be in any row.
//
// In a field that can be typed into (CBS_DROPDOWN, CBS_SIMPLE) a number counts as soon as it stands there;
// when the field is left, when its list opens, or with Enter, it gets its usual form, and what is no number
// of the picker's range makes way for the last good value. A drop-down list has no field: a value that no row
// holds then gets a row of its own at the end, in place of the one before it. A row out of the range is not
// added.
class ORVFC_API COrvValueCombo : public COrvRecordCombo {
    DECLARE_DYNAMIC(COrvValueCombo)

public:
    // The row's value becomes current, and stands in the field, as with CB_SETCURSEL. CB_ERR for a wrong
    // index, which selects nothing and leaves the value.
    int SetCurSel(int nSelect);
    // What stands in the field is taken, or put right. TRUE when it was a number of the picker's range.
    int TakeTypedText();

    void Dump(CDumpContext& dc) const override;

protected:
    // Numbers from dLow to dHigh are taken, everything else is kept out.
    COrvValueCombo(double dLow, double dHigh);

    // NULL when there is no memory.
    virtual COrvCmbValueRecord* NewRecord(double dValue) const = 0;

    void AddValue(double dValue);
    int FindValue(double dValue) const; // index or -1
    double GetCurrent() const { return m_dCurrent; }
    // FALSE, and nothing happens, for a value out of range and without a window.
    int SetCurrent(double dValue);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    // Stores the chosen row's value. FALSE when there is none.
    BOOL TakeChosenRow();
    void OnSelchange() override { TakeChosenRow(); }
    void OnSelected() override { TakeChosenRow(); }
    // The parent's handlers of the same notifications run as well.
    afx_msg BOOL OnEditchange();
    afx_msg BOOL OnDropdown();
    afx_msg BOOL OnKillfocus();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    BOOL InRange(double dValue) const { return dValue >= m_dLow && dValue <= m_dHigh; }
    CString FieldText() const;
    CString CurrentText() const;
    void ShowCurrent();

    double m_dLow, m_dHigh;
    double m_dCurrent;
};
