#include "OrvDrawCurve.h"

#include <memory>

#include <orvfc/services/ArchiveFields.h>
#include "OrvDrawDashRailway.h"
#include "OrvDrawDashWeaver.h"
#include "OrvOnOffDash.h"
#include "PathWalk.h"

namespace {

// What a stored curve says about its pattern. The railway has a mark of its own, since the zig-zag answers to
// the same type number.
enum : int { kNoPattern, kPattern, kRailway };

template <class Dash>
std::unique_ptr<COrvDrawBasicDash> makeDash() {
    return std::make_unique<Dash>();
}

struct StoredKind {
    int nHeld;
    int nType;
    std::unique_ptr<COrvDrawBasicDash> (*make)();
};
constexpr StoredKind kStoredKinds[] = {
    {kPattern, 1, makeDash<COrvDrawDashDash>},      {kPattern, 2, makeDash<COrvDrawDashDot>},
    {kPattern, 3, makeDash<COrvDrawDashDotDot>},    {kPattern, 4, makeDash<COrvDrawDashDotDotTwice>},
    {kPattern, 5, makeDash<COrvDrawBasicDash>},     {kPattern, 101, makeDash<COrvDrawDashWeaver>},
    {kRailway, 101, makeDash<COrvDrawDashRailway>},
};

std::unique_ptr<COrvDrawBasicDash> loadDash(CArchive& ar) {
    int nHeld = kNoPattern;
    ar >> nHeld;
    if (nHeld == kNoPattern)
        return nullptr;
    int nType = 0;
    ar >> nType;
    for (const StoredKind& kind : kStoredKinds) {
        if (kind.nHeld != nHeld || kind.nType != nType)
            continue;
        std::unique_ptr<COrvDrawBasicDash> dash = kind.make();
        dash->Serialize(ar);
        return dash;
    }
    AfxThrowArchiveException(CArchiveException::badClass);
}

void storeDash(CArchive& ar, COrvDrawBasicDash* pDash) {
    if (!pDash) {
        ar << int(kNoPattern);
        return;
    }
    ar << int(dynamic_cast<COrvDrawDashRailway*>(pDash) ? kRailway : kPattern) << pDash->GetDashType();
    pDash->Serialize(ar);
}

} // namespace

COrvDrawCurve::COrvDrawCurve() {
    Init();
}

COrvDrawCurve::COrvDrawCurve(COrvDrawBasicDash* pDash) : COrvDrawCurve() {
    m_pDash = pDash;
}

COrvDrawCurve::~COrvDrawCurve() = default;

void COrvDrawCurve::Init() {
    m_pDash = NULL;
    m_strName.Empty();
    m_dCurX = m_dCurY = 0.0;
    m_nIndex = 0;
}

void COrvDrawCurve::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        orv::archiveFields(ar, m_strName, m_nIndex, m_dCurX, m_dCurY);
        storeDash(ar, m_pDash);
        return;
    }
    COrvDrawCurve aside;
    orv::archiveFields(ar, aside.m_strName, aside.m_nIndex, aside.m_dCurX, aside.m_dCurY);
    aside.m_pDash = loadDash(ar).release();
    *this = aside;
}

int COrvDrawCurve::FinishDraw() {
    m_strName.Empty();
    m_dCurX = m_dCurY = 0.0;
    m_nIndex = 0;
    if (m_pDash)
        m_pDash->FinishDraw();
    return 1;
}

int COrvDrawCurve::MoveTo(double x, double y) {
    ASSERT(m_pDash);
    if (!m_pDash)
        return 0;
    m_dCurX = x;
    m_dCurY = y;
    m_pDash->SetMoveToNew(1);
    return 1;
}

int COrvDrawCurve::LineTo(double x, double y) {
    ASSERT(m_pDash);
    if (!m_pDash)
        return 0;
    return orv::walkSegment(*m_pDash, m_dCurX, m_dCurY, m_nIndex, x, y);
}

int COrvDrawCurve::PolyDraw(const POINT* pts, const BYTE* types, int n) {
    ASSERT(m_pDash && (n < 1 || (pts && types)));
    if (!m_pDash || (n > 0 && (!pts || !types)))
        return 0;
    POINT start = {0, 0};
    for (int i = 0; i < n; ++i) {
        const int nType = types[i] & ~PT_CLOSEFIGURE;
        if (nType == PT_LINETO && !LineTo(pts[i].x, pts[i].y))
            return 0;
        if (nType == PT_MOVETO) {
            start = pts[i];
            m_dCurX = start.x;
            m_dCurY = start.y;
        }
        if ((types[i] & PT_CLOSEFIGURE) && !LineTo(start.x, start.y))
            return 0;
    }
    FinishDraw();
    return 1;
}

void COrvDrawCurve::Dump(CDumpContext& dc) const {
    dc << "COrvDrawCurve m_strName = " << m_strName << ", m_nIndex = " << m_nIndex << ", current point ("
       << m_dCurX << ", " << m_dCurY << ")\n";
    if (m_pDash)
        m_pDash->Dump(dc);
}
