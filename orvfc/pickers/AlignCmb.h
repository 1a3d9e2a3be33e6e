#pragma once

#include <orvfc/pickers/OrvRecordCombo.h>

// An alignment: 0 left, 1 centre, 2 right, 3 distributed; 5 top, 6 middle, 7 bottom.
class ORVFC_API CCmbFontAlignData : public COrvCmbRecord {
public:
    explicit CCmbFontAlignData(UINT nFlag = 0) : m_nFlag(nFlag) {}
    CCmbFontAlignData(const CCmbFontAlignData&) = default;
    CCmbFontAlignData& operator=(const CCmbFontAlignData&) = default;
    CString GetName() const override { return GetFlagString(m_nFlag); }
    void DrawItem(CDC* pDC, const CRect& rc, int nState) override;

    UINT GetFlag() const { return m_nFlag; }
    // "左对齐", "居中", ...; 4 and what is above 7 is called "上对齐", as 5 is.
    static CString GetFlagString(UINT nFlag);

private:
    UINT m_nFlag;
};

// The picker of alignments: a drop-down list that tells its parent of choices by CBN_SELCHANGE alone.
class ORVFC_API CFontAlignCmb : public COrvRecordCombo {
    DECLARE_DYNAMIC(CFontAlignCmb)

public:
    CFontAlignCmb();

    void Init(); // adds 0, 1, 2, 3, 5, 6 and 7
    int AddItem(int nFlag);
    UINT GetCurrentAlignType() const; // 0 when nothing is selected
    // A flag that no row has gets a row at the end, in place of the one before it.
    void SetCurrentAlignType(UINT nFlag);

protected:
    void OnSelchange() override {}
};
