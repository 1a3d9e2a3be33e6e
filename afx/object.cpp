#include "afx.h"

#include <atomic>

// CObject, run-time classes and their registry.

namespace {

// The registry is ready before any constructor runs and stays until after the last destructor: modules
// register from their static constructors.
constinit CRuntimeClass* firstClass = NULL;
constinit std::atomic_flag registryBusy;

class RegistryLock {
public:
    RegistryLock() {
        while (registryBusy.test_and_set(std::memory_order_acquire))
            registryBusy.wait(true, std::memory_order_relaxed);
    }
    ~RegistryLock() {
        registryBusy.clear(std::memory_order_release);
        registryBusy.notify_one();
    }
    RegistryLock(const RegistryLock&) = delete;
    RegistryLock& operator=(const RegistryLock&) = delete;
};

} // namespace

CObject* CRuntimeClass::CreateObject() {
    if (m_pfnCreateObject == NULL) {
        TRACE("%s cannot be created by its run-time class.\n", m_lpszClassName);
        return NULL;
    }
    try {
        return m_pfnCreateObject();
    } catch (CMemoryException* e) {
        e->Delete();
        return NULL;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    ASSERT(pBaseClass != NULL);
    for (const CRuntimeClass* p = this; p != NULL; p = p->m_pfnGetBaseClass()) {
        if (p == pBaseClass)
            return TRUE;
    }
    return FALSE;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName) {
    ASSERT(lpszClassName != NULL);
    const RegistryLock lock;
    for (CRuntimeClass* p = firstClass; p != NULL && lpszClassName != NULL; p = p->m_pNextClass) {
        if (strcmp(p->m_lpszClassName, lpszClassName) == 0)
            return p;
    }
    return NULL;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName) {
    CRuntimeClass* pClass = FromName(lpszClassName);
    return pClass != NULL ? pClass->CreateObject() : NULL;
}

void AfxRegisterRuntimeClass(const CRuntimeClass* pNewClass) {
    const RegistryLock lock;
    pNewClass->m_pNextClass = firstClass;
    firstClass = const_cast<CRuntimeClass*>(pNewClass);
}

void AfxUnregisterRuntimeClass(const CRuntimeClass* pClass) {
    const RegistryLock lock;
    for (CRuntimeClass** pp = &firstClass; *pp != NULL; pp = &(*pp)->m_pNextClass) {
        if (*pp == pClass) {
            *pp = pClass->m_pNextClass;
            return;
        }
    }
}

AFX_CLASSINIT::AFX_CLASSINIT(const CRuntimeClass* pNewClass) : m_pClass(pNewClass) {
    AfxRegisterRuntimeClass(pNewClass);
}

AFX_CLASSINIT::~AFX_CLASSINIT() {
    AfxUnregisterRuntimeClass(m_pClass);
}

const CRuntimeClass CObject::classCObject = {
    "CObject", sizeof(CObject), 0xFFFF, NULL, &CObject::_GetBaseClass, NULL, NULL};

CRuntimeClass* PASCAL CObject::GetThisClass() {
    return const_cast<CRuntimeClass*>(&classCObject);
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return GetThisClass();
}

BOOL CObject::IsSerializable() const {
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

void CObject::Serialize(CArchive&) {
    // A class without data of its own has nothing to store.
}

void CObject::AssertValid() const {
    // Nothing to check here; derived classes look at their own members.
}

void CObject::Dump(CDumpContext& dc) const {
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << (const void*)this << "\n";
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, const CObject* pObject) {
    return pObject != NULL && pObject->IsKindOf(pClass) ? const_cast<CObject*>(pObject) : NULL;
}

CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, const CObject* pObject) {
    ASSERT(pObject == NULL || pObject->IsKindOf(pClass));
    UNUSED(pClass);
    return const_cast<CObject*>(pObject);
}
