#pragma once

#include "OrvDrawBasicDash.h"

// Walks a line in double precision and has a pattern draw it piece by piece.
//
// Give it a pattern first, then either MoveTo and LineTo followed by FinishDraw, or PolyDraw, which finishes
// by itself. Without a pattern MoveTo, LineTo and PolyDraw assert and return 0.
class ORVFC_API COrvDrawCurve {
public:
    CString m_strName;
    COrvDrawBasicDash* m_pDash; // not owned
    int m_nIndex;               // number of the current piece; starts over at 0 after 2147483639
    double m_dCurX, m_dCurY;    // the current point

    COrvDrawCurve();
    // pDash stays the caller's and must outlive the drawing.
    explicit COrvDrawCurve(COrvDrawBasicDash* pDash);
    // A copy draws with the same pattern object.
    COrvDrawCurve(const COrvDrawCurve&) = default;
    COrvDrawCurve& operator=(const COrvDrawCurve&) = default;

    virtual ~COrvDrawCurve();
    // Name, piece number, current point, and the pattern with its kind (see docs/line-type-file.md). Loading
    // creates the pattern, which is then the caller's to delete; a pattern held before is neither used nor
    // deleted. A kind that is not known throws CArchiveException (badClass). When anything throws the curve
    // is as before.
    virtual void Serialize(CArchive& ar);
    // Back to the start: no name, point (0, 0), piece 0; finishes the pattern, if there is one. Returns 1.
    virtual int FinishDraw();

    // As constructed: no pattern, no name, point (0, 0), piece 0.
    void Init();
    CString GetDrawName() const { return m_strName; }
    void SetDrawName(CString strName) { m_strName = strName; }

    // Starts a new figure of the pattern, which goes on with its current piece. Returns 1.
    int MoveTo(double x, double y);
    // Walks to (x, y). Returns 0 as soon as the pattern refuses a piece, or when the walk cannot get on: a
    // segment that is not finite, a piece length that is negative or not a number, more than 64 pieces of no
    // length in a row.
    int LineTo(double x, double y);
    // Walks a path of n points in the system's own form. Bezier points are skipped: flatten the path first.
    // Figures are joined: the first piece of a later figure starts where the last piece of the one before
    // ended, since a PT_MOVETO does not start a new figure of the pattern. Closing a figure walks back to its
    // first point, or to (0, 0) when the path never moved. Returns 0, unfinished, when a LineTo fails, else
    // finishes and returns 1.
    int PolyDraw(const POINT* pts, const BYTE* types, int n);

    void Dump(CDumpContext& dc) const;
};
