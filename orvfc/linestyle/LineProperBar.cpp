#include "LineProperBar.h"

#include <orvfc/services/OwnedRows.h>

IMPLEMENT_SERIAL(COrvDrawManage, CObject, 1)

COrvDrawManage::COrvDrawManage() {
    Init();
}

COrvDrawManage::~COrvDrawManage() = default;

void COrvDrawManage::Init() {
    m_nVersion = 0;
    EmptyAll();
}

void COrvDrawManage::EmptyAll() {
    m_dashes.RemoveAll();
}

void COrvDrawManage::InitToGerApp() {
    EmptyAll();
    orv::addNew<COrvDrawDashWeaver>(m_dashes);
    orv::addNew<COrvDrawDashDash>(m_dashes);
    orv::addNew<COrvDrawDashDot>(m_dashes);
    orv::addNew<COrvDrawDashDotDot>(m_dashes);
    orv::addNew<COrvDrawDashDotDotTwice>(m_dashes);
}

COrvDrawBasicDash* COrvDrawManage::GetDashFromType(int nType) {
    for (int i = 0; i < m_dashes.GetSize(); ++i)
        if (m_dashes[i]->GetDashType() == nType)
            return m_dashes[i];
    return NULL;
}

COrvDrawBasicDash* COrvDrawManage::GetDashFromType(int nType, int nWidth, COLORREF crColor) {
    COrvDrawBasicDash* pDash = GetDashFromType(nType);
    if (pDash)
        pDash->SetLineProperty(nWidth, crColor);
    return pDash;
}

void COrvDrawManage::Serialize(CArchive& ar) {
    if (ar.IsStoring())
        Store(ar);
    else
        Load(ar);
}

void COrvDrawManage::Store(CArchive& ar) {
    ar << m_nVersion << m_strName << m_dashes.GetSize();
    for (int i = 0; i < m_dashes.GetSize(); ++i) {
        ar << m_dashes[i]->GetDashType();
        m_dashes[i]->Serialize(ar);
    }
}

void COrvDrawManage::Load(CArchive& ar) {
    int nVersion = 0;
    CString strName;
    int nCount = 0;
    ar >> nVersion >> strName >> nCount;
    CDynamicPtrArray<COrvDrawBasicDash> dashes;
    for (int i = 0; i < nCount; ++i) {
        int nType = 5;
        ar >> nType;
        orv::addOwned(dashes, std::unique_ptr<COrvDrawBasicDash>(SerializeLoadDash(ar, nType)));
    }
    m_dashes.TakeFrom(dashes);
    m_nVersion = nVersion;
    m_strName = strName;
}

COrvDrawBasicDash* COrvDrawManage::SerializeLoadDash(CArchive& ar, int nType) {
    std::unique_ptr<COrvDrawBasicDash> dash;
    if (nType == 5)
        dash = std::make_unique<COrvDrawBasicDash>();
    else if (nType == 101)
        dash = std::make_unique<COrvDrawDashWeaver>();
    else
        return NULL;
    dash->Serialize(ar);
    return dash.release();
}

void COrvDrawManage::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << "m_nVersion = " << m_nVersion << ", m_strName = " << m_strName << ", " << m_dashes.GetSize()
       << " patterns\n";
    for (int i = 0; i < m_dashes.GetSize(); ++i)
        dc << "  type " << m_dashes[i]->GetDashType() << "\n";
}

COrvMainDrawManage::~COrvMainDrawManage() = default;

void COrvMainDrawManage::Init() {
    m_nState = 0;
    auto builtIn = std::make_unique<COrvDrawManage>();
    builtIn->InitToGerApp();
    orv::addOwned(m_sets, std::move(builtIn));
}

void COrvMainDrawManage::EmptyAll() {
    m_sets.RemoveAll();
}

COrvDrawBasicDash* COrvMainDrawManage::GetLineType(int nType) {
    for (int i = 0; i < m_sets.GetSize(); ++i)
        if (COrvDrawBasicDash* pDash = m_sets[i]->GetDashFromType(nType))
            return pDash;
    return NULL;
}

void COrvMainDrawManage::Dump(CDumpContext& dc) const {
    dc << "COrvMainDrawManage path name = " << m_strPathName << ", " << m_sets.GetSize() << " sets\n";
    for (int i = 0; i < m_sets.GetSize(); ++i)
        m_sets[i]->Dump(dc);
}
