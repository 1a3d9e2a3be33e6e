#pragma once

// Where the cells of a palette lie, which one is at a point, and where the keys lead.

#include <afx.h>
#include <atltypes.h>

namespace orv {

enum class GridStep { left, up, right, down, first, last };

// Square cells in rows, in pixels from the window's left top; below them, when there is one, a wide cell for
// the user's own value. Cells are numbered from 0 row by row, the wide one last. Rectangles are half-open.
class PaletteGrid {
public:
    // At first 8 columns of cells 20 wide. More columns, then smaller cells, when the room does not do;
    // cells that have no room even so are left out.
    PaletteGrid(int nSquares, bool bWide, CSize room);

    CSize size() const;
    int count() const { return m_nSquares + (m_bWide ? 1 : 0); }
    bool isWide(int nCell) const { return m_bWide && nCell == m_nSquares; }
    CRect cell(int nCell) const;
    // -1 beside all cells.
    int hit(CPoint point) const;
    // From a cell; a step over the edge stays. From none (-1) every step but the one
    // to the last leads to the first.
    int step(int nCell, GridStep way) const;

private:
    bool fit(int nCellSize, CSize room);
    int rows() const { return (m_nSquares + m_nColumns - 1) / m_nColumns; }

    int m_nSquares;
    bool m_bWide;
    int m_nColumns;
    int m_nCellSize;
};

// Where a window of that size opens: below the anchor, or above it where there is more room, inside area as
// far as it goes.
CPoint placeAt(const CRect& anchor, CSize size, const CRect& area);

} // namespace orv
