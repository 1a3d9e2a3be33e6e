#pragma once

#include "OrvDrawBasicDash.h"

// Type 101 as well, the zig-zag: every piece is a tent, by turns on either side of the line, drawn with the
// base's width and colour.
//
// DrawDash returns 0 after drawing, so that a walk ends after its first whole piece: one tent per LineTo, one
// per drawn path. Callers know it so.
class ORVFC_API COrvDrawDashWeaver : public COrvDrawBasicDash {
public:
    int m_nLen;           // stored, not used by drawing
    int m_nAmp1, m_nAmp2; // an even piece is m_nAmp2 long and m_nAmp1 high, an odd one the other way round
    double m_dRemain;     // stored, not used by drawing
    int m_nPhase; // 0 on the counter-clockwise side of the line, 1 on the other; 1 before the first piece

    COrvDrawDashWeaver();
    explicit COrvDrawDashWeaver(HDC hDC);
    COrvDrawDashWeaver(const COrvDrawDashWeaver&) = default;
    COrvDrawDashWeaver& operator=(const COrvDrawDashWeaver&) = default;

    void Init();

    void SetMoveToNew(int bNew) override;
    double GetLength(int nIndex) override;
    int DrawDash(double x1, double y1, double x2, double y2, int nIndex) override;
    int GetDashType() override;
    int SetLineProperty(int nWidth, COLORREF crColor) override;
    int SetLinePropertyDefault() override;
    // Restores nothing; returns 1.
    int FinishDraw() override;
    // Base fields, length, both amplitudes, phase, remaining length.
    void Serialize(CArchive& ar) override;
    int ResetDrawEnvir() override;
    void Dump(CDumpContext& dc) const;
};
