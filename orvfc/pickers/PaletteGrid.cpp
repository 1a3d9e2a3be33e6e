#include "PaletteGrid.h"

#include <algorithm>

namespace orv {

namespace {

constexpr int kMargin = 4;
constexpr int kColumns = 8;
constexpr int kCellSize = 20;
constexpr int kSmallest = 5;
constexpr int kWideHeight = 22;

} // namespace

PaletteGrid::PaletteGrid(int nSquares, bool bWide, CSize room)
    : m_nSquares(std::max(nSquares, 0)), m_bWide(bWide), m_nColumns(kColumns), m_nCellSize(kCellSize) {
    for (int nCellSize = kCellSize; nCellSize >= kSmallest; --nCellSize)
        if (fit(nCellSize, room))
            return;
    const int nRows = (static_cast<int>(room.cy) - (size().cy - rows() * m_nCellSize)) / m_nCellSize;
    m_nSquares = std::min(m_nSquares, std::max(nRows, 1) * m_nColumns);
}

// As few columns as the room's height allows. False when they are wider than the room.
bool PaletteGrid::fit(int nCellSize, CSize room) {
    m_nCellSize = nCellSize;
    const int nHeight = static_cast<int>(room.cy) - 2 * kMargin - (m_bWide ? kMargin + kWideHeight : 0);
    const int nMostRows = std::max(nHeight / nCellSize, 1);
    const int nNeeded = std::max((m_nSquares + nMostRows - 1) / nMostRows, kColumns);
    const int nMost = std::max((static_cast<int>(room.cx) - 2 * kMargin) / nCellSize, 1);
    m_nColumns = std::min(nNeeded, nMost);
    return nNeeded <= nMost;
}

CSize PaletteGrid::size() const {
    const int nBelow = m_bWide ? kMargin + kWideHeight : 0;
    return CSize(m_nColumns * m_nCellSize + 2 * kMargin, rows() * m_nCellSize + nBelow + 2 * kMargin);
}

CRect PaletteGrid::cell(int nCell) const {
    if (nCell < 0 || nCell >= count())
        return CRect(0, 0, 0, 0);
    if (isWide(nCell)) {
        const int nTop = 2 * kMargin + rows() * m_nCellSize;
        return CRect(kMargin, nTop, kMargin + m_nColumns * m_nCellSize, nTop + kWideHeight);
    }
    const CPoint at(kMargin + nCell % m_nColumns * m_nCellSize, kMargin + nCell / m_nColumns * m_nCellSize);
    return CRect(at, CSize(m_nCellSize, m_nCellSize));
}

int PaletteGrid::hit(CPoint point) const {
    if (m_bWide && cell(m_nSquares).PtInRect(point))
        return m_nSquares;
    if (point.x < kMargin || point.y < kMargin)
        return -1;
    const int nColumn = (static_cast<int>(point.x) - kMargin) / m_nCellSize;
    const int nRow = (static_cast<int>(point.y) - kMargin) / m_nCellSize;
    if (nColumn >= m_nColumns || nRow >= rows())
        return -1;
    const int nCell = nRow * m_nColumns + nColumn;
    return nCell < m_nSquares ? nCell : -1;
}

int PaletteGrid::step(int nCell, GridStep way) const {
    const int nLast = count() - 1;
    if (nCell < 0 || nCell > nLast)
        return nLast < 0 || way == GridStep::last ? nLast : 0;
    switch (way) {
    case GridStep::left:
        return std::max(nCell - 1, 0);
    case GridStep::right:
        return std::min(nCell + 1, nLast);
    case GridStep::up:
        if (isWide(nCell))
            return std::max(nCell - 1, 0);
        return nCell >= m_nColumns ? nCell - m_nColumns : nCell;
    case GridStep::down:
        if (nCell + m_nColumns < m_nSquares)
            return nCell + m_nColumns;
        return m_bWide ? m_nSquares : nCell;
    case GridStep::first:
        return 0;
    case GridStep::last:
        return nLast;
    }
    return nCell;
}

CPoint placeAt(const CRect& anchor, CSize size, const CRect& area) {
    const int nBelow = area.bottom - anchor.bottom;
    const int nAbove = anchor.top - area.top;
    const bool bBelow = size.cy <= nBelow || nBelow >= nAbove;
    const int y = bBelow ? anchor.bottom : anchor.top - size.cy;
    const auto inside = [](int nAt, int nSize, int nLow, int nHigh) {
        return std::max(nLow, std::min(nAt, nHigh - nSize));
    };
    return CPoint(inside(anchor.left, size.cx, area.left, area.right),
                  inside(y, size.cy, area.top, area.bottom));
}

} // namespace orv
