// Bitmaps in memory of others, and in mapped files.

#include "cdib.h"
#include "DibInfo.h"

#include <utility>

namespace {

// The bytes from address on, as far as the global block tells.
ULONGLONG bytesFrom(const void* address, HGLOBAL block) {
    const BYTE* start = static_cast<const BYTE*>(::GlobalLock(block));
    const SIZE_T size = ::GlobalSize(block);
    const BYTE* at = static_cast<const BYTE*>(address);
    const bool inside = start != NULL && at >= start && at <= start + size;
    if (start != NULL)
        ::GlobalUnlock(block);
    return inside ? ULONGLONG(start + size - at) : 0;
}

} // namespace

// Into an empty object, without a message. file: says where the rows are, if it says so rightly.
BOOL COrvDib::AttachBlock(void* header, ULONGLONG available, const BITMAPFILEHEADER* file) {
    orv::DibLayout layout;
    orv::DibFault fault = orv::DibFault::none;
    DWORD rowsAt = 0;
    if (file != NULL && orv::readDibFileHeader(*file, header, available, layout) == orv::DibFault::none) {
        rowsAt = file->bfOffBits - orv::kFileHeaderBytes;
    } else {
        fault = orv::readDibHeader(header, available, layout);
        if (fault == orv::DibFault::none)
            rowsAt = layout.headerBytes();
    }
    BYTE* bits = static_cast<BYTE*>(header) + rowsAt;
    if (fault == orv::DibFault::none && layout.isRunLength() && !orv::expandRuns(layout, bits, NULL))
        fault = orv::DibFault::runs;
    if (fault != orv::DibFault::none) {
        orv::traceFault(fault);
        return FALSE;
    }
    TakeHeader(header, layout);
    m_pBits = bits;
    MakePalette();
    return TRUE;
}

BOOL COrvDib::AttachMemory(void* header, int mustDelete, void* hGlobal) {
    Empty();
    const ULONGLONG available = hGlobal != NULL ? bytesFrom(header, hGlobal) : ~0ULL;
    if (header == NULL || !AttachBlock(header, available)) {
        AfxMessageBox("AttachMemory error");
        return FALSE;
    }
    m_hMemBlock = hGlobal;
    if (mustDelete != 0)
        m_nHeaderOwner = hGlobal != NULL ? ownerGlobal : ownerAllocation;
    return TRUE;
}

// Opens the file and maps it whole, or as long as length says unless it is 0. What could be done is in the
// fields.
void COrvDib::MapFile(const char* path, DWORD sharing, DWORD creation, DWORD length) {
    // Some systems let an administrator's programs write to protected files.
    const DWORD attributes = ::GetFileAttributesA(path);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return;
    const HANDLE hFile = ::CreateFileA(path, GENERIC_READ | GENERIC_WRITE, sharing, NULL, creation,
                                       FILE_ATTRIBUTE_NORMAL, NULL);
    if (hFile == INVALID_HANDLE_VALUE)
        return;
    m_hMapFile = hFile;
    m_hMapping = ::CreateFileMappingA(hFile, NULL, PAGE_READWRITE, 0, length, NULL);
    if (m_hMapping != NULL)
        m_pMapView = ::MapViewOfFile(m_hMapping, FILE_MAP_WRITE, 0, 0, 0);
}

// The bitmap in the view of the mapped file, with the messages.
BOOL COrvDib::AttachView() {
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hMapFile, &length))
        length.QuadPart = 0;
    BITMAPFILEHEADER file = {};
    const SIZE_T nHeader = length.QuadPart < LONGLONG(sizeof(file)) ? SIZE_T(length.QuadPart) : sizeof(file);
    memcpy(&file, m_pMapView, nHeader);
    if (file.bfType != orv::kBitmapType) {
        AfxMessageBox("Invalid bitmap file");
        return FALSE;
    }
    const ULONGLONG nBehind = ULONGLONG(length.QuadPart) - nHeader;
    if (!AttachBlock(static_cast<BYTE*>(m_pMapView) + nHeader, nBehind, &file)) {
        AfxMessageBox("AttachMemory error");
        return FALSE;
    }
    return TRUE;
}

BOOL COrvDib::AttachMapFile(const char* path, int share) {
    ASSERT(path != NULL);
    Empty();
    if (path == NULL)
        return FALSE;
    MapFile(path, share != 0 ? FILE_SHARE_READ : 0, OPEN_EXISTING, 0);
    if (m_pMapView != NULL && AttachView())
        return TRUE;
    if (m_hMapFile != NULL && m_hMapping == NULL)
        AfxMessageBox("Empty bitmap file");
    Empty();
    return FALSE;
}

BOOL COrvDib::CopyToMapFile(const char* path) {
    ASSERT(path != NULL);
    orv::DibLayout layout;
    if (path == NULL || m_pBits == NULL || !orv::layoutOf(*this, layout))
        return FALSE;
    if (m_hSection != NULL)
        ::GdiFlush();
    COrvDib mapped;
    mapped.MapFile(path, 0, CREATE_ALWAYS, GetFileLength());
    if (mapped.m_pMapView != NULL) {
        BITMAPFILEHEADER file = orv::dibFileHeader(layout);
        file.bfSize = GetFileLength();
        BYTE* view = static_cast<BYTE*>(mapped.m_pMapView);
        memcpy(view, &file, sizeof(file));
        memcpy(view + sizeof(file), m_pInfoHeader, layout.headerBytes());
        memcpy(view + file.bfOffBits, m_pBits, layout.imageBytes);
    }
    if (mapped.m_pMapView == NULL || !mapped.AttachView()) {
        const bool bMade = mapped.m_hMapFile != NULL;
        mapped.Empty();
        if (bMade)
            ::DeleteFileA(path);
        return FALSE;
    }
    mapped.m_dRadian = m_dRadian;
    // The host may have selected the palette.
    std::swap(mapped.m_hPal, m_hPal);
    Swap(mapped);
    return TRUE;
}
