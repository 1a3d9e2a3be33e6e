#pragma once

#include "OrvDrawBasicDash.h"

namespace orv {
struct OnOffRow;
}

// The fields of a pattern of dash (0) and gap (1), and of one with a dot (2) besides. Widths and lengths are
// logical units; the style is passed to ExtCreatePen.
struct OrvTwoKinds {
    int m_nWidth0, m_nWidth1;
    int m_nLen0, m_nLen1;
    COLORREF m_crColor0, m_crColor1;
    int m_nStyle0, m_nStyle1;
};
struct OrvThreeKinds {
    int m_nWidth0, m_nWidth1, m_nWidth2;
    int m_nLen0, m_nLen1, m_nLen2;
    COLORREF m_crColor0, m_crColor1, m_crColor2;
    int m_nStyle0, m_nStyle1, m_nStyle2;
};

// What the four on/off patterns have in common: every piece is one stroke with a geometric pen of its own,
// the gaps with an invisible one.
//
// A new figure begins where its first piece begins; all other pieces go on from the end of the last one, also
// across figures when nobody calls SetMoveToNew.
template <class Kinds>
class ORVFC_API COrvDrawOnOffDash : public COrvDrawBasicDash, public Kinds {
public:
    double m_dRemain; // how long the current piece still has to run
    int m_nPhase;     // of the last drawn piece, 1 before the first; below zero it draws nothing
    POINT m_ptLastA;  // where the last piece ended
    POINT m_ptLastB;  // the same: where the next piece starts
    POINT m_ptLastC;  // where the closing stroke goes; no drawing ever sets it

    COrvDrawOnOffDash(const COrvDrawOnOffDash&) = default;
    COrvDrawOnOffDash& operator=(const COrvDrawOnOffDash&) = default;

    // Sets every default but the stored points.
    void Init();

    // After a piece of phase 0 a non-zero bNew also draws the closing stroke from B to C. C is the zero point
    // unless the caller has set it: a stroke to the origin that callers know and keep.
    void SetMoveToNew(int bNew) override;
    double GetLength(int nIndex) override;
    int DrawDash(double x1, double y1, double x2, double y2, int nIndex) override;
    int GetDashType() override;
    // Gives all kinds the width and the visible ones the colour; the gap's colour differs per pattern. Both
    // last for one drawing.
    int SetLineProperty(int nWidth, COLORREF crColor) override;
    int SetLinePropertyDefault() override;
    // Restores every default; the base's m_nWidth and m_crColor stay.
    int FinishDraw() override;
    // Base fields, colours, lengths, widths, phase, remaining length, points A and B. Styles and C are not
    // stored.
    void Serialize(CArchive& ar) override;
    int ResetDrawEnvir() override;
    void Dump(CDumpContext& dc) const;

protected:
    COrvDrawOnOffDash(HDC hDC, const orv::OnOffRow& row);

private:
    void StrokeClosing();

    const orv::OnOffRow* m_pRow; // the pattern's fixed facts
};

// Type 1: dash 18, gap 5. The gap's colour is the complement of the line's. FinishDraw clears the stored
// points.
class ORVFC_API COrvDrawDashDash : public COrvDrawOnOffDash<OrvTwoKinds> {
public:
    COrvDrawDashDash();
    explicit COrvDrawDashDash(HDC hDC);
    COrvDrawDashDash(const COrvDrawDashDash&) = default;
    COrvDrawDashDash& operator=(const COrvDrawDashDash&) = default;
};

// Type 2: dot 5, gap 5. The gap's colour is the line's.
class ORVFC_API COrvDrawDashDot : public COrvDrawOnOffDash<OrvTwoKinds> {
public:
    COrvDrawDashDot();
    explicit COrvDrawDashDot(HDC hDC);
    COrvDrawDashDot(const COrvDrawDashDot&) = default;
    COrvDrawDashDot& operator=(const COrvDrawDashDot&) = default;
};

// Type 3: dash 17, gap 5, dot 5, gap 5. The gap's colour stays white.
class ORVFC_API COrvDrawDashDotDot : public COrvDrawOnOffDash<OrvThreeKinds> {
public:
    COrvDrawDashDotDot();
    explicit COrvDrawDashDotDot(HDC hDC);
    COrvDrawDashDotDot(const COrvDrawDashDotDot&) = default;
    COrvDrawDashDotDot& operator=(const COrvDrawDashDotDot&) = default;
};

// Type 4: dash 17, gap 6, dot 5, gap 6, dot 5, gap 6. The gap's colour is the complement of the line's.
class ORVFC_API COrvDrawDashDotDotTwice : public COrvDrawOnOffDash<OrvThreeKinds> {
public:
    COrvDrawDashDotDotTwice();
    explicit COrvDrawDashDotDotTwice(HDC hDC);
    COrvDrawDashDotDotTwice(const COrvDrawDashDotDotTwice&) = default;
    COrvDrawDashDotDotTwice& operator=(const COrvDrawDashDotDotTwice&) = default;
};
