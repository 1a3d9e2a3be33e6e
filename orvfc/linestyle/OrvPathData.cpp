#include "OrvPathData.h"

#include <new>
#include <string.h>

COrvGPathData::COrvGPathData() : m_pPoints(NULL), m_pTypes(NULL), m_nCount(0) {}

COrvGPathData::COrvGPathData(const COrvGPathData& other) : COrvGPathData() {
    *this = other;
}

COrvGPathData& COrvGPathData::operator=(const COrvGPathData& other) {
    if (this == &other)
        return *this;
    Empty();
    if (!other.m_pPoints || !other.m_pTypes || other.m_nCount < 1) {
        m_nCount = other.m_nCount;
    } else if (Allocate(other.m_nCount)) {
        m_nCount = other.m_nCount;
        memcpy(m_pPoints, other.m_pPoints, m_nCount * sizeof(POINT));
        memcpy(m_pTypes, other.m_pTypes, m_nCount);
    }
    return *this;
}

COrvGPathData::~COrvGPathData() {
    Empty();
}

void COrvGPathData::Empty() {
    delete[] m_pPoints;
    delete[] m_pTypes;
    m_pPoints = NULL;
    m_pTypes = NULL;
    m_nCount = 0;
}

// Both arrays or none.
BOOL COrvGPathData::Allocate(int nCount) {
    m_pPoints = new (std::nothrow) POINT[nCount];
    m_pTypes = new (std::nothrow) BYTE[nCount];
    if (m_pPoints && m_pTypes)
        return TRUE;
    Empty();
    return FALSE;
}

void COrvGPathData::Dump(CDumpContext& dc) const {
    dc << "COrvGPathData m_nCount = " << m_nCount << "\n";
    if (!m_pPoints || !m_pTypes)
        return;
    for (int i = 0; i < m_nCount; ++i)
        dc << "  " << int(m_pTypes[i]) << " (" << m_pPoints[i].x << ", " << m_pPoints[i].y << ")\n";
}
