#pragma once

// One item of the plan.
class CItem : public CObject {
    DECLARE_SERIAL(CItem)

public:
    CItem();

    CString m_strName;
    int m_nCount;
    BOOL m_bVisible;
    int m_nLines;

    CString GetText() const;
    virtual void Serialize(CArchive& ar);
};
