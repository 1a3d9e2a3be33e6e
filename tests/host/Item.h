#pragma once

#include "symbols.h"

// One item of the plan, with the symbol it is drawn by.
class CItem : public CObject {
    DECLARE_SERIAL(CItem)

public:
    CItem();
    virtual ~CItem();

    CString m_strName;
    int m_nCount;
    BOOL m_bVisible;
    int m_nLines;
    CSymbol* m_pSymbol;

    CString GetText() const;
    virtual void Serialize(CArchive& ar);
};
