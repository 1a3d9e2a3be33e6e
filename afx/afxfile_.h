#pragma once

// Files and memory files.

#include "afxexcept_.h"

// What GetStatus tells of a file. The times are the system's (UTC), where MFC has CTime.
struct CFileStatus {
    FILETIME m_ctime; // creation
    FILETIME m_mtime; // last modification
    FILETIME m_atime; // last access
    LONGLONG m_size;
    BYTE m_attribute; // CFile::Attribute
    TCHAR m_szFullName[_MAX_PATH];
};

// A binary file over the system's handle (a file descriptor off Windows). Positions are 64 bits. Every
// failure throws a CFileException, except where a result says otherwise.
class ORVAFX_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags {
        modeRead = 0x0,
        modeWrite = 0x1,
        modeReadWrite = 0x2,
        shareCompat = 0x0,
        shareExclusive = 0x10,
        shareDenyWrite = 0x20,
        shareDenyRead = 0x30,
        shareDenyNone = 0x40,
        modeNoInherit = 0x80,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000, // for CStdioFile only, ignored here
        typeBinary = 0x8000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum Attribute {
        normal = 0x0,
        readOnly = 0x1,
        hidden = 0x2,
        system = 0x4,
        volume = 0x8,
        directory = 0x10,
        archive = 0x20
    };
    enum SeekPosition { begin, current, end };
    enum BufferCommand { bufferRead, bufferWrite, bufferCommit, bufferCheck };
    enum BufferFlags { bufferDirect = 0x1, bufferBlocking = 0x2 };

    static const HANDLE hFileNull;

    CFile();
    // Takes an open handle; Close closes it, the destructor does not.
    explicit CFile(HANDLE hFile);
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CFile() override;

    operator HANDLE() const { return m_hFile; }

    // FALSE, and the reason in pError when given, instead of an exception.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = NULL);
    virtual UINT Read(void* lpBuf, UINT nCount); // fewer bytes only at the end of the file
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom); // new position
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    void SeekToBegin() { Seek(0, begin); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG dwNewLen); // the position ends at the new length
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void Flush();
    virtual void Close();
    virtual void Abort(); // closes without throwing
    // A second object on the same open file.
    virtual CFile* Duplicate() const;

    // Name with extension; name alone; the whole path.
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const { return m_strFileName; }
    virtual void SetFilePath(LPCTSTR lpszNewName);
    BOOL GetStatus(CFileStatus& rStatus) const;

    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void PASCAL Remove(LPCTSTR lpszFileName);
    static BOOL PASCAL GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus);

    // Direct access to a file that lies in memory. bufferCheck: the BufferFlags of this file. bufferRead: up
    // to nCount bytes from the position, which moves past them. bufferWrite: room for nCount bytes at the
    // position, which stays; bufferCommit then says how many were used and moves it.
    virtual UINT GetBufferPtr(UINT nCommand, UINT nCount = 0, void** ppBufStart = NULL,
                              void** ppBufMax = NULL);

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

    HANDLE m_hFile;

protected:
    BOOL m_bCloseOnDelete;
    CString m_strFileName;
};

// A file in a block of memory that grows as it is written.
class ORVAFX_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)

public:
    // nGrowBytes: the block grows in multiples of it; 0: it cannot grow (CMemoryException when it should).
    explicit CMemFile(UINT nGrowBytes = 1024);
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    // The buffer stays the caller's. With nGrowBytes 0 the file is the buffer's nBufferSize bytes; otherwise
    // the file is empty and may grow, for which the buffer must come from malloc.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    // Closes the file and hands its block to the caller, who releases it with free.
    BYTE* Detach();

    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    ULONGLONG Seek(LONGLONG lOff,
                   UINT nFrom) override; // past the end is allowed; the gap is zeroed when written
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void Flush() override;
    void Close() override;
    void Abort() override;
    CFile* Duplicate() const override; // not supported
    UINT GetBufferPtr(UINT nCommand, UINT nCount = 0, void** ppBufStart = NULL,
                      void** ppBufMax = NULL) override;

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    virtual BYTE* Alloc(SIZE_T nBytes);
    virtual void Free(BYTE* lpMem);
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes);
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes);
    virtual void Memset(BYTE* lpMem, int nValue, SIZE_T nBytes);
    virtual void GrowFile(SIZE_T dwNewLen);

    SIZE_T m_nGrowBytes;
    SIZE_T m_nPosition;
    SIZE_T m_nBufferSize;
    SIZE_T m_nFileSize;
    BYTE* m_lpBuffer;
    BOOL m_bAutoDelete;
};
