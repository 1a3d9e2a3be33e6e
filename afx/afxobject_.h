#pragma once

// CObject and run-time classes.

#include "afxdebug_.h"

class CArchive;
class CDumpContext;
class CObject;
struct AFX_CLASSINIT;

// What a class knows about itself at run time. One constant record per class; bases are reached through a
// function, so that a class in one DLL can derive from a class in another.
struct ORVAFX_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                        // 0xFFFF: cannot be stored
    CObject*(PASCAL* m_pfnCreateObject)(); // NULL: abstract or not dynamically creatable
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();

    // A new object on the heap; NULL when the class cannot make one or memory is short.
    CObject* CreateObject();
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    // Serial classes of all loaded modules are found by name; the youngest registration of a name wins.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);

    // Schema, length and name as an archive stores them. Load gives NULL for an unknown or overlong name.
    void Store(CArchive& ar) const;
    static CRuntimeClass* PASCAL Load(CArchive& ar, UINT* pwSchemaNum);

    mutable CRuntimeClass* m_pNextClass; // chain of registered classes
    const AFX_CLASSINIT* m_pClassInit;
};

// Registers a serial class while the module that holds it is loaded.
struct ORVAFX_API AFX_CLASSINIT {
    explicit AFX_CLASSINIT(const CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    const CRuntimeClass* m_pClass;
};

ORVAFX_API void AfxRegisterRuntimeClass(const CRuntimeClass* pNewClass);
ORVAFX_API void AfxUnregisterRuntimeClass(const CRuntimeClass* pClass);

// Schema numbers of classes that can read older versions of themselves.
#define VERSIONABLE_SCHEMA 0x80000000u

// Memory of this foundation's own; AfxThrowMemoryException when there is none.
ORVAFX_API void* OrvAlloc(size_t nSize);
ORVAFX_API void OrvFree(void* p);

// Base of everything that has a run-time class, can be stored in an archive, checked and dumped.
class ORVAFX_API CObject {
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() {}

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    static void* PASCAL operator new(size_t nSize) { return OrvAlloc(nSize); }
    static void* PASCAL operator new(size_t, void* p) { return p; }
    static void PASCAL operator delete(void* p) { OrvFree(p); }
    static void PASCAL operator delete(void*, void*) {}

    BOOL IsSerializable() const;
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    // Writes to or reads from the archive, as ar.IsStoring() says.
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;

    static const CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL _GetBaseClass() { return NULL; }
    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject() {}
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())
#define ASSERT_OBJECT_KIND(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))

#define DECLARE_DYNAMIC(class_name)                                                                          \
protected:                                                                                                   \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                            \
                                                                                                             \
public:                                                                                                      \
    static const CRuntimeClass class##class_name;                                                            \
    static CRuntimeClass* PASCAL GetThisClass();                                                             \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* PASCAL CreateObject();

#define DECLARE_SERIAL(class_name)                                                                           \
    DECLARE_DYNCREATE(class_name)                                                                            \
    friend inline CArchive& operator>>(CArchive& ar, class_name*& pOb) {                                     \
        pOb = static_cast<class_name*>(OrvReadObject(ar, RUNTIME_CLASS(class_name)));                        \
        return ar;                                                                                           \
    }

#define ORV_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew, pInit)                      \
    CRuntimeClass* PASCAL class_name::_GetBaseClass() {                                                      \
        return RUNTIME_CLASS(base_class_name);                                                               \
    }                                                                                                        \
    const CRuntimeClass class_name::class##class_name = {                                                    \
        #class_name, sizeof(class class_name), wSchema, pfnNew, &class_name::_GetBaseClass, NULL, pInit};    \
    CRuntimeClass* PASCAL class_name::GetThisClass() {                                                       \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                                   \
    }                                                                                                        \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                     \
        return GetThisClass();                                                                               \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    ORV_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, NULL, NULL)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* PASCAL class_name::CreateObject() {                                                             \
        return new class_name;                                                                               \
    }                                                                                                        \
    ORV_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject, NULL)

#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                               \
    CObject* PASCAL class_name::CreateObject() {                                                             \
        return new class_name;                                                                               \
    }                                                                                                        \
    extern const AFX_CLASSINIT _init_##class_name;                                                           \
    ORV_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, class_name::CreateObject,               \
                               &_init_##class_name)                                                          \
    const AFX_CLASSINIT _init_##class_name(&class_name::class##class_name);

// Object read from an archive: pClass or derived from it, or NULL as stored.
ORVAFX_API CObject* OrvReadObject(CArchive& ar, const CRuntimeClass* pClass);

ORVAFX_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, const CObject* pObject);
ORVAFX_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, const CObject* pObject);
// NULL when the object is of another kind; the static form asserts instead.
#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object)                                                                  \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
