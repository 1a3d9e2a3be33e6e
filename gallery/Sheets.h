#pragma once

#include <afxwin.h>

#include <span>

namespace gallery {

// One picture of the tour. Each sheet has a source file of its own and a row in Sheets.cpp.
struct Sheet {
    const char* name; // of the picture, without ".png"
    int width;        // pixels
    int height;
    void (*draw)(CDC& dc); // on white paper of this size
    // Writes the files that belong beside the picture; false when one cannot be written. NULL: there are
    // none.
    bool (*writeBeside)(const CString& folder) = NULL;
};

std::span<const Sheet> sheets();

void drawLineSheet(CDC& dc);
void drawStationSheet(CDC& dc);
void drawTextSheet(CDC& dc);
void drawTimeScaleSheet(CDC& dc);
void drawOutBarSheet(CDC& dc);
void drawAboutSheet(CDC& dc);
void drawPickerSheet(CDC& dc);
void drawTextPropertySheet(CDC& dc);
void drawBitmapSheet(CDC& dc);
bool writeBitmapSamples(const CString& folder);

} // namespace gallery
