#pragma once

#include <afxcoll.h>

// An array of pointers that owns what it points to: removing a row, emptying the array and destroying it
// delete. Rows are numbered from 0; a number out of range is an assertion, and harmless in release builds.
template <class T>
class CDynamicPtrArray {
public:
    CDynamicPtrArray() {}
    ~CDynamicPtrArray() { RemoveAll(); }
    CDynamicPtrArray(const CDynamicPtrArray&) = delete;
    CDynamicPtrArray& operator=(const CDynamicPtrArray&) = delete;

    int GetSize() const { return static_cast<int>(m_rows.GetSize()); }
    BOOL IsEmpty() const { return m_rows.IsEmpty(); }

    // The row, still owned by the array; null when nIndex is out of range.
    T* GetAt(int nIndex) const {
        ASSERT(IsRow(nIndex));
        return IsRow(nIndex) ? static_cast<T*>(m_rows.GetAt(nIndex)) : NULL;
    }
    T* operator[](int nIndex) const { return GetAt(nIndex); }

    // Takes the row over and returns its number. A null pointer is refused with a trace and -1. When memory
    // is short CMemoryException is thrown and the row stays the caller's.
    int Add(T* pElement) {
        if (!pElement) {
            TRACE(_T("CDynamicPtrArray::Add(T*pElement) is failed. The pElement is NULL\n"));
            return -1;
        }
        return static_cast<int>(m_rows.Add(pElement));
    }

    void RemoveAt(int nIndex) {
        ASSERT(IsRow(nIndex));
        if (!IsRow(nIndex))
            return;
        T* pElement = static_cast<T*>(m_rows.GetAt(nIndex));
        m_rows.RemoveAt(nIndex);
        delete pElement;
    }

    // Rows are taken out before they are deleted: a destructor never sees the array half-emptied.
    void RemoveAll() {
        while (!m_rows.IsEmpty()) {
            const INT_PTR nLast = m_rows.GetUpperBound();
            T* pElement = static_cast<T*>(m_rows.GetAt(nLast));
            m_rows.RemoveAt(nLast);
            delete pElement;
        }
        m_rows.RemoveAll();
    }

    // Deletes the own rows and takes over those of other, which is left empty. Throws CMemoryException before
    // anything has changed.
    void TakeFrom(CDynamicPtrArray& other) {
        if (this == &other)
            return;
        const INT_PTR nOwn = m_rows.GetSize();
        const INT_PTR nTaken = other.m_rows.GetSize();
        m_rows.SetSize(nOwn + nTaken);
        for (INT_PTR i = 0; i < nTaken; ++i)
            m_rows.SetAt(nOwn + i, other.m_rows.GetAt(i));
        other.m_rows.RemoveAll();
        for (INT_PTR i = 0; i < nOwn; ++i)
            delete static_cast<T*>(m_rows.GetAt(i));
        if (nOwn > 0)
            m_rows.RemoveAt(0, nOwn);
    }

private:
    BOOL IsRow(int nIndex) const { return nIndex >= 0 && nIndex < m_rows.GetSize(); }

    CPtrArray m_rows;
};
