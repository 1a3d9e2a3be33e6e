// Bitmap files and archives.

#include "cdib.h"
#include "DibInfo.h"

#include <algorithm>
#include <new>

namespace {

using orv::DibFault;

void throwFault(DibFault fault, const CFile* pFile) {
    if (fault == DibFault::none)
        return;
    orv::traceFault(fault);
    AfxThrowFileException(fault == DibFault::cutShort ? CFileException::endOfFile
                                                      : CFileException::genericException,
                          -1, pFile->GetFilePath());
}

void readAll(CFile* pFile, void* bytes, UINT count) {
    if (pFile->Read(bytes, count) != count)
        throwFault(DibFault::cutShort, pFile);
}

// Into memory that nobody has touched yet. Missing pages cost less when they are asked for here than when the
// system meets them while it copies, and a piece that is in the cache is filled at once.
void readRows(CFile* pFile, BYTE* rows, DWORD count) {
    constexpr DWORD piece = 1 << 18, page = 1 << 12;
    for (DWORD done = 0; done < count;) {
        const DWORD next = std::min(piece, count - done);
        for (DWORD i = 0; i < next; i += page)
            rows[done + i] = 0;
        readAll(pFile, rows + done, next);
        done += next;
    }
}

// For COrvDib to own.
void* newBlock(size_t bytes) {
    void* block = ::operator new(bytes, std::nothrow);
    if (block == NULL)
        AfxThrowMemoryException();
    return block;
}

void checkRuns(const orv::DibLayout& layout, const BYTE* bits, const CFile* pFile) {
    if (layout.isRunLength() && !orv::expandRuns(layout, bits, NULL))
        throwFault(DibFault::runs, pFile);
}

} // namespace

// Everything up to the rows; the file stands at their beginning then.
void COrvDib::LoadHeader(CFile* pFile, orv::DibLayout& layout) {
    BITMAPFILEHEADER file;
    readAll(pFile, &file, sizeof(file));
    const ULONGLONG nStart = pFile->GetPosition(), nLength = pFile->GetLength();
    const ULONGLONG nAvailable = nLength > nStart ? nLength - nStart : 0;
    BYTE first[orv::kInfoHeaderBytes + orv::kMaskBytes];
    const UINT nFirst = UINT(std::min<ULONGLONG>(nAvailable, sizeof(first)));
    readAll(pFile, first, nFirst);
    throwFault(orv::readDibFileHeader(file, first, nAvailable, layout), pFile);

    BYTE* header = static_cast<BYTE*>(newBlock(layout.headerBytes()));
    TakeHeader(header, layout);
    m_nHeaderOwner = ownerAllocation;
    const UINT nHave = std::min(nFirst, UINT(layout.headerBytes()));
    memcpy(header, first, nHave);
    pFile->Seek(LONGLONG(nStart + nHave), CFile::begin);
    readAll(pFile, header + nHave, layout.headerBytes() - nHave);
    MakePalette();
    pFile->Seek(LONGLONG(nStart - sizeof(file) + file.bfOffBits), CFile::begin);
}

// Into an empty object, which is emptied again when something is thrown.
void COrvDib::LoadFrom(CFile* pFile) {
    try {
        orv::DibLayout layout;
        LoadHeader(pFile, layout);
        m_pBits = static_cast<BYTE*>(newBlock(layout.imageBytes));
        m_nBitsOwner = ownerAllocation;
        readRows(pFile, m_pBits, layout.imageBytes);
        checkRuns(layout, m_pBits, pFile);
    } catch (CException*) {
        Empty();
        throw;
    }
}

void COrvDib::LoadSection(CFile* pFile, CDC* pDC) {
    try {
        orv::DibLayout layout;
        LoadHeader(pFile, layout);
        std::unique_ptr<BYTE[]> runs;
        if (layout.isRunLength()) {
            runs.reset(new (std::nothrow) BYTE[layout.imageBytes]);
            if (runs == NULL)
                AfxThrowMemoryException();
            readAll(pFile, runs.get(), layout.imageBytes);
            checkRuns(layout, runs.get(), pFile);
            m_pInfoHeader->biCompression = BI_RGB;
            m_pInfoHeader->biSizeImage = m_dwImageBytes = layout.rowsBytes;
        }
        if (CreateSection(pDC) == NULL)
            AfxThrowResourceException();
        if (runs != NULL) {
            orv::expandRuns(layout, runs.get(), m_pBits);
        } else {
            readRows(pFile, m_pBits, layout.rowsBytes);
            pFile->Seek(layout.imageBytes - layout.rowsBytes, CFile::current);
        }
    } catch (CException*) {
        Empty();
        throw;
    }
}

BOOL COrvDib::Read(CFile* pFile) {
    ASSERT(pFile != NULL);
    Empty();
    if (pFile == NULL)
        return FALSE;
    try {
        LoadFrom(pFile);
    } catch (CException* e) {
        e->Delete();
        return FALSE;
    }
    return TRUE;
}

BOOL COrvDib::ReadSection(CFile* pFile, CDC* pDC) {
    ASSERT(pFile != NULL);
    Empty();
    if (pFile == NULL)
        return FALSE;
    try {
        LoadSection(pFile, pDC);
    } catch (CException* e) {
        e->Delete();
        AfxMessageBox("ReadSection error");
        return FALSE;
    }
    return TRUE;
}

// An object that holds a picture only.
void COrvDib::StoreTo(CFile* pFile) const {
    orv::DibLayout layout;
    if (m_pBits == NULL || !orv::layoutOf(*this, layout))
        AfxThrowFileException(CFileException::genericException, -1, pFile->GetFilePath());
    if (m_hSection != NULL)
        ::GdiFlush();
    // Its size field stays 0 on purpose.
    const BITMAPFILEHEADER file = orv::dibFileHeader(layout);
    pFile->Write(&file, sizeof(file));
    pFile->Write(m_pInfoHeader, layout.headerBytes());
    pFile->Write(m_pBits, layout.imageBytes);
}

BOOL COrvDib::Write(CFile* pFile) const {
    ASSERT(pFile != NULL);
    if (pFile == NULL || m_pBits == NULL)
        return FALSE;
    try {
        StoreTo(pFile);
    } catch (CException* e) {
        e->Delete();
        AfxMessageBox("write error");
        return FALSE;
    }
    return TRUE;
}

// The bitmap goes past the archive's buffer, straight through its file.
void COrvDib::Serialize(CArchive& ar) {
    double dRadian = m_dRadian;
    if (!ar.IsStoring()) {
        Empty();
        ar >> dRadian;
    } else {
        if (m_pBits == NULL)
            AfxThrowArchiveException(CArchiveException::genericException, ar.m_strFileName);
        ar << dRadian;
    }
    ar.Flush();
    CFile* pFile = ar.GetFile();
    TRACE1("COrvDib::Serialize -- pos = %d\n", int(pFile->GetPosition()));
    if (ar.IsStoring()) {
        StoreTo(pFile);
    } else {
        LoadFrom(pFile);
        m_dRadian = dRadian;
    }
    TRACE1("COrvDib::Serialize -- pos = %d\n", int(pFile->GetPosition()));
}
