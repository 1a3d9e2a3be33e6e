#include "OrvDrawDashWeaver.h"

#include <orvmathfunc/orvmathfunc.h>
#include <orvfc/geometry/Truncate.h>

#include <orvfc/services/ArchiveFields.h>
#include "Stroke.h"

COrvDrawDashWeaver::COrvDrawDashWeaver() : COrvDrawDashWeaver(HDC(NULL)) {}

COrvDrawDashWeaver::COrvDrawDashWeaver(HDC hDC) : COrvDrawBasicDash(hDC) {
    Init();
}

void COrvDrawDashWeaver::Init() {
    m_nDrawType = 1;
    m_nLen = 5;
    m_nAmp1 = m_nAmp2 = 3;
    m_dRemain = m_nLen;
    m_nPhase = 1;
}

void COrvDrawDashWeaver::SetMoveToNew(int bNew) {
    m_bMoveToNew = bNew;
}

double COrvDrawDashWeaver::GetLength(int nIndex) {
    return nIndex & 1 ? m_nAmp1 : m_nAmp2;
}

int COrvDrawDashWeaver::DrawDash(double x1, double y1, double x2, double y2, int nIndex) {
    m_nPhase = nIndex & 1;
    double px, py, qx, qy;
    GetPerHalveLineFromLineDist(x1, y1, x2, y2, m_nAmp1, m_nAmp2, &px, &py, &qx, &qy);
    const POINT from = {orv::truncToInt(x1), orv::truncToInt(y1)};
    const POINT peak = m_nPhase == 0 ? POINT{orv::truncToInt(px), orv::truncToInt(py)}
                                     : POINT{orv::truncToInt(qx), orv::truncToInt(qy)};
    const POINT tent[] = {from, peak, {orv::truncToInt(x2), orv::truncToInt(y2)}};
    m_bMoveToNew = 0;
    orv::strokePolyline(m_hDC, {PS_SOLID, m_nWidth, m_crColor}, tent, 3);
    return 0; // ends the walk, drawn or not
}

int COrvDrawDashWeaver::GetDashType() {
    return 101;
}

int COrvDrawDashWeaver::SetLineProperty(int nWidth, COLORREF crColor) {
    return COrvDrawBasicDash::SetLineProperty(nWidth, crColor);
}

int COrvDrawDashWeaver::SetLinePropertyDefault() {
    Init();
    return 1;
}

int COrvDrawDashWeaver::FinishDraw() {
    return 1;
}

void COrvDrawDashWeaver::Serialize(CArchive& ar) {
    orv::archiveWhole(*this, ar, [](COrvDrawDashWeaver& dash, CArchive& fields) {
        dash.COrvDrawBasicDash::Serialize(fields);
        orv::archiveFields(fields, dash.m_nLen, dash.m_nAmp1, dash.m_nAmp2, dash.m_nPhase, dash.m_dRemain);
    });
}

int COrvDrawDashWeaver::ResetDrawEnvir() {
    return 0;
}

void COrvDrawDashWeaver::Dump(CDumpContext& dc) const {
    COrvDrawBasicDash::Dump(dc);
    dc << "  m_nLen = " << m_nLen << ", m_nAmp1 = " << m_nAmp1 << ", m_nAmp2 = " << m_nAmp2
       << ", m_dRemain = " << m_dRemain << ", m_nPhase = " << m_nPhase << "\n";
}
