#pragma once

#include <afxwin.h>
#include <orvfc/OrvApi.h>

// What the two registry stores, COrvRegister and COrvRegistry, have in common: one key, under which a host
// keeps its settings as typed values.
//
// Every operation answers non-zero for success and 0 for failure, throws nothing, and leaves the outcome in
// m_Info. Null names, null data and a missing key are the caller's bugs: assertion, then 0. What a value
// holds is not trusted: a damaged one answers 0 and leaves the argument as it was.
//
// Copies share one key handle, and the first to be destroyed closes it for all: set m_hKey of the others to 0
// before.
class ORVFC_API COrvRegStore {
public:
    // Outcome of the last registry call.
    struct REGINFO {
        LONG lResult; // status that the registry gave, 0 = success
        // Type and bytes of the value last written or read, also of one that is too long or of the wrong
        // type; 0 after a call on a key and when there is no such value. Blocks and points have their own.
        DWORD dwType;
        DWORD dwSize;
    };

    virtual ~COrvRegStore(); // closes the key

    // Closes m_hKey, whatever it is, and sets it to 0.
    void Close();

    // Opens the key below m_hKey. It then takes the place of m_hKey, whose handle is not closed: a host that
    // needs it keeps it. A failure leaves there what the system does, which is 0. The same goes for CreateKey
    // and Open.
    BOOL VerifyKey(const char* lpszPath);
    // Whether the value is there. Null or empty: the key's default value.
    BOOL VerifyValue(const char* lpszName);
    // Opens the key below m_hKey with full access; makes it, with all that lie above it, when it is not
    // there. Refused when m_bReadOnly is not 0.
    BOOL CreateKey(const char* lpszPath);
    // These two ask nothing of m_bReadOnly: values are protected by the access with which the key was opened.
    BOOL DeleteValue(const char* lpszName);
    // Deletes a key of HKEY_LOCAL_MACHINE (bLocalMachine not 0) or HKEY_CURRENT_USER, whatever m_hKey is. A
    // key that has keys below it stays.
    BOOL DeleteKey(const char* lpszPath, int bLocalMachine);

    // Writing is refused, without a registry call and with m_Info as it was, when m_bReadOnly is not 0. A
    // value of the same name is replaced, whatever its type.
    BOOL Write(const char* lpszName, int nValue);
    BOOL Write(const char* lpszName, DWORD dwValue);
    BOOL Write(const char* lpszName, unsigned char* pData, unsigned int nSize);
    // A binary value with the collection's archive stream. One of 4096 bytes or more is an assertion: it is
    // stored, but a longer one cannot be read back.
    BOOL Write(const char* lpszName, CStringList& list);
    BOOL Write(const char* lpszName, CByteArray& array);
    BOOL Write(const char* lpszName, CStringArray& array);
    // Binary values with archive streams of any length; an empty stream is not stored and answers 0.
    BOOL Write(const char* lpszName, CDWordArray& array);
    BOOL Write(const char* lpszName, CWordArray& array); // in a form that Read does not understand, see there
    BOOL Write(const char* lpszName, const CRect& rect);
    BOOL Write(const char* lpszName, CObList& list);
    BOOL Write(const char* lpszName, CObject& object);
    // A binary value of 22 bytes. Deliberately as callers know it: an assertion, since it is longer than the
    // 20 bytes that Read takes, and type 2 in m_Info.
    BOOL Write(const char* lpszName, POINT*& pPoint);

    // Whatever type the value has, its first bytes, up to 4, and zeros.
    BOOL Read(const char* lpszName, int& nValue);
    BOOL Read(const char* lpszName, DWORD& dwValue);
    // Up to the first zero byte. A value of more than 200 bytes, closing zero included, cannot be read.
    BOOL Read(const char* lpszName, CString& strValue);
    // A binary value of any length, in a block that the caller frees with delete[]; 0 bytes are a block as
    // well. Failure: null and 0. A value of another type is an assertion, then failure. m_Info tells type 3
    // and *pnSize in any case.
    BOOL Read(const char* lpszName, unsigned char** ppData, unsigned int* pnSize);
    // Binary values of at most 4096 bytes; those of another type are refused. Arrays are replaced, a list
    // gets the strings behind those that it has.
    BOOL Read(const char* lpszName, CStringList& list);
    BOOL Read(const char* lpszName, CStringArray& array);
    BOOL Read(const char* lpszName, CDWordArray& array);
    BOOL Read(const char* lpszName, CByteArray& array);
    // Expects a count of 16 bits where Write puts one of 32: what Write has stored comes back with a zero in
    // front and without its last element. Deliberately so.
    BOOL Read(const char* lpszName, CWordArray& array);
    // Fills *pPoint from an array of two to four numbers. What Write stores is too long: it fails with
    // ERROR_MORE_DATA, deliberately. m_Info tells type 2, size 8.
    BOOL Read(const char* lpszName, POINT*& pPoint);
    BOOL Read(const char* lpszName, CRect& rect);
    // New objects, the caller's to delete, behind those that the list has. After a damaged stream the list is
    // as before, and the objects read by then are nobody's: they are not deleted, since the stream may have
    // given one of them to another that deletes it as well.
    BOOL Read(const char* lpszName, CObList& list);
    // An object is left as its own Serialize leaves it when the stream is damaged.
    BOOL Read(const char* lpszName, CObject& object);

    void Dump(CDumpContext& dc) const;

    REGINFO m_Info;
    HKEY m_hKey;          // the root at first, then the key opened last
    CString m_strKeyPath; // as last given to Open or CreateKey
    int m_bReadOnly;      // not 0: no writing. Keys are opened for reading only when it is above 0

protected:
    COrvRegStore(HKEY hRoot, int bReadOnly);
    COrvRegStore(const COrvRegStore&) = default;
    COrvRegStore& operator=(const COrvRegStore&) = default;

    // Opens a key below m_hKey with the access that m_bReadOnly asks for; m_hKey is then what the system
    // leaves in it.
    BOOL OpenKey(const char* lpszPath);
    // Creates the key that OpenKey, called just before, did not find.
    BOOL CreateMissing(const char* lpszPath);
    BOOL MayWrite(const char* lpszName) const;
    // dwRecordType is what m_Info tells.
    BOOL SetValue(const char* lpszName, DWORD dwType, const void* pData, size_t nSize, DWORD dwRecordType);

private:
    BOOL RecordKey(LONG lResult);
    BOOL OpenBelow(const char* lpszPath);
    BOOL IsOpen(const char* lpszName) const;
    BOOL Query(const char* lpszName, void* pData, DWORD nRoom);
    BYTE* QueryBlock(const char* lpszName);
    BOOL WriteShort(const char* lpszName, CObject& collection);
    template <class StoreValue>
    BOOL WriteStream(const char* lpszName, StoreValue store);
    template <class Value>
    BOOL ReadShort(const char* lpszName, Value& value);
    template <class Value>
    BOOL ReadAny(const char* lpszName, Value& value);
};
