#pragma once

#include <afx.h>
#include <orvfc/OrvApi.h>

// An archive that tells where it stands in its file, for code that reads archive files with parts to be
// skipped.
//
// The archive's buffer is a stretch of the file: positions "in the buffer" count from its start. A file of
// the disk is read in stretches of the buffer's size; a file in memory (CMemFile) is its own buffer, and a
// stretch of it starts where reading stood when it was fetched. Nothing is fetched before it is read.
// Failures of the file and reading past the end throw what the archive throws.
class ORVFC_API COrvArchive {
public:
    // As CArchive's: the file must stay open; pBuffer is null or the caller's buffer of nBufferSize bytes,
    // which is used when it has 128 or more.
    COrvArchive(CFile* pFile, UINT nMode, int nBufferSize = 4096, void* pBuffer = NULL);
    virtual ~COrvArchive(); // a storing archive's last bytes go to the file
    COrvArchive(const COrvArchive&) = delete;
    COrvArchive& operator=(const COrvArchive&) = delete;

    // To read from or write to. Owned by this object and at one address for its whole life; null only after
    // SkipPosBegin found no memory.
    CArchive* GetArchive() const;

    // Bytes of the buffer read already (storing: written).
    LONG GetCurrentPos() const;
    // Bytes of the buffer, read or not.
    LONG GetSize() const;
    // Position in the file of the next byte to be read or written. Flushes: the buffer is empty afterwards.
    ULONGLONG GetRealPos();

    // Leaving the file at its front throws; past its end, the next reading does.
    //
    // By n bytes from the next one, also backwards. Storing: an assertion, and nothing.
    void SkipPos(LONG n);
    // By n bytes from the next one; the buffer starts there, and is filled unless the file ends there.
    // Storing: an assertion, and nothing.
    void SeekCurrentPos(DWORD n);
    // To a position in the file, as a fresh archive in either direction: its objects and classes are
    // forgotten.
    void SkipPosBegin(LONG pos);

    void Dump(CDumpContext& dc) const;

private:
    struct Held;
    Held* m_pHeld;
};
