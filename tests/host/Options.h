#pragma once

#include "resource.h"

class CSheetPage : public CPropertyPage {
public:
    CSheetPage() : CPropertyPage(IDD_PAGE_SHEET) {}

    CString m_strSheetName;

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
};

class CScalePage : public CPropertyPage {
public:
    CScalePage() : CPropertyPage(IDD_PAGE_SCALE), m_dScale(500), m_bGrid(FALSE) {}

    double m_dScale;
    BOOL m_bGrid;

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    afx_msg void OnGrid();
    DECLARE_MESSAGE_MAP()
};
