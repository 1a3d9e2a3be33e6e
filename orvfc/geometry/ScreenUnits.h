#pragma once

#include <orvfc/OrvApi.h>

class CDC;

// Centimetres and pixels of the screen, by its vertical pixels per logical inch. pDC is not looked at and may
// be null. 0 when there is no screen.

// Whole inches only: at 96 pixels per inch 95 pixels are 0 cm and 96 to 191 are 2.54 cm. Callers rely on the
// coarse steps.
ORVFC_API double GetCMFromPels(CDC* pDC, int pels);

// Truncated toward zero.
ORVFC_API int GetPelsFromCM(CDC* pDC, double cm);
