#pragma once

#include <orvfc/services/NamedSet.h>

// A line width that the user can pick.
struct ORVFC_API LineWidthStruct {
    CString strName;
    double dValue; // in the unit that the name states: millimetres or pixels

    LineWidthStruct() : dValue(0.0) {}
    LineWidthStruct(CString name, double value) : strName(name), dValue(value) {}
    // A copy. Null asserts and gives an empty row.
    explicit LineWidthStruct(const LineWidthStruct* pRow);
    LineWidthStruct(const LineWidthStruct& row) = default;
    LineWidthStruct& operator=(const LineWidthStruct& row) = default;

    void init() { *this = LineWidthStruct(); }
    void init(CString name, double value) { *this = LineWidthStruct(name, value); }
    void init(const LineWidthStruct* pRow) { *this = LineWidthStruct(pRow); }
    void init(const LineWidthStruct& row) { *this = row; }

    // Exactly equal, the value too.
    BOOL operator==(const LineWidthStruct& row) const;

    // Name, then value in 64 bits. A load that throws leaves the row as it was.
    void Serialize(CArchive& ar);
    void Dump(CDumpContext& dc) const;
};

// The catalogue of line widths. Where several rows fit, the first counts.
class ORVFC_API CLineWidthSet : public COrvNamedSet<LineWidthStruct, double> {
public:
    // With the built-in widths in millimetres.
    CLineWidthSet();

    // Back to the built-in widths in millimetres alone.
    void Init();
    // Appends the built-in widths, in millimetres or (0) in pixels, and a last row for other widths, of
    // value 1. Returns 1.
    int AddGerLineWidth(int bMillimetre);

    // Values closer than 0.000001 are the same. An unknown value gives a made-up name, which speaks of a line
    // type.
    CString GetLineName(double dValue) const;
    // 1.0 for an unknown name. Names are compared byte for byte.
    double GetLineIndex(CString strName) const;
};
