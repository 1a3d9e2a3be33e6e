#include "afx.h"

#include "archive_map.h"

// Objects and classes in an archive. Each object starts with a tag: 0 is the null pointer, the number of an
// object that came before, 0x8000 with the number of a class that came before, or 0xFFFF and a class of its
// own (schema, name). Numbers from 0x7FFF on follow in 32 bits behind the tag 0x7FFF.

namespace {

const WORD wNewClassTag = 0xFFFF;
const WORD wClassTag = 0x8000;
const WORD wBigObjectTag = 0x7FFF;
const DWORD dwBigClassTag = 0x80000000;
const DWORD nMaxMapCount = 0x3FFFFFFE;
const UINT nMaxClassName = 63;

// The schema number without the flag that older ones can be read.
WORD plainSchema(const CRuntimeClass* pClass) {
    return (WORD)(pClass->m_wSchema & ~VERSIONABLE_SCHEMA);
}

} // namespace

void CRuntimeClass::Store(CArchive& ar) const {
    const WORD nLen = (WORD)strlen(m_lpszClassName);
    ar << plainSchema(this) << nLen;
    ar.Write(m_lpszClassName, nLen);
}

CRuntimeClass* PASCAL CRuntimeClass::Load(CArchive& ar, UINT* pwSchemaNum) {
    WORD wSchema, nLen;
    ar >> wSchema >> nLen;
    if (pwSchemaNum != NULL)
        *pwSchemaNum = wSchema;
    char name[nMaxClassName + 1] = "";
    if (nLen > nMaxClassName)
        return NULL;
    ar.EnsureRead(name, nLen);
    CRuntimeClass* pClass = strlen(name) == nLen ? FromName(name) : NULL;
    if (pClass == NULL)
        TRACE("CArchive: there is no serial class %s.\n", name);
    return pClass;
}

OrvArchiveMap& CArchive::Map() {
    if (m_pMap == NULL)
        m_pMap = new OrvArchiveMap;
    if (m_pMap->entries.size() > nMaxMapCount || m_pMap->numbers.size() > nMaxMapCount)
        Fail(CArchiveException::badIndex);
    return *m_pMap;
}

void CArchive::SetStoreParams(UINT nHashSize, UINT) {
    ASSERT(IsStoring() && m_pMap == NULL);
    Map().numbers.reserve(nHashSize < 0x10000 ? nHashSize : 0x10000);
}

void CArchive::SetLoadParams(UINT nGrowBy) {
    ASSERT(IsLoading() && m_pMap == NULL);
    Map().entries.reserve(nGrowBy < 0x10000 ? nGrowBy : 0x10000);
}

void CArchive::MapObject(const CObject* pOb) {
    if (pOb == NULL)
        return;
    OrvArchiveMap& map = Map();
    if (IsStoring())
        map.number(pOb);
    else
        map.add({const_cast<CObject*>(pOb), NULL, 0});
}

void CArchive::WriteTag(DWORD nIndex, BOOL bClass) {
    if (nIndex < wBigObjectTag)
        *this << (WORD)(nIndex | (bClass ? wClassTag : 0));
    else
        *this << wBigObjectTag << (nIndex | (bClass ? dwBigClassTag : 0));
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef) {
    ASSERT(pClassRef != NULL);
    RequireStoring();
    if (pClassRef == NULL || pClassRef->m_wSchema == 0xFFFF) {
        TRACE("CArchive: %s cannot be stored.\n", pClassRef != NULL ? pClassRef->m_lpszClassName : "NULL");
        AfxThrowNotSupportedException();
    }
    OrvArchiveMap& map = Map();
    if (const DWORD nIndex = map.numberOf(pClassRef)) {
        WriteTag(nIndex, TRUE);
        return;
    }
    *this << wNewClassTag;
    pClassRef->Store(*this);
    map.number(pClassRef);
}

void CArchive::WriteObject(const CObject* pOb) {
    RequireStoring();
    if (pOb == NULL) {
        *this << (WORD)0;
        return;
    }
    if (const DWORD nIndex = Map().numberOf(pOb)) {
        WriteTag(nIndex, FALSE);
        return;
    }
    WriteClass(pOb->GetRuntimeClass());
    MapObject(pOb); // before its contents, which may point back to it
    const_cast<CObject*>(pOb)->Serialize(*this);
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema, DWORD* pObTag) {
    RequireLoading();
    if (pClassRefRequested != NULL && pClassRefRequested->m_wSchema == 0xFFFF) {
        TRACE("CArchive: %s cannot be loaded.\n", pClassRefRequested->m_lpszClassName);
        AfxThrowNotSupportedException();
    }
    WORD wTag;
    *this >> wTag;
    DWORD obTag = ((DWORD)(wTag & wClassTag) << 16) | (wTag & ~(DWORD)wClassTag);
    if (wTag == wBigObjectTag)
        *this >> obTag;
    else if (wTag == wNewClassTag)
        obTag = dwBigClassTag;

    if ((obTag & dwBigClassTag) == 0) {
        if (pObTag == NULL)
            Fail(CArchiveException::badIndex);
        *pObTag = obTag;
        return NULL;
    }
    CRuntimeClass* pClass;
    UINT nSchema;
    if (wTag == wNewClassTag) {
        pClass = CRuntimeClass::Load(*this, &nSchema);
        if (pClass == NULL)
            Fail(CArchiveException::badClass);
        if (plainSchema(pClass) != nSchema && (pClass->m_wSchema & VERSIONABLE_SCHEMA) == 0)
            Fail(CArchiveException::badSchema);
        Map().add({NULL, pClass, nSchema});
    } else {
        const OrvArchiveMap::Entry* pEntry = Map().entry(obTag & ~dwBigClassTag);
        if (pEntry == NULL || pEntry->pClass == NULL)
            Fail(CArchiveException::badIndex);
        pClass = const_cast<CRuntimeClass*>(pEntry->pClass);
        nSchema = pEntry->nSchema;
    }
    if (pClassRefRequested != NULL && !pClass->IsDerivedFrom(pClassRefRequested))
        Fail(CArchiveException::badClass);
    if (pSchema != NULL)
        *pSchema = nSchema;
    else
        m_nObjectSchema = nSchema;
    if (pObTag != NULL)
        *pObTag = obTag;
    return pClass;
}

void CArchive::SerializeClass(const CRuntimeClass* pClassRef) {
    if (IsStoring())
        WriteClass(pClassRef);
    else
        ReadClass(pClassRef);
}

CObject* CArchive::KnownObject(DWORD nIndex, const CRuntimeClass* pClass) {
    if (nIndex == 0)
        return NULL;
    const OrvArchiveMap::Entry* pEntry = Map().entry(nIndex);
    if (pEntry == NULL || pEntry->pObject == NULL)
        Fail(CArchiveException::badIndex);
    if (pClass != NULL && !pEntry->pObject->IsKindOf(pClass))
        Fail(CArchiveException::badClass);
    Map().nReferences++;
    return pEntry->pObject;
}

// An object whose loading fails is deleted, and with it what it has read and owns. Not so when an object was
// given out a second time meanwhile: two owners would delete it, or it would delete itself. Then all of them
// stay.
CObject* CArchive::ReadNewObject(CRuntimeClass* pClass, UINT nSchema) {
    if (pClass->m_pfnCreateObject == NULL)
        Fail(CArchiveException::badClass);
    const size_t nIndex = Map().entries.size();
    const ULONGLONG nReferences = Map().nReferences;
    CObject* pOb = pClass->CreateObject();
    if (pOb == NULL)
        AfxThrowMemoryException();
    const UINT nOuterSchema = m_nObjectSchema;
    m_nObjectSchema = nSchema;
    m_nDepth++;
    try {
        MapObject(pOb); // before its contents, which may point back to it
        pOb->Serialize(*this);
    } catch (...) {
        m_nDepth--;
        m_nObjectSchema = nOuterSchema;
        const bool bSingleOwners = m_pMap != NULL && m_pMap->nReferences == nReferences;
        if (m_pMap != NULL)
            m_pMap->forgetObjects(nIndex);
        if (bSingleOwners)
            delete pOb;
        throw;
    }
    m_nDepth--;
    m_nObjectSchema = nOuterSchema;
    return pOb;
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass) {
    UINT nSchema = 0;
    DWORD obTag = 0;
    CRuntimeClass* pFound = ReadClass(pClass, &nSchema, &obTag);
    if (pFound == NULL)
        return KnownObject(obTag, pClass);
    if (m_nDepth >= nMaxObjectDepth)
        Fail(CArchiveException::genericException);
    return ReadNewObject(pFound, nSchema);
}

CObject* OrvReadObject(CArchive& ar, const CRuntimeClass* pClass) {
    return ar.ReadObject(pClass);
}
