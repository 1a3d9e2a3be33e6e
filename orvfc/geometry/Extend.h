#pragma once

#include <afx.h>

#include <orvfc/OrvApi.h>

// A double that is kept rounded to a number of decimals which is one for the whole library. Changing that
// number changes no value until it is assigned or reset.
class ORVFC_API CExtend {
public:
    CExtend() {} // the value is left unset
    CExtend(double v);
    CExtend(const CExtend&) = default;
    CExtend& operator=(const CExtend&) = default;
    CExtend& operator=(double v);

    // Rounds the value again, halves away from zero: after a write through the reference or a new precision.
    void ResetValue();

    operator double() const { return m_dValue; }
    operator double&() { return m_dValue; } // what is written here is not rounded

    // Number of decimals, 5 at first; negative ones round to tens, hundreds, ... Not guarded against threads.
    static void SetPreBit(int nPreBit);
    static int GetPreBit();

    void Dump(CDumpContext& dc) const;

private:
    double m_dValue;
};
