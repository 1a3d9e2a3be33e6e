#include "OrvOnOffDash.h"

#include <orvmathfunc/orvmathfunc.h>
#include <orvfc/geometry/Truncate.h>

#include <orvfc/services/ArchiveFields.h>
#include "OnOffPhases.h"
#include "PathWalk.h"
#include "Stroke.h"

namespace {

// The fields of each kind, so that the code below can go through the kinds.
template <class Kinds>
struct KindFields {
    int Kinds::*pWidth;
    int Kinds::*pLen;
    COLORREF Kinds::*pColor;
    int Kinds::*pStyle;
};

using Two = OrvTwoKinds;
using Three = OrvThreeKinds;

template <class Kinds>
constexpr KindFields<Kinds> kKinds[1] = {};
template <>
constexpr KindFields<Two> kKinds<Two>[2] = {
    {&Two::m_nWidth0, &Two::m_nLen0, &Two::m_crColor0, &Two::m_nStyle0},
    {&Two::m_nWidth1, &Two::m_nLen1, &Two::m_crColor1, &Two::m_nStyle1},
};
template <>
constexpr KindFields<Three> kKinds<Three>[3] = {
    {&Three::m_nWidth0, &Three::m_nLen0, &Three::m_crColor0, &Three::m_nStyle0},
    {&Three::m_nWidth1, &Three::m_nLen1, &Three::m_crColor1, &Three::m_nStyle1},
    {&Three::m_nWidth2, &Three::m_nLen2, &Three::m_crColor2, &Three::m_nStyle2},
};

template <class Kinds>
orv::StrokePen penOfKind(const Kinds& dash, int nKind) {
    const KindFields<Kinds>& kind = kKinds<Kinds>[nKind];
    return {dash.*kind.pStyle, dash.*kind.pWidth, dash.*kind.pColor};
}

} // namespace

template <class Kinds>
COrvDrawOnOffDash<Kinds>::COrvDrawOnOffDash(HDC hDC, const orv::OnOffRow& row)
    : COrvDrawBasicDash(hDC), m_ptLastA{}, m_ptLastB{}, m_ptLastC{}, m_pRow(&row) {
    Init();
}

template <class Kinds>
void COrvDrawOnOffDash<Kinds>::Init() {
    int nKind = 0;
    for (const KindFields<Kinds>& kind : kKinds<Kinds>) {
        const orv::KindDefaults& defaults = orv::kKindDefaults[nKind];
        this->*kind.pWidth = defaults.nWidth;
        this->*kind.pLen = m_pRow->nLen[nKind];
        this->*kind.pColor = defaults.crColor;
        this->*kind.pStyle = defaults.nStyle;
        ++nKind;
    }
    m_nDrawType = 1;
    m_nPhase = 1;
    m_dRemain = this->m_nLen0;
}

template <class Kinds>
void COrvDrawOnOffDash<Kinds>::SetMoveToNew(int bNew) {
    m_bMoveToNew = bNew;
    if (bNew && m_nPhase == 0)
        StrokeClosing();
}

template <class Kinds>
double COrvDrawOnOffDash<Kinds>::GetLength(int) {
    return m_dRemain;
}

template <class Kinds>
int COrvDrawOnOffDash<Kinds>::DrawDash(double x1, double y1, double x2, double y2, int nIndex) {
    m_nPhase = orv::phaseOfPiece(*m_pRow, nIndex);
    const POINT from = m_bMoveToNew ? POINT{orv::truncToInt(x1), orv::truncToInt(y1)} : m_ptLastB;
    const POINT to = {orv::truncToInt(x2), orv::truncToInt(y2)};
    m_ptLastA = m_ptLastB = to;
    m_dRemain -= GetDistance(x1, y1, x2, y2);
    m_bMoveToNew = 0;

    const int nKind = orv::kindOfPhase(*m_pRow, m_nPhase);
    if (nKind < 0)
        return 1;
    orv::strokeGeometric(m_hDC, penOfKind<Kinds>(*this, nKind), from, to);
    if (m_dRemain < orv::kPieceEnd)
        m_dRemain = this->*kKinds<Kinds>[orv::kindAfterPhase(*m_pRow, m_nPhase)].pLen;
    return 1;
}

template <class Kinds>
int COrvDrawOnOffDash<Kinds>::GetDashType() {
    return m_pRow->nType;
}

template <class Kinds>
int COrvDrawOnOffDash<Kinds>::SetLineProperty(int nWidth, COLORREF crColor) {
    const COLORREF crGap = orv::gapColor(m_pRow->gapColor, crColor, this->m_crColor1);
    for (const KindFields<Kinds>& kind : kKinds<Kinds>) {
        this->*kind.pWidth = nWidth;
        this->*kind.pColor = crColor;
    }
    this->m_crColor1 = crGap;
    return COrvDrawBasicDash::SetLineProperty(nWidth, crColor);
}

template <class Kinds>
int COrvDrawOnOffDash<Kinds>::SetLinePropertyDefault() {
    Init();
    return 1;
}

template <class Kinds>
int COrvDrawOnOffDash<Kinds>::FinishDraw() {
    Init();
    m_bMoveToNew = 1;
    if (m_pRow->bFinishClearsPoints)
        m_ptLastA = m_ptLastB = m_ptLastC = POINT{};
    return 1;
}

template <class Kinds>
void COrvDrawOnOffDash<Kinds>::Serialize(CArchive& ar) {
    orv::archiveWhole(*this, ar, [](COrvDrawOnOffDash& dash, CArchive& fields) {
        dash.COrvDrawBasicDash::Serialize(fields);
        for (const KindFields<Kinds>& kind : kKinds<Kinds>)
            orv::archiveFields(fields, dash.*kind.pColor);
        for (const KindFields<Kinds>& kind : kKinds<Kinds>)
            orv::archiveFields(fields, dash.*kind.pLen);
        for (const KindFields<Kinds>& kind : kKinds<Kinds>)
            orv::archiveFields(fields, dash.*kind.pWidth);
        orv::archiveFields(fields, dash.m_nPhase, dash.m_dRemain, dash.m_ptLastA.x, dash.m_ptLastA.y,
                           dash.m_ptLastB.x, dash.m_ptLastB.y);
    });
}

template <class Kinds>
int COrvDrawOnOffDash<Kinds>::ResetDrawEnvir() {
    if (!m_hDC)
        return 0;
    StrokeClosing();
    return 1;
}

template <class Kinds>
void COrvDrawOnOffDash<Kinds>::Dump(CDumpContext& dc) const {
    COrvDrawBasicDash::Dump(dc);
    for (const KindFields<Kinds>& kind : kKinds<Kinds>)
        dc << "  width " << this->*kind.pWidth << ", length " << this->*kind.pLen << ", colour "
           << this->*kind.pColor << ", style " << this->*kind.pStyle << "\n";
    dc << "  m_dRemain = " << m_dRemain << ", m_nPhase = " << m_nPhase << ", m_ptLastB = (" << m_ptLastB.x
       << ", " << m_ptLastB.y << ")\n";
}

template <class Kinds>
void COrvDrawOnOffDash<Kinds>::StrokeClosing() {
    orv::strokePlain(m_hDC, penOfKind<Kinds>(*this, 0), m_ptLastB, m_ptLastC);
}

template class COrvDrawOnOffDash<OrvTwoKinds>;
template class COrvDrawOnOffDash<OrvThreeKinds>;

COrvDrawDashDash::COrvDrawDashDash() : COrvDrawDashDash(HDC(NULL)) {}
COrvDrawDashDash::COrvDrawDashDash(HDC hDC) : COrvDrawOnOffDash(hDC, orv::kDashRow) {}

COrvDrawDashDot::COrvDrawDashDot() : COrvDrawDashDot(HDC(NULL)) {}
COrvDrawDashDot::COrvDrawDashDot(HDC hDC) : COrvDrawOnOffDash(hDC, orv::kDotRow) {}

COrvDrawDashDotDot::COrvDrawDashDotDot() : COrvDrawDashDotDot(HDC(NULL)) {}
COrvDrawDashDotDot::COrvDrawDashDotDot(HDC hDC) : COrvDrawOnOffDash(hDC, orv::kDashDotRow) {}

COrvDrawDashDotDotTwice::COrvDrawDashDotDotTwice() : COrvDrawDashDotDotTwice(HDC(NULL)) {}
COrvDrawDashDotDotTwice::COrvDrawDashDotDotTwice(HDC hDC) : COrvDrawOnOffDash(hDC, orv::kDashDotDotRow) {}
