#include "shapes.h"

#include "afx_test.h"

#include <afxdisp.h>

IMPLEMENT_SERIAL(Dot, CObject, 1)
IMPLEMENT_SERIAL(Branch, Dot, 1)
IMPLEMENT_SERIAL(Nest, CObject, 1)
IMPLEMENT_SERIAL(Grown, CObject, VERSIONABLE_SCHEMA | 2)

int Dot::s_nLive = 0;
std::vector<Dot*> Dot::s_last;

void Dot::Serialize(CArchive& ar) {
    if (ar.IsStoring())
        ar << m_n << m_pLink;
    else
        ar >> m_n >> m_pLink;
}

Branch::~Branch() {
    for (INT_PTR i = 0; i < m_children.GetSize(); i++)
        delete m_children[i];
}

void Branch::Serialize(CArchive& ar) {
    Dot::Serialize(ar);
    if (ar.IsStoring())
        ar << m_strName;
    else
        ar >> m_strName;
    m_numbers.Serialize(ar);
    m_children.Serialize(ar);
}

Nest::~Nest() {
    delete m_pInner;
    Dot::s_nLive--;
}

void Nest::Serialize(CArchive& ar) {
    if (ar.IsStoring())
        ar << m_pInner;
    else
        ar >> m_pInner;
}

void Grown::Serialize(CArchive& ar) {
    if (ar.IsStoring()) {
        ar << m_nOld << m_nNew;
        return;
    }
    m_nSchema = ar.GetObjectSchema();
    ar >> m_nOld;
    if (m_nSchema == 2)
        ar >> m_nNew;
}

namespace {

class Plain : public CObject {
    DECLARE_DYNAMIC(Plain)
};
IMPLEMENT_DYNAMIC(Plain, CObject)

class Creatable : public Plain {
    DECLARE_DYNCREATE(Creatable)
};
IMPLEMENT_DYNCREATE(Creatable, Plain)

} // namespace

TEST(Object, KnowsItsKind) {
    const Branch branch;
    const CObject* object = &branch;
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(Branch)) && object->IsKindOf(RUNTIME_CLASS(Dot)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CObject)) && !object->IsKindOf(RUNTIME_CLASS(Nest)));
    EXPECT_TRUE(object->IsSerializable() && !Plain().IsSerializable());
    EXPECT_STREQ("Branch", object->GetRuntimeClass()->m_lpszClassName);
    EXPECT_EQ((int)sizeof(Branch), RUNTIME_CLASS(Branch)->m_nObjectSize);
    EXPECT_EQ(&branch, DYNAMIC_DOWNCAST(Dot, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(Nest, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(Nest, (CObject*)NULL));
    EXPECT_EQ(&branch, STATIC_DOWNCAST(Branch, object));
    orv::test::PassedAssertions assertions;
    AfxStaticDownCast(RUNTIME_CLASS(Nest), object);
#if defined(_DEBUG)
    EXPECT_EQ(1, assertions.count());
#endif
}

TEST(Object, ClassesMakeObjects) {
    CObject* object = RUNTIME_CLASS(Creatable)->CreateObject();
    EXPECT_TRUE(object != NULL && object->IsKindOf(RUNTIME_CLASS(Creatable)));
    delete object;
    EXPECT_EQ(nullptr, RUNTIME_CLASS(Plain)->CreateObject());
}

TEST(Object, SerialClassesAreFoundByNameWhileTheyAreRegistered) {
    EXPECT_EQ(RUNTIME_CLASS(Branch), CRuntimeClass::FromName("Branch"));
    EXPECT_EQ(RUNTIME_CLASS(CByteArray), CRuntimeClass::FromName("CByteArray"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("branch"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("Plain"));
    CRuntimeClass guest = {"Guest", sizeof(Plain), 1, NULL, &CObject::GetThisClass, NULL, NULL};
    {
        const AFX_CLASSINIT registration(&guest);
        EXPECT_EQ(&guest, CRuntimeClass::FromName("Guest"));
    }
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("Guest"));
    EXPECT_EQ(RUNTIME_CLASS(Dot), CRuntimeClass::FromName("Dot"));
}
