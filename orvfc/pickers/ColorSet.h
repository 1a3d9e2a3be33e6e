#pragma once

#include <orvfc/services/NamedSet.h>

// A colour that the user can pick.
struct ORVFC_API ColorSetStruct {
    CString strName;
    COLORREF crColor; // 0x00BBGGRR

    ColorSetStruct() : crColor(0) {}
    ColorSetStruct(CString name, COLORREF color) : strName(name), crColor(color) {}
    // A copy. Null asserts and gives an empty row.
    explicit ColorSetStruct(const ColorSetStruct* pRow);
    ColorSetStruct(const ColorSetStruct& row) = default;
    ColorSetStruct& operator=(const ColorSetStruct& row) = default;

    void init() { *this = ColorSetStruct(); }
    void init(CString name, COLORREF color) { *this = ColorSetStruct(name, color); }
    void init(const ColorSetStruct* pRow) { *this = ColorSetStruct(pRow); }
    void init(const ColorSetStruct& row) { *this = row; }

    BOOL operator==(const ColorSetStruct& row) const;

    // Name, then colour in 32 bits. A load that throws leaves the row as it was.
    void Serialize(CArchive& ar);
    void Dump(CDumpContext& dc) const;
};

// The catalogue of named colours that the pickers show. Where several rows fit, the first counts.
class ORVFC_API CColorSet : public COrvNamedSet<ColorSetStruct, COLORREF> {
public:
    // With the built-in rows.
    CColorSet();

    // Back to the built-in rows alone.
    void Init();
    void EmptyAllColors();
    // Appends the 20 built-in rows. Two are named 绿色 (bright and dark), 粉红 and 紫红色 are one colour, and
    // the last, 其它..., is black and stands for a colour of the user's own.
    void AddGerColors();

    // An unknown colour is named by its red, green and blue: " 86 , 52 , 18 ".
    CString GetColorName(COLORREF cr) const;
    // The colour of a name, not its row; 0 for an unknown name. Names are compared byte for byte.
    COLORREF GetColorIndex(CString strName) const;
    // The same among the built-in rows, without a catalogue. 绿色 is always the bright one.
    static COLORREF GetColorByName(CString strName);
};
