#pragma once

#include "OrvDrawBasicDash.h"

// Type 101, the track: two rails one gauge apart, hollow and filled sections in turn.
//
// The line width is the gauge; the colour of a line property reaches the base fields alone, the track keeps
// its own. Sections share their corners, so that the track bends cleanly. FinishDraw restores every default
// but the stored points.
class ORVFC_API COrvDrawDashRailway : public COrvDrawBasicDash {
public:
    int m_nGauge;               // between the rails, logical units
    int m_nLen0;                // of a hollow section; the very first one is m_nLen1 long
    int m_nLen1;                // of a filled section
    COLORREF m_crColor0;        // rails and filled sections
    COLORREF m_crColor1;        // fill selected for the hollow sections
    double m_dRemain;           // how long the current section still has to run
    int m_nPhase;               // 0 hollow, 1 filled; 1 before the first section
    POINT m_ptLastE;            // end of the last piece on the centre line
    POINT m_ptLastL, m_ptLastR; // its corners, left and right along the walk

    COrvDrawDashRailway();
    explicit COrvDrawDashRailway(HDC hDC);
    COrvDrawDashRailway(const COrvDrawDashRailway&) = default;
    COrvDrawDashRailway& operator=(const COrvDrawDashRailway&) = default;

    // Sets every default but the stored points.
    void Init();

    // After a hollow section a non-zero bNew also draws the stroke from L to R that closes it.
    void SetMoveToNew(int bNew) override;
    double GetLength(int nIndex) override;
    // A piece without length has no direction: it ends at the corners where it starts, and one that would
    // start a new figure draws nothing and leaves the start to the next piece.
    int DrawDash(double x1, double y1, double x2, double y2, int nIndex) override;
    int GetDashType() override;
    int SetLineProperty(int nWidth, COLORREF crColor) override;
    int SetLinePropertyDefault() override;
    int FinishDraw() override;
    // Base fields, colours, lengths, gauge, phase, remaining length, points E, L and R.
    void Serialize(CArchive& ar) override;
    int ResetDrawEnvir() override;
    void Dump(CDumpContext& dc) const;

private:
    void FinishPiece(double dDistance);
    void StrokeClosing();
};
