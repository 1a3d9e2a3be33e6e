#pragma once

// Device-independent bitmaps: reading, writing, drawing, turning; and their exchange with device bitmaps.

#include <afxwin.h>
#include <orvfc/OrvApi.h>

namespace orv {
struct DibLayout;
}

// One bitmap in the layout of Windows bitmap files: a 40-byte header, the masks of bit fields if it has any
// (16 and 32 bits), the colour table, the rows, each filled up to a multiple of 4 bytes. It lies in memory
// of its own, in the caller's, in a DIB section or in a mapped file. 1, 4, 8, 16, 24 and 32 bits a pixel;
// run-length rows (4 and 8 bits) are kept as they are. A negative height in the header means rows from the
// top down: such a picture is read, drawn the right way up and written back as it came.
//
// Files, streams and memory handed over are checked before they are used: what is wrong in them gives
// FALSE (Serialize throws) and leaves the object empty unless it is said that it stays as it was.
class ORVFC_API COrvDib : public CObject {
    DECLARE_SERIAL(COrvDib)

public:
    // Who frees a block of memory.
    enum Owner { ownerNobody = 0, ownerAllocation = 1, ownerGlobal = 2 };

    RGBQUAD* m_pColorTable;          // behind the header and its masks
    HBITMAP m_hSection;              // made by CreateSection; deleted with the bitmap
    BYTE* m_pBits;                   // first stored row; NULL while there are none
    BITMAPINFOHEADER* m_pInfoHeader; // NULL: empty
    HGLOBAL m_hMemBlock;             // global block that holds the header, when there is one
    int m_nHeaderOwner;              // Owner of the header's block
    int m_nBitsOwner;                // Owner of the rows' block
    DWORD m_dwImageBytes;     // of the rows: the header's size field, or what they need when that says less
    int m_nColorTableEntries; // 0 to 256
    HANDLE m_hMapFile;        // of the attached file; NULL: none
    HANDLE m_hMapping;
    LPVOID m_pMapView;
    HPALETTE m_hPal;  // of MakePalette or SetSystemPalette; NULL: none
    double m_dRadian; // angle that Rotation has turned the picture by, in radians, counter-clockwise
    double m_dWidth;  // pixels
    double m_dHeight; // pixels, without sign

    COrvDib();
    // A header with the colour table all black, and no rows: they come with CreateSection. Before that the
    // host fills the colour table (and calls MakePalette if it draws on palette devices). A negative height
    // makes rows from the top down. A depth or size that there is not: a bug (ASSERT), the object is empty.
    COrvDib(CSize size, int bitCount);
    // Copies own their memory, whoever owns the original's. Without memory for it the copy is empty.
    COrvDib(const COrvDib& dib);
    COrvDib& operator=(const COrvDib& dib);
    ~COrvDib() override;
    // As the assignment; FALSE when there was no memory.
    BOOL SetDib(const COrvDib& dib);
    // Frees what the owner fields say; closes the attached file.
    void Empty();

    // (0, 0) when empty.
    CSize GetDimensions() const;
    DWORD GetSizeImage() const { return m_dwImageBytes; }
    // 40 + 4 * entries, and 12 for the masks of bit fields; 0 when empty.
    DWORD GetSizeHeader() const;
    // Of the file that Write writes; 0 when empty.
    DWORD GetFileLength() const;
    double GetRadian() const { return m_dRadian; }

    // The value of a pixel as it is stored: an index into the colour table up to 8 bits, otherwise the packed
    // colour (24 and 32 bits: 0xRRGGBB). Row 0 is the picture's bottom row, also of a top-down bitmap.
    // Outside the picture, and while there are no uncompressed rows: 0, and nothing changes. Bits that the
    // depth does not have are dropped. SetPiexelIndex: FALSE when nothing could be set.
    DWORD GetPixelIndex(int x, int y) const;
    BOOL SetPiexelIndex(int x, int y, DWORD value);

    // From the file's position on: a whole bitmap file. The position ends behind the rows.
    BOOL Read(CFile* pFile);
    // The same into a DIB section of the device context (NULL: any). Run-length rows come out uncompressed.
    // Failure shows "ReadSection error".
    BOOL ReadSection(CFile* pFile, CDC* pDC);
    // At the file's position. The size field of the file header is 0 on purpose: no reader needs it, though
    // some complain. Failure shows "write error"; an empty bitmap is FALSE.
    BOOL Write(CFile* pFile) const;
    // The angle (GetRadian), then the bitmap file. An empty bitmap cannot be stored: CArchiveException.
    void Serialize(CArchive& ar) override;

    // Works in the file itself: pixels that change, change the file. share: 0 nobody else may open it, else
    // others may read it. The rows lie where the file header says, or, when that is no possible place,
    // behind the colour table. FALSE also for a file that is not there or may not be written.
    // Messages: "Empty bitmap file", "Invalid bitmap file" (not "BM"), "AttachMemory error" (a header that
    // is wrong or promises more than the file holds).
    BOOL AttachMapFile(const char* path, int share);
    // Writes the bitmap into a new file (one of that name is replaced) and goes on working in it, as after
    // AttachMapFile with share 0. Here the size field is filled in. On failure the bitmap stays as it was,
    // and no half-written file is left.
    BOOL CopyToMapFile(const char* path);
    // A packed bitmap: header, masks, colour table and rows in one piece. mustDelete: 0 it stays the
    // caller's, who keeps it as long as this object uses it; else it is freed with this object, as the
    // global block hGlobal (locked; header is its address) when one is given, otherwise with operator
    // delete. Only a global block tells its size, which is then checked; for other memory the caller
    // answers. FALSE: the message "AttachMemory error", and the memory stays the caller's.
    BOOL AttachMemory(void* header, int mustDelete = FALSE, void* hGlobal = NULL);

    // Selects and realises the palette. The result is RealizePalette's; 0 without palette. The host selects
    // another one before the bitmap is emptied.
    UINT UsePalette(CDC* pDC, int background = FALSE);
    // A palette of the colour table; FALSE, and nothing changes, when there is no table.
    BOOL MakePalette();
    // For pictures without colour table: the system's halftone palette for the device, so that they can be
    // drawn on palette devices. FALSE, and nothing changes, for those that have one.
    BOOL SetSystemPalette(CDC* pDC);

    // Into the rectangle of logical units whose corner is origin; negative sizes mirror. Stretched as the
    // device context's stretch mode says when that is HALFTONE, else by leaving out or repeating pixels: what
    // a display shows of a much larger picture costs as much as what is seen. FALSE when there is nothing to
    // draw or to draw in.
    BOOL Draw(CDC* pDC, CPoint origin, CSize size);
    // The same rectangle turned about origin, its left-top corner, by angle in radians, counter-clockwise as
    // seen on the screen. Each device pixel whose centre is covered takes the picture's pixel there; nothing
    // else is touched. Only what is inside the clipping box is worked out.
    BOOL Draw(CDC* pDC, CPoint origin, CSize size, double angle);
    // Rows for a header that has none, all zero: a DIB section, which the object keeps. NULL when there is
    // no header, when there are rows already, and on failure. pDC may be NULL. After drawing into the section
    // a host calls GdiFlush before it asks for pixels.
    HBITMAP CreateSection(CDC* pDC = NULL);
    // A new device bitmap of the picture, which the caller deletes; NULL on failure.
    HBITMAP CreateBitmap(CDC* pDC);
    // compress: not 0: 4 or 8 bits become run-length rows, by the device's driver. Messages: "Unable to
    // compress this DIB" (another depth, compressed already, top-down, empty), "Driver can't do
    // compression". 0: run-length rows become plain ones. On FALSE the bitmap stays as it was.
    BOOL Compress(CDC* pDC, int compress = TRUE);
    // Turns the pixels by angle in radians, counter-clockwise; the picture grows to the upright box of what
    // is turned, whose corners become white (or the colour that comes nearest to it). Depth, colours and row
    // order stay; run-length rows become plain ones; the result lies in memory of its own. It goes through a
    // file "Orvbmp.tmp" in a temporary folder of its own, which is removed; when that cannot be written the
    // message is "Couldn't open source file: " and its name. On FALSE the bitmap stays as it was.
    BOOL Rotation(double angle);

    void Dump(CDumpContext& dc) const override;

private:
    void Clear();
    void Swap(COrvDib& dib);
    BOOL CopyOf(const COrvDib& dib);
    void TakeHeader(void* header, const orv::DibLayout& layout);
    BYTE* RowOf(int x, int y) const;
    void LoadFrom(CFile* pFile);
    void LoadSection(CFile* pFile, CDC* pDC);
    void LoadHeader(CFile* pFile, orv::DibLayout& layout);
    void StoreTo(CFile* pFile) const;
    BOOL AttachBlock(void* header, ULONGLONG available, const BITMAPFILEHEADER* file = NULL);
    BOOL AttachView();
    void MapFile(const char* path, DWORD sharing, DWORD creation, DWORD length);
    BOOL Expand();
};

// A packed bitmap of a device bitmap, in a movable global block that the caller frees (or hands to
// COrvDib::AttachMemory); NULL on failure. BI_RGB and BI_BITFIELDS keep the bitmap's depth (other than 1, 4,
// 8, 16, 24, 32: the next one above); 16 bits of BI_RGB are five of each colour. BI_RLE4 and BI_RLE8 ask the
// driver for 4 or 8 bits so compressed; BI_BITFIELDS is for 16 and 32 bits only. pPalette gives device
// bitmaps of 4 and 8 bits their colours (NULL: the default palette); DIB sections have their own. The bitmap
// must not be selected into a device context.
ORVFC_API HGLOBAL DDBtoDIB(CBitmap& bitmap, DWORD compression, CPalette* pPalette);

// Writes a packed bitmap as a file, with the size field filled in. packedDib: the global block, or the
// address of a locked one. FALSE: not a bitmap, or it could not be written (no part of the file is left).
ORVFC_API BOOL WriteDib(const char* path, void* packedDib);
