#pragma once

#include <orvfc/services/NamedSet.h>

// A line type that the user can pick.
struct ORVFC_API LineTypeStruct {
    CString strName;
    unsigned int nValue; // a pattern's GetDashType, or 0 for solid

    LineTypeStruct() : nValue(0) {}
    LineTypeStruct(CString name, unsigned int value) : strName(name), nValue(value) {}
    // A copy. Null asserts and gives an empty row.
    explicit LineTypeStruct(const LineTypeStruct* pRow);
    LineTypeStruct(const LineTypeStruct& row) = default;
    LineTypeStruct& operator=(const LineTypeStruct& row) = default;

    void init() { *this = LineTypeStruct(); }
    void init(CString name, unsigned int value) { *this = LineTypeStruct(name, value); }
    void init(const LineTypeStruct* pRow) { *this = LineTypeStruct(pRow); }
    void init(const LineTypeStruct& row) { *this = row; }

    BOOL operator==(const LineTypeStruct& row) const;

    // Name, then value in 32 bits. A load that throws leaves the row as it was.
    void Serialize(CArchive& ar);
    void Dump(CDumpContext& dc) const;
};

// The catalogue of line types. Where several rows fit, the first counts.
class ORVFC_API CLineTypeSet : public COrvNamedSet<LineTypeStruct, unsigned int> {
public:
    // With the built-in rows.
    CLineTypeSet();

    // Back to the built-in rows alone.
    void Init();
    // Appends the built-in rows: 0 to 5 and 101. Returns 1.
    int AddGerLineType();

    // An unknown value gives a trace and a made-up name with the value in it.
    CString GetLineName(unsigned int nValue) const;
    // 0xFFFFFFFF for an unknown name. Names are compared byte for byte.
    unsigned int GetLineIndex(CString strName) const;
};
