#pragma once

#include <afx.h>
#include <orvfc/OrvApi.h>

class CDC;

// A copy of a device context's path: its points (logical units) and a type byte for each.
class ORVFC_API COrvGPathData {
public:
    // Owned, allocated with new[]; null until a path was copied.
    POINT* m_pPoints;
    BYTE* m_pTypes; // PT_MOVETO, PT_LINETO or PT_BEZIERTO, each possibly with PT_CLOSEFIGURE
    int m_nCount;   // as the last path query gave it: number of points, or not positive without a path

    COrvGPathData();
    // Copies are deep. A copy for which memory is short is empty.
    COrvGPathData(const COrvGPathData& other);
    COrvGPathData& operator=(const COrvGPathData& other);
    virtual ~COrvGPathData();

    // Replaces the copy by the current path of pDC, which keeps its path, and returns m_nCount. With short
    // memory the result is the number of points and both arrays are null. A null pDC gives 0.
    int GetPathData(CDC* pDC);

    void Dump(CDumpContext& dc) const;

private:
    void Empty();
    BOOL Allocate(int nCount);
};
