#include "OrvDrawBasicDash.h"

#include <orvfc/services/ArchiveFields.h>

COrvDrawBasicDash::COrvDrawBasicDash() : COrvDrawBasicDash(HDC(NULL)) {}

COrvDrawBasicDash::COrvDrawBasicDash(HDC hDC)
    : m_nDrawType(0), m_bMoveToNew(1), m_crColor(0), m_nWidth(1), m_strType(_T("空类型")), m_hDC(hDC),
      m_nTag(0) {}

COrvDrawBasicDash::~COrvDrawBasicDash() = default;

CString COrvDrawBasicDash::GetType() {
    return m_strType;
}

void COrvDrawBasicDash::SetMoveToNew(int bNew) {
    m_bMoveToNew = bNew;
}

double COrvDrawBasicDash::GetLength(int) {
    return 10.0;
}

int COrvDrawBasicDash::DrawDash(double, double, double, double, int) {
    return 0;
}

int COrvDrawBasicDash::GetDashType() {
    return 5;
}

int COrvDrawBasicDash::SetLineProperty(int nWidth, COLORREF crColor) {
    m_nWidth = nWidth;
    m_crColor = crColor;
    return 1;
}

int COrvDrawBasicDash::SetLinePropertyDefault() {
    m_crColor = 0;
    m_nWidth = 1;
    return 1;
}

int COrvDrawBasicDash::FinishDraw() {
    return 0;
}

void COrvDrawBasicDash::Serialize(CArchive& ar) {
    orv::archiveWhole(*this, ar, [](COrvDrawBasicDash& dash, CArchive& fields) {
        orv::archiveFields(fields, dash.m_nTag, dash.m_nDrawType, dash.m_bMoveToNew, dash.m_crColor,
                           dash.m_nWidth, dash.m_strType);
    });
}

int COrvDrawBasicDash::ResetDrawEnvir() {
    return 0;
}

void COrvDrawBasicDash::Dump(CDumpContext& dc) const {
    dc << "COrvDrawBasicDash m_nDrawType = " << m_nDrawType << ", m_bMoveToNew = " << m_bMoveToNew
       << ", m_crColor = " << m_crColor << ", m_nWidth = " << m_nWidth << ", m_strType = " << m_strType
       << ", m_hDC = " << static_cast<const void*>(m_hDC) << ", m_nTag = " << m_nTag << "\n";
}
