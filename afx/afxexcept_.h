#pragma once

// Exceptions are thrown by pointer. Whoever catches one calls Delete, unless END_CATCH does it.

#include "afxobject_.h"

class ORVAFX_API CException : public CObject {
    DECLARE_DYNAMIC(CException)

public:
    CException() : m_bAutoDelete(TRUE) {}
    explicit CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

    // Frees the object when it was made on the heap.
    void Delete();
    // Fills the buffer with what went wrong, for the user; cut to nMaxError - 1 bytes at a whole character.
    // FALSE and an empty text when there is nothing to say.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;
    // Shows the message in a message box. nMessageID names a string resource for exceptions without a text.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

    BOOL m_bAutoDelete;

protected:
    // The whole text of GetErrorMessage.
    virtual CString OrvMessage() const;
};

class ORVAFX_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)

public:
    CSimpleException() {}
    explicit CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}
};

#define ORV_SIMPLE_EXCEPTION(class_name)                                                                     \
    class ORVAFX_API class_name : public CSimpleException {                                                  \
        DECLARE_DYNAMIC(class_name)                                                                          \
                                                                                                             \
    public:                                                                                                  \
        class_name() {}                                                                                      \
        explicit class_name(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}                             \
                                                                                                             \
    protected:                                                                                               \
        CString OrvMessage() const override;                                                                 \
    };

ORV_SIMPLE_EXCEPTION(CMemoryException)
ORV_SIMPLE_EXCEPTION(CNotSupportedException)
ORV_SIMPLE_EXCEPTION(CResourceException)
ORV_SIMPLE_EXCEPTION(CUserException)
ORV_SIMPLE_EXCEPTION(CInvalidArgException)
#undef ORV_SIMPLE_EXCEPTION

class ORVAFX_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)

public:
    enum {
        none,
        genericException,
        readOnly,  // writing into a loading archive
        endOfFile, // reading past the end
        writeOnly, // reading from a storing archive
        badIndex,  // an object or class number that names nothing
        badClass,  // another class than the one asked for, or an unknown one
        badSchema, // a version of the class that it cannot read
        bufferFull
    };
    explicit CArchiveException(int cause = none, LPCTSTR lpszArchiveName = NULL);

    int m_cause;
    CString m_strFileName;

protected:
    CString OrvMessage() const override;
};

class ORVAFX_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)

public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };
    // lOsError: the system's error number (GetLastError; errno off Windows), -1 when there is none.
    explicit CFileException(int cause = none, LONG lOsError = -1, LPCTSTR lpszArchiveName = NULL);

    static int PASCAL OsErrorToException(LONG lOsError);
    static int PASCAL ErrnoToException(int nErrno);
    static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = NULL);
    static void PASCAL ThrowErrno(int nErrno, LPCTSTR lpszFileName = NULL);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;

protected:
    CString OrvMessage() const override;
};

// The memory exception is an object that exists already.
[[noreturn]] ORVAFX_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] ORVAFX_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] ORVAFX_API void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] ORVAFX_API void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = NULL);
[[noreturn]] ORVAFX_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                          LPCTSTR lpszFileName = NULL);
[[noreturn]] ORVAFX_API void AFXAPI AfxThrowResourceException();
[[noreturn]] ORVAFX_API void AFXAPI AfxThrowUserException();

// The exception that a CATCH block holds; deleted when the block is left, unless THROW_LAST passes it on.
struct ORVAFX_API AFX_EXCEPTION_LINK {
    AFX_EXCEPTION_LINK() : m_pException(NULL) {}
    ~AFX_EXCEPTION_LINK();
    AFX_EXCEPTION_LINK(const AFX_EXCEPTION_LINK&) = delete;
    AFX_EXCEPTION_LINK& operator=(const AFX_EXCEPTION_LINK&) = delete;

    CException* m_pException;
};

#define TRY                                                                                                  \
    {                                                                                                        \
        AFX_EXCEPTION_LINK _afxExceptionLink;                                                                \
        try {
#define CATCH(class, e)                                                                                      \
    }                                                                                                        \
    catch (class * e) {                                                                                      \
        ASSERT(e->IsKindOf(RUNTIME_CLASS(class)));                                                           \
        _afxExceptionLink.m_pException = e;
#define AND_CATCH(class, e) CATCH(class, e)
#define CATCH_ALL(e)                                                                                         \
    }                                                                                                        \
    catch (CException * e) {                                                                                 \
        ASSERT(e->IsKindOf(RUNTIME_CLASS(CException)));                                                      \
        _afxExceptionLink.m_pException = e;
#define AND_CATCH_ALL(e) CATCH_ALL(e)
#define END_CATCH                                                                                            \
    }                                                                                                        \
    }
#define END_CATCH_ALL END_CATCH
#define END_TRY                                                                                              \
    }                                                                                                        \
    catch (CException * e) {                                                                                 \
        _afxExceptionLink.m_pException = e;                                                                  \
    }                                                                                                        \
    }
#define THROW(e) throw e
#define THROW_LAST()                                                                                         \
    do {                                                                                                     \
        _afxExceptionLink.m_pException = NULL;                                                               \
        throw;                                                                                               \
    } while (0)
