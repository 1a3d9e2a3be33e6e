// Bitmaps that become others: compressed, written out, turned.

#include "cdib.h"
#include "DibInfo.h"
#include "DibTurn.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

using orv::handleOf;

namespace {

class Section {
public:
    Section(HDC dc, const orv::PlainRows& plain) {
        void* bits = NULL;
        handle_ = ::CreateDIBSection(dc, plain.info.get(), DIB_RGB_COLORS, &bits, NULL, 0);
        if (handle_ != NULL)
            memcpy(bits, plain.rows.bits, plain.layout.rowsBytes);
    }
    ~Section() {
        if (handle_ != NULL)
            ::DeleteObject(handle_);
    }
    Section(const Section&) = delete;
    Section& operator=(const Section&) = delete;
    HBITMAP handle() const { return handle_; }

private:
    HBITMAP handle_;
};

HGLOBAL compressed(HDC dc, const orv::PlainRows& plain) {
    const Section section(dc, plain);
    const WORD bitCount = WORD(plain.layout.bitCount);
    if (dc == NULL || section.handle() == NULL)
        return NULL;
    return orv::packBitmap(dc, section.handle(), bitCount, bitCount == 4 ? BI_RLE4 : BI_RLE8);
}

// A temporary folder of its own, for one file, removed with the object.
class TurningFile {
public:
    TurningFile();
    ~TurningFile();
    TurningFile(const TurningFile&) = delete;
    TurningFile& operator=(const TurningFile&) = delete;
    const CString& name() const { return m_name; }

private:
    CString m_folder;
    CString m_name;
};

TurningFile::TurningFile() {
    char temp[MAX_PATH + 1] = "";
    ::GetTempPathA(sizeof(temp), temp);
    // Making a folder succeeds for one of several programs only.
    BOOL made = FALSE;
    DWORD error = ERROR_ALREADY_EXISTS;
    for (UINT i = 0; !made && error == ERROR_ALREADY_EXISTS; ++i) {
        m_folder.Format("%sorv%u-%u", temp, UINT(::GetCurrentProcessId()), i);
        made = ::CreateDirectoryA(m_folder, NULL);
        error = made ? NO_ERROR : ::GetLastError();
    }
    m_name = m_folder + "\\Orvbmp.tmp";
    if (!made)
        m_folder.Empty();
}

TurningFile::~TurningFile() {
    if (m_folder.IsEmpty())
        return;
    ::DeleteFileA(m_name);
    ::RemoveDirectoryA(m_folder);
}

// The header of the turned picture: the old one with other sizes.
std::vector<BYTE> turnedHeader(const COrvDib& dib, const orv::DibBox& box, orv::DibLayout& layout) {
    const BYTE* old = reinterpret_cast<const BYTE*>(dib.m_pInfoHeader);
    std::vector<BYTE> bytes(old, old + dib.GetSizeHeader());
    BITMAPINFOHEADER header;
    memcpy(&header, old, sizeof(header));
    header.biWidth = box.width;
    header.biHeight = header.biHeight < 0 ? -box.height : box.height;
    header.biSizeImage = 0;
    if (header.biCompression != BI_BITFIELDS)
        header.biCompression = BI_RGB;
    memcpy(bytes.data(), &header, sizeof(header));
    if (orv::readDibHeader(bytes.data(), ~0ULL, layout) != orv::DibFault::none)
        AfxThrowMemoryException();
    return bytes;
}

// The rows in the order in which they are stored, some at a time.
void writeTurned(CFile& file, const orv::PlainRows& plain, const orv::DibTurn& turn,
                 const orv::DibLayout& layout) {
    constexpr size_t batchBytes = 1 << 20;
    const DWORD white = orv::whitePixel(layout, plain.info.colors);
    std::vector<BYTE> blank(layout.stride);
    for (int x = 0; x < layout.width; ++x)
        orv::setPixel(blank.data(), x, layout.bitCount, white);
    std::vector<BYTE> batch;
    for (int i = 0; i < layout.height; ++i) {
        const int y = layout.topDown ? i : layout.height - 1 - i;
        batch.insert(batch.end(), blank.begin(), blank.end());
        int first, last;
        if (turn.span(y, 0, layout.width, first, last))
            turn.copy(plain.rows, y, first, last, &batch[batch.size() - layout.stride], 0);
        if (batch.size() >= batchBytes || i == layout.height - 1) {
            file.Write(batch.data(), UINT(batch.size()));
            batch.clear();
        }
    }
}

void writeTurnedFile(CFile& file, const COrvDib& dib, const orv::PlainRows& plain, const orv::DibBox& box,
                     double angle) {
    const int width = plain.layout.width, height = plain.layout.height;
    const orv::DibTurn turn(box.corner, orv::turned({double(width), 0}, angle),
                            orv::turned({0, double(height)}, angle), width, height);
    orv::DibLayout layout;
    const std::vector<BYTE> header = turnedHeader(dib, box, layout);
    const BITMAPFILEHEADER fileHeader = orv::dibFileHeader(layout);
    file.Write(&fileHeader, sizeof(fileHeader));
    file.Write(header.data(), UINT(header.size()));
    writeTurned(file, plain, turn, layout);
}

} // namespace

// Run-length rows become plain ones.
BOOL COrvDib::Expand() {
    orv::DibLayout layout;
    if (m_pBits == NULL || !orv::layoutOf(*this, layout))
        return FALSE;
    if (!layout.isRunLength())
        return TRUE;
    COrvDib plain;
    BYTE* header = static_cast<BYTE*>(::operator new(layout.headerBytes(), std::nothrow));
    if (header == NULL)
        return FALSE;
    memcpy(header, m_pInfoHeader, layout.headerBytes());
    plain.TakeHeader(header, layout);
    plain.m_nHeaderOwner = ownerAllocation;
    plain.m_pBits = static_cast<BYTE*>(::operator new(layout.rowsBytes, std::nothrow));
    plain.m_nBitsOwner = ownerAllocation;
    if (plain.m_pBits == NULL)
        return FALSE;
    memset(plain.m_pBits, 0, layout.rowsBytes);
    if (!orv::expandRuns(layout, m_pBits, plain.m_pBits))
        return FALSE;
    plain.m_pInfoHeader->biCompression = BI_RGB;
    plain.m_pInfoHeader->biSizeImage = plain.m_dwImageBytes = layout.rowsBytes;
    plain.m_dRadian = m_dRadian;
    std::swap(plain.m_hPal, m_hPal);
    Swap(plain);
    return TRUE;
}

BOOL COrvDib::Compress(CDC* pDC, int compress) {
    if (compress == 0)
        return Expand();
    const orv::PlainRows plain(*this);
    const bool bPossible = plain.isGood() && !plain.layout.isRunLength() && !plain.layout.topDown &&
                           (plain.layout.bitCount == 4 || plain.layout.bitCount == 8);
    if (!bPossible) {
        AfxMessageBox("Unable to compress this DIB");
        return FALSE;
    }
    TRACE1("Compress: original palette size = %d\n", m_nColorTableEntries);
    // Written to the documented interface; Wine's driver answers the size and then refuses, so that what
    // follows success could not be tried.
    const HGLOBAL block = compressed(handleOf(pDC), plain);
    COrvDib packed;
    if (block == NULL || !packed.AttachBlock(::GlobalLock(block), ::GlobalSize(block))) {
        if (block != NULL) {
            ::GlobalUnlock(block);
            ::GlobalFree(block);
        }
        AfxMessageBox("Driver can't do compression");
        return FALSE;
    }
    packed.m_hMemBlock = block;
    packed.m_nHeaderOwner = ownerGlobal;
    packed.m_dRadian = m_dRadian;
    // The host may have selected the palette.
    std::swap(packed.m_hPal, m_hPal);
    TRACE1("Compress: new palette size = %d\n", packed.m_nColorTableEntries);
    TRACE1("dib successfully created - height = %d\n", packed.GetDimensions().cy);
    Swap(packed);
    return TRUE;
}

BOOL COrvDib::Rotation(double angle) {
    const orv::PlainRows plain(*this);
    orv::DibBox box;
    if (!plain.isGood() || !orv::turnedBox(plain.layout.width, plain.layout.height, angle, box))
        return FALSE;
    const TurningFile turning;
    CFile file;
    if (!file.Open(turning.name(), CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive)) {
        AfxMessageBox("Couldn't open source file: " + turning.name());
        return FALSE;
    }
    COrvDib result;
    try {
        writeTurnedFile(file, *this, plain, box, angle);
        file.SeekToBegin();
        result.LoadFrom(&file);
    } catch (CException* e) {
        e->Delete();
        return FALSE;
    } catch (const std::bad_alloc&) {
        return FALSE;
    }
    result.m_dRadian = m_dRadian + angle;
    // The host may have selected the palette.
    std::swap(result.m_hPal, m_hPal);
    Swap(result);
    return TRUE;
}
