#include "afxcoll.h"

// How the ready-made collections are stored.

IMPLEMENT_SERIAL(CByteArray, CObject, 0)
IMPLEMENT_SERIAL(CWordArray, CObject, 0)
IMPLEMENT_SERIAL(CDWordArray, CObject, 0)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_SERIAL(CObArray, CObject, 0)
IMPLEMENT_SERIAL(CStringArray, CObject, 0)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_SERIAL(CObList, CObject, 0)
IMPLEMENT_SERIAL(CStringList, CObject, 0)

namespace {

// Elements read at once: a count that lies costs no more memory than this.
const DWORD_PTR nPiece = 0x4000;

template <class ARRAY>
void storeValues(CArchive& ar, const ARRAY& values) {
    ar.WriteCount((DWORD_PTR)values.GetSize());
    for (INT_PTR i = 0; i < values.GetSize();) {
        const INT_PTR nLeft = values.GetSize() - i;
        const INT_PTR n = nLeft < (INT_PTR)nPiece ? nLeft : (INT_PTR)nPiece;
        ar.Write(values.GetData() + i, (UINT)(n * sizeof(*values.GetData())));
        i += n;
    }
}

template <class ARRAY>
void loadValues(CArchive& ar, ARRAY& values) {
    for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0;) {
        const INT_PTR n = (INT_PTR)(nLeft < nPiece ? nLeft : nPiece), nOld = values.GetSize();
        values.SetSize(nOld + n);
        ar.EnsureRead(values.GetData() + nOld, (UINT)(n * sizeof(*values.GetData())));
        nLeft -= (DWORD_PTR)n;
    }
}

} // namespace

#define ORV_SERIALIZE_VALUES(class_name)                                                                     \
    void class_name::Serialize(CArchive& ar) {                                                               \
        if (ar.IsStoring()) {                                                                                \
            storeValues(ar, *this);                                                                          \
        } else {                                                                                             \
            class_name loaded;                                                                               \
            loadValues(ar, loaded);                                                                          \
            Swap(loaded);                                                                                    \
        }                                                                                                    \
    }

ORV_SERIALIZE_VALUES(CByteArray)
ORV_SERIALIZE_VALUES(CWordArray)
ORV_SERIALIZE_VALUES(CDWordArray)

void CUIntArray::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}

void CPtrArray::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}

void CPtrList::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}

void CStringArray::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar.WriteCount((DWORD_PTR)m_nSize);
        for (INT_PTR i = 0; i < m_nSize; i++)
            ar << m_pData[i];
        return;
    }
    CStringArray loaded;
    for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; nLeft--) {
        CString str;
        ar >> str;
        loaded.Add(str);
    }
    Swap(loaded);
}

void CStringList::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar.WriteCount((DWORD_PTR)m_nCount);
        for (POSITION pos = GetHeadPosition(); pos != NULL;)
            ar << GetNext(pos);
        return;
    }
    const INT_PTR nBefore = m_nCount;
    try {
        for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; nLeft--) {
            AddTail(CString());
            ar >> GetTail();
        }
    } catch (...) {
        while (m_nCount > nBefore)
            RemoveTail();
        throw;
    }
}

void CObArray::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar.WriteCount((DWORD_PTR)m_nSize);
        for (INT_PTR i = 0; i < m_nSize; i++)
            ar << m_pData[i];
        return;
    }
    DWORD_PTR nLeft = ar.ReadCount();
    for (RemoveAll(); nLeft > 0; nLeft--) {
        CObject* pOb;
        ar >> pOb;
        Add(pOb);
    }
}

void CObList::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar.WriteCount((DWORD_PTR)m_nCount);
        for (POSITION pos = GetHeadPosition(); pos != NULL;)
            ar << GetNext(pos);
        return;
    }
    for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; nLeft--) {
        CObject* pOb;
        ar >> pOb;
        AddTail(pOb);
    }
}
