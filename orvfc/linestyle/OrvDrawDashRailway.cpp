#include "OrvDrawDashRailway.h"

#include <orvmathfunc/orvmathfunc.h>
#include <orvfc/geometry/Truncate.h>

#include <orvfc/services/ArchiveFields.h>
#include "PathWalk.h"
#include "Stroke.h"

COrvDrawDashRailway::COrvDrawDashRailway() : COrvDrawDashRailway(HDC(NULL)) {}

COrvDrawDashRailway::COrvDrawDashRailway(HDC hDC)
    : COrvDrawBasicDash(hDC), m_ptLastE{}, m_ptLastL{}, m_ptLastR{} {
    Init();
}

void COrvDrawDashRailway::Init() {
    m_nDrawType = 1;
    m_nGauge = 10;
    m_nLen0 = m_nLen1 = 20;
    m_crColor0 = 0x000000;
    m_crColor1 = 0xFFFFFF;
    m_nPhase = 1;
    m_dRemain = m_nLen1;
}

void COrvDrawDashRailway::SetMoveToNew(int bNew) {
    m_bMoveToNew = bNew;
    if (bNew && m_nPhase == 0)
        StrokeClosing();
}

double COrvDrawDashRailway::GetLength(int) {
    return m_dRemain;
}

int COrvDrawDashRailway::DrawDash(double x1, double y1, double x2, double y2, int nIndex) {
    const double dDistance = GetDistance(x1, y1, x2, y2);
    m_nPhase = nIndex & 1;
    if (m_bMoveToNew && dDistance < orv::kWalkZero) {
        FinishPiece(dDistance);
        return 1;
    }
    const orv::RailPiece piece = {x1, y1, x2, y2, m_nGauge};
    const orv::RailCorners corners =
        m_bMoveToNew ? orv::firstRailCorners(piece) : orv::nextRailCorners(piece, {m_ptLastL, m_ptLastR});
    m_ptLastE = {orv::truncToInt(x2), orv::truncToInt(y2)};
    m_ptLastL = corners.to.left;
    m_ptLastR = corners.to.right;
    if (m_nPhase == 0)
        orv::strokeRails(m_hDC, m_crColor0, m_crColor1, corners, m_bMoveToNew != 0);
    else
        orv::fillRailBlock(m_hDC, m_crColor0, corners);
    FinishPiece(dDistance);
    m_bMoveToNew = 0;
    return 1;
}

void COrvDrawDashRailway::FinishPiece(double dDistance) {
    m_dRemain -= dDistance;
    if (m_dRemain < orv::kPieceEnd)
        m_dRemain = m_nPhase == 0 ? m_nLen1 : m_nLen0;
}

int COrvDrawDashRailway::GetDashType() {
    return 101;
}

int COrvDrawDashRailway::SetLineProperty(int nWidth, COLORREF crColor) {
    m_nGauge = nWidth;
    return COrvDrawBasicDash::SetLineProperty(nWidth, crColor);
}

int COrvDrawDashRailway::SetLinePropertyDefault() {
    Init();
    return 1;
}

int COrvDrawDashRailway::FinishDraw() {
    Init();
    m_bMoveToNew = 1;
    return 1;
}

void COrvDrawDashRailway::Serialize(CArchive& ar) {
    orv::archiveWhole(*this, ar, [](COrvDrawDashRailway& dash, CArchive& fields) {
        dash.COrvDrawBasicDash::Serialize(fields);
        orv::archiveFields(fields, dash.m_crColor0, dash.m_crColor1, dash.m_nLen0, dash.m_nLen1,
                           dash.m_nGauge, dash.m_nPhase, dash.m_dRemain, dash.m_ptLastE.x, dash.m_ptLastE.y,
                           dash.m_ptLastL.x, dash.m_ptLastL.y, dash.m_ptLastR.x, dash.m_ptLastR.y);
    });
}

int COrvDrawDashRailway::ResetDrawEnvir() {
    if (!m_hDC)
        return 0;
    StrokeClosing();
    return 1;
}

void COrvDrawDashRailway::Dump(CDumpContext& dc) const {
    COrvDrawBasicDash::Dump(dc);
    dc << "  m_nGauge = " << m_nGauge << ", m_nLen0 = " << m_nLen0 << ", m_nLen1 = " << m_nLen1
       << ", m_crColor0 = " << m_crColor0 << ", m_crColor1 = " << m_crColor1 << ", m_dRemain = " << m_dRemain
       << ", m_nPhase = " << m_nPhase << "\n";
}

void COrvDrawDashRailway::StrokeClosing() {
    orv::strokePlain(m_hDC, {PS_SOLID, 1, m_crColor0}, m_ptLastL, m_ptLastR);
}
