#pragma once

#include <afx.h>
#include <orvfc/OrvApi.h>

// The base of all line patterns: decides how long each piece of a line is and draws it.
//
// All lengths and widths are logical units of the device context. COrvDrawCurve cuts the line into pieces; a
// pattern keeps its phase from piece to piece until FinishDraw. The base itself is the pattern that draws no
// line (type 5).
class ORVFC_API COrvDrawBasicDash {
public:
    COrvDrawBasicDash();
    // Draws on hDC, which is not owned and must outlive the drawing.
    explicit COrvDrawBasicDash(HDC hDC);
    COrvDrawBasicDash(const COrvDrawBasicDash&) = default;
    COrvDrawBasicDash& operator=(const COrvDrawBasicDash&) = default;

    // 1: the curve also draws the piece that the end of a segment cuts. 0 in the base, 1 in every pattern.
    int m_nDrawType;
    // Non-zero: the next piece starts a new figure where the caller says, not where the last piece ended.
    BOOL m_bMoveToNew;
    COLORREF m_crColor;
    int m_nWidth;
    CString m_strType; // the type's name, "空类型" in every class of the library
    HDC m_hDC;         // may be null: then nothing is drawn
    int m_nTag;        // stored and loaded, not used otherwise

    virtual ~COrvDrawBasicDash();
    virtual CString GetType();
    virtual void SetMoveToNew(int bNew);
    // How long piece number nIndex still has to run. Base: 10.
    virtual double GetLength(int nIndex);
    // Draws piece number nIndex, or the part of it that fits the segment, and returns non-zero when the walk
    // may go on. Coordinates are truncated toward zero for drawing. Base: draws nothing and returns 0.
    virtual int DrawDash(double x1, double y1, double x2, double y2, int nIndex);
    // The pattern's number in the catalogue of line types. Base: 5.
    virtual int GetDashType();
    // Both return 1.
    virtual int SetLineProperty(int nWidth, COLORREF crColor);
    virtual int SetLinePropertyDefault();
    // Ends a drawing: the patterns go back to their defaults, colour and width included, and return 1. Base:
    // 0.
    virtual int FinishDraw();
    // Stores or loads the pattern without its device context; throws as CArchive does, and a pattern half
    // loaded is to be thrown away.
    virtual void Serialize(CArchive& ar);
    // Draws the closing stroke of the last figure again; returns 0 when there is none to draw. Base: 0.
    virtual int ResetDrawEnvir();

    BOOL IsMoveToNew() const { return m_bMoveToNew; }
    int GetDrawType() const { return m_nDrawType; }
    void Dump(CDumpContext& dc) const;
};
