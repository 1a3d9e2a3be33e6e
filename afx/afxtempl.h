#pragma once

// Arrays and lists for any element type, and what the ready-made ones of <afxcoll.h> are built on.

#include "afx.h"

// Puts a new element into raw memory.
struct OrvPlacement {
    void* p;
};
inline void* operator new(size_t, OrvPlacement where) {
    return where.p;
}
inline void operator delete(void*, OrvPlacement) {}

// A growing row of elements. Indexes out of range are assertions, and harmless in release builds: nothing is
// written, and a value read is an empty one. References and pointers into the array die when it grows.
template <class TYPE, class ARG_TYPE>
class OrvArray : public CObject {
public:
    OrvArray() : m_pData(NULL), m_nSize(0), m_nMaxSize(0), m_nGrowBy(0) {}
    ~OrvArray() override { RemoveAll(); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    INT_PTR GetUpperBound() const { return m_nSize - 1; }
    // New elements are zero or default-constructed. nGrowBy: how many elements are added to the memory when
    // it is full; 0: as many as suit.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void FreeExtra();
    void RemoveAll() {
        SetSize(0);
        FreeExtra();
    }

    const TYPE& GetAt(INT_PTR nIndex) const { return ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) {
        if (IsIndex(nIndex))
            m_pData[nIndex] = newElement;
    }
    TYPE& ElementAt(INT_PTR nIndex) { return IsIndex(nIndex) ? m_pData[nIndex] : m_spare = TYPE(); }
    const TYPE& ElementAt(INT_PTR nIndex) const { return const_cast<OrvArray*>(this)->ElementAt(nIndex); }
    const TYPE& operator[](INT_PTR nIndex) const { return ElementAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    TYPE* GetData() { return m_pData; }
    const TYPE* GetData() const { return m_pData; }

    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    INT_PTR Add(ARG_TYPE newElement) {
        SetAtGrow(m_nSize, newElement);
        return m_nSize - 1;
    }
    INT_PTR Append(const OrvArray& src);
    void Copy(const OrvArray& src);
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    void InsertAt(INT_PTR nStartIndex, const OrvArray* pNewArray);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

    void AssertValid() const override { ASSERT(m_nSize >= 0 && m_nSize <= m_nMaxSize); }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "with " << m_nSize << " elements\n";
    }

protected:
    TYPE* m_pData;
    INT_PTR m_nSize;
    INT_PTR m_nMaxSize;
    INT_PTR m_nGrowBy;

    BOOL IsIndex(INT_PTR nIndex) const {
        ASSERT(nIndex >= 0 && nIndex < m_nSize);
        return nIndex >= 0 && nIndex < m_nSize;
    }
    void Swap(OrvArray& other);

private:
    void Reallocate(INT_PTR nMaxSize);
    INT_PTR Room(INT_PTR nNewSize) const;

    TYPE m_spare{}; // what a reference to an element out of range refers to
};

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::Reallocate(INT_PTR nMaxSize) {
    TYPE* pData = NULL;
    if (nMaxSize > 0) {
        if ((SIZE_T)nMaxSize > (SIZE_T)-1 / 2 / sizeof(TYPE))
            AfxThrowMemoryException();
        pData = (TYPE*)OrvAlloc(nMaxSize * sizeof(TYPE));
    }
    for (INT_PTR i = 0; i < m_nSize; i++) {
        new (OrvPlacement{pData + i}) TYPE(static_cast<TYPE&&>(m_pData[i]));
        m_pData[i].~TYPE();
    }
    OrvFree(m_pData);
    m_pData = pData;
    m_nMaxSize = nMaxSize;
}

template <class TYPE, class ARG_TYPE>
INT_PTR OrvArray<TYPE, ARG_TYPE>::Room(INT_PTR nNewSize) const {
    INT_PTR nGrow = m_nGrowBy;
    if (nGrow <= 0)
        nGrow = m_nSize < 8 ? 4 : m_nSize / 2;
    const INT_PTR nMax = m_nMaxSize < INTPTR_MAX - nGrow ? m_nMaxSize + nGrow : nNewSize;
    return nNewSize > nMax ? nNewSize : nMax;
}

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy) {
    ASSERT(nNewSize >= 0);
    if (nNewSize < 0)
        nNewSize = 0;
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;
    if (nNewSize > m_nMaxSize)
        Reallocate(m_nMaxSize == 0 ? nNewSize : Room(nNewSize));
    for (; m_nSize < nNewSize; m_nSize++)
        new (OrvPlacement{m_pData + m_nSize}) TYPE();
    while (m_nSize > nNewSize)
        m_pData[--m_nSize].~TYPE();
}

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::FreeExtra() {
    if (m_nMaxSize != m_nSize)
        Reallocate(m_nSize);
}

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
    ASSERT(nIndex >= 0);
    if (nIndex < 0)
        return;
    if (nIndex >= m_nSize) {
        TYPE copy(newElement); // it may lie in this array
        if (nIndex + 1 > m_nMaxSize)
            Reallocate(Room(nIndex + 1));
        SetSize(nIndex + 1);
        m_pData[nIndex] = static_cast<TYPE&&>(copy);
    } else {
        m_pData[nIndex] = newElement;
    }
}

template <class TYPE, class ARG_TYPE>
INT_PTR OrvArray<TYPE, ARG_TYPE>::Append(const OrvArray& src) {
    const INT_PTR nOld = m_nSize, nAdd = src.m_nSize;
    SetSize(nOld + nAdd);
    for (INT_PTR i = 0; i < nAdd; i++)
        m_pData[nOld + i] = src.m_pData[i];
    return nOld;
}

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::Copy(const OrvArray& src) {
    if (this == &src)
        return;
    SetSize(src.m_nSize);
    for (INT_PTR i = 0; i < m_nSize; i++)
        m_pData[i] = src.m_pData[i];
}

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount) {
    ASSERT(nIndex >= 0 && nCount > 0);
    if (nIndex < 0 || nCount <= 0)
        return;
    const TYPE copy(newElement); // it may lie in this array
    const INT_PTR nOld = m_nSize;
    SetSize((nIndex > nOld ? nIndex : nOld) + nCount);
    for (INT_PTR i = nOld; i-- > nIndex;)
        m_pData[i + nCount] = static_cast<TYPE&&>(m_pData[i]);
    for (INT_PTR i = 0; i < nCount; i++)
        m_pData[nIndex + i] = copy;
}

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, const OrvArray* pNewArray) {
    ASSERT(pNewArray != NULL && pNewArray != this && nStartIndex >= 0);
    if (pNewArray == NULL || pNewArray == this || nStartIndex < 0 || pNewArray->IsEmpty())
        return;
    InsertAt(nStartIndex, pNewArray->m_pData[0], pNewArray->m_nSize);
    for (INT_PTR i = 1; i < pNewArray->m_nSize; i++)
        m_pData[nStartIndex + i] = pNewArray->m_pData[i];
}

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount) {
    ASSERT(nIndex >= 0 && nCount >= 0 && nIndex <= m_nSize && nCount <= m_nSize - nIndex);
    if (nIndex < 0 || nCount <= 0 || nIndex > m_nSize || nCount > m_nSize - nIndex)
        return;
    for (INT_PTR i = nIndex; i + nCount < m_nSize; i++)
        m_pData[i] = static_cast<TYPE&&>(m_pData[i + nCount]);
    SetSize(m_nSize - nCount);
}

template <class TYPE, class ARG_TYPE>
void OrvArray<TYPE, ARG_TYPE>::Swap(OrvArray& other) {
    TYPE* pData = m_pData;
    m_pData = other.m_pData;
    other.m_pData = pData;
    INT_PTR n = m_nSize;
    m_nSize = other.m_nSize;
    other.m_nSize = n;
    n = m_nMaxSize;
    m_nMaxSize = other.m_nMaxSize;
    other.m_nMaxSize = n;
}

// A doubly linked list. A POSITION stays good until its element is removed; NULL is "behind the end". Reading
// an empty list or a NULL position is an assertion, and gives an empty value in release builds. Memory is
// taken in blocks of elements, used again for new ones, and given back when the list is empty.
template <class TYPE, class ARG_TYPE>
class OrvList : public CObject {
protected:
    struct CNode : __POSITION {
        explicit CNode(ARG_TYPE newElement) : pNext(NULL), pPrev(NULL), data(newElement) {}

        CNode* pNext;
        CNode* pPrev;
        TYPE data;
    };

public:
    // nBlockSize: elements to a block, at least 1.
    explicit OrvList(INT_PTR nBlockSize = 10)
        : m_pNodeHead(NULL), m_pNodeTail(NULL), m_nCount(0), m_nBlockSize(nBlockSize), m_pFree(NULL),
          m_pBlocks(NULL) {
        ASSERT(nBlockSize > 0);
        if (nBlockSize <= 0)
            m_nBlockSize = 1;
    }
    ~OrvList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return GetAt(m_pNodeHead); }
    TYPE& GetTail() { return GetAt(m_pNodeTail); }
    const TYPE& GetHead() const { return GetAt(m_pNodeHead); }
    const TYPE& GetTail() const { return GetAt(m_pNodeTail); }
    TYPE RemoveHead() { return Take(m_pNodeHead); }
    TYPE RemoveTail() { return Take(m_pNodeTail); }
    POSITION AddHead(ARG_TYPE newElement) { return Link(NewNode(newElement), NULL, m_pNodeHead); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(NewNode(newElement), m_pNodeTail, NULL); }
    void AddHead(OrvList* pNewList);
    void AddTail(OrvList* pNewList);
    void RemoveAll() {
        while (m_pNodeHead != NULL)
            Unlink(m_pNodeHead);
        if (m_nCount == 0)
            FreeBlocks();
    }

    POSITION GetHeadPosition() const { return m_pNodeHead; }
    POSITION GetTailPosition() const { return m_pNodeTail; }
    // The element at the position, which moves on.
    TYPE& GetNext(POSITION& rPosition) { return Step(rPosition, &CNode::pNext); }
    TYPE& GetPrev(POSITION& rPosition) { return Step(rPosition, &CNode::pPrev); }
    const TYPE& GetNext(POSITION& rPosition) const { return Self()->GetNext(rPosition); }
    const TYPE& GetPrev(POSITION& rPosition) const { return Self()->GetPrev(rPosition); }
    TYPE& GetAt(POSITION position) {
        ASSERT(position != NULL);
        return position != NULL ? Node(position)->data : m_spare = TYPE();
    }
    const TYPE& GetAt(POSITION position) const { return Self()->GetAt(position); }
    void SetAt(POSITION pos, ARG_TYPE newElement) { GetAt(pos) = newElement; }
    void RemoveAt(POSITION position) {
        ASSERT(position != NULL);
        if (position != NULL)
            Unlink(Node(position));
    }
    // NULL: at the head (before) or the tail (after).
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);
    // From the head, or from behind startAfter; NULL when there is none.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = NULL) const;
    POSITION FindIndex(INT_PTR nIndex) const;

    void AssertValid() const override { ASSERT((m_nCount == 0) == (m_pNodeHead == NULL)); }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "with " << m_nCount << " elements\n";
    }

protected:
    CNode* m_pNodeHead;
    CNode* m_pNodeTail;
    INT_PTR m_nCount;
    INT_PTR m_nBlockSize;

private:
    // Where a node may come to stand.
    struct FreeNode {
        FreeNode* pNext;
    };
    // In front of a block's nodes.
    struct alignas(CNode) Block {
        Block* pNext;
    };

    static CNode* Node(POSITION position) { return static_cast<CNode*>(position); }
    OrvList* Self() const { return const_cast<OrvList*>(this); }
    CNode* NewNode(ARG_TYPE newElement);
    void AddBlock();
    void FreeBlocks();
    POSITION Link(CNode* pNode, CNode* pPrev, CNode* pNext);
    void Unlink(CNode* pNode);
    TYPE Take(CNode* pNode);
    TYPE& Step(POSITION& rPosition, CNode* CNode::*pTo);

    FreeNode* m_pFree;
    Block* m_pBlocks;
    TYPE m_spare{}; // what a reference to no element refers to
};

template <class TYPE, class ARG_TYPE>
void OrvList<TYPE, ARG_TYPE>::AddBlock() {
    if ((SIZE_T)m_nBlockSize > (SIZE_T)-1 / 2 / sizeof(CNode))
        AfxThrowMemoryException();
    Block* pBlock = (Block*)OrvAlloc(sizeof(Block) + m_nBlockSize * sizeof(CNode));
    pBlock->pNext = m_pBlocks;
    m_pBlocks = pBlock;
    BYTE* pNodes = (BYTE*)(pBlock + 1);
    for (INT_PTR i = m_nBlockSize; i-- > 0;)
        m_pFree = new (OrvPlacement{pNodes + i * sizeof(CNode)}) FreeNode{m_pFree};
}

template <class TYPE, class ARG_TYPE>
void OrvList<TYPE, ARG_TYPE>::FreeBlocks() {
    while (m_pBlocks != NULL) {
        Block* pBlock = m_pBlocks;
        m_pBlocks = pBlock->pNext;
        OrvFree(pBlock);
    }
    m_pFree = NULL;
}

template <class TYPE, class ARG_TYPE>
typename OrvList<TYPE, ARG_TYPE>::CNode* OrvList<TYPE, ARG_TYPE>::NewNode(ARG_TYPE newElement) {
    if (m_pFree == NULL)
        AddBlock();
    FreeNode* pFree = m_pFree;
    m_pFree = pFree->pNext;
    return new (OrvPlacement{pFree}) CNode(newElement);
}

template <class TYPE, class ARG_TYPE>
POSITION OrvList<TYPE, ARG_TYPE>::Link(CNode* pNode, CNode* pPrev, CNode* pNext) {
    pNode->pPrev = pPrev;
    pNode->pNext = pNext;
    (pPrev != NULL ? pPrev->pNext : m_pNodeHead) = pNode;
    (pNext != NULL ? pNext->pPrev : m_pNodeTail) = pNode;
    m_nCount++;
    return pNode;
}

template <class TYPE, class ARG_TYPE>
void OrvList<TYPE, ARG_TYPE>::Unlink(CNode* pNode) {
    (pNode->pPrev != NULL ? pNode->pPrev->pNext : m_pNodeHead) = pNode->pNext;
    (pNode->pNext != NULL ? pNode->pNext->pPrev : m_pNodeTail) = pNode->pPrev;
    pNode->~CNode(); // still counted: its end may remove the others
    m_pFree = new (OrvPlacement{pNode}) FreeNode{m_pFree};
    if (--m_nCount == 0)
        FreeBlocks();
}

template <class TYPE, class ARG_TYPE>
TYPE OrvList<TYPE, ARG_TYPE>::Take(CNode* pNode) {
    ASSERT(pNode != NULL);
    if (pNode == NULL)
        return TYPE();
    TYPE data(static_cast<TYPE&&>(pNode->data));
    Unlink(pNode);
    return data;
}

template <class TYPE, class ARG_TYPE>
TYPE& OrvList<TYPE, ARG_TYPE>::Step(POSITION& rPosition, CNode* CNode::*pTo) {
    TYPE& data = GetAt(rPosition);
    if (rPosition != NULL)
        rPosition = Node(rPosition)->*pTo;
    return data;
}

template <class TYPE, class ARG_TYPE>
void OrvList<TYPE, ARG_TYPE>::AddHead(OrvList* pNewList) {
    ASSERT(pNewList != NULL && pNewList != this);
    if (pNewList == NULL || pNewList == this)
        return;
    for (POSITION pos = pNewList->GetTailPosition(); pos != NULL;)
        AddHead(pNewList->GetPrev(pos));
}

template <class TYPE, class ARG_TYPE>
void OrvList<TYPE, ARG_TYPE>::AddTail(OrvList* pNewList) {
    ASSERT(pNewList != NULL && pNewList != this);
    if (pNewList == NULL || pNewList == this)
        return;
    for (POSITION pos = pNewList->GetHeadPosition(); pos != NULL;)
        AddTail(pNewList->GetNext(pos));
}

template <class TYPE, class ARG_TYPE>
POSITION OrvList<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement) {
    if (position == NULL)
        return AddHead(newElement);
    return Link(NewNode(newElement), Node(position)->pPrev, Node(position));
}

template <class TYPE, class ARG_TYPE>
POSITION OrvList<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement) {
    if (position == NULL)
        return AddTail(newElement);
    return Link(NewNode(newElement), Node(position), Node(position)->pNext);
}

template <class TYPE, class ARG_TYPE>
POSITION OrvList<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const {
    CNode* pNode = startAfter != NULL ? Node(startAfter)->pNext : m_pNodeHead;
    while (pNode != NULL && !(pNode->data == searchValue))
        pNode = pNode->pNext;
    return pNode;
}

template <class TYPE, class ARG_TYPE>
POSITION OrvList<TYPE, ARG_TYPE>::FindIndex(INT_PTR nIndex) const {
    if (nIndex < 0 || nIndex >= m_nCount)
        return NULL;
    CNode* pNode = m_pNodeHead;
    while (nIndex-- > 0)
        pNode = pNode->pNext;
    return pNode;
}

// How CArray and CList store their elements: texts as archive strings, plain records as raw bytes. For other
// types the host specialises this; without that they cannot be stored (CNotSupportedException).
template <class TYPE>
void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount) {
    if constexpr (!__is_trivially_copyable(TYPE)) {
        AfxThrowNotSupportedException();
    } else {
        for (INT_PTR i = 0; i < nCount; i++) {
            if (ar.IsStoring())
                ar.Write(&pElements[i], sizeof(TYPE));
            else
                ar.EnsureRead(&pElements[i], sizeof(TYPE));
        }
    }
}

template <>
inline void AFXAPI SerializeElements<CString>(CArchive& ar, CString* pElements, INT_PTR nCount) {
    for (INT_PTR i = 0; i < nCount; i++) {
        if (ar.IsStoring())
            ar << pElements[i];
        else
            ar >> pElements[i];
    }
}

template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public OrvArray<TYPE, ARG_TYPE> {
public:
    using OrvArray<TYPE, ARG_TYPE>::GetAt;
    TYPE& GetAt(INT_PTR nIndex) { return this->ElementAt(nIndex); }

    // A count, then the elements. When loading throws, the array is as before.
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(this->m_nSize);
            SerializeElements<TYPE>(ar, this->m_pData, this->m_nSize);
            return;
        }
        CArray loaded;
        for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; nLeft--) {
            const INT_PTR nIndex = loaded.m_nSize;
            loaded.SetSize(nIndex + 1);
            SerializeElements<TYPE>(ar, loaded.m_pData + nIndex, 1);
        }
        this->Swap(loaded);
    }
};

template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public OrvList<TYPE, ARG_TYPE> {
public:
    explicit CList(INT_PTR nBlockSize = 10) : OrvList<TYPE, ARG_TYPE>(nBlockSize) {}

    // A count, then the elements; loading appends them.
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(this->m_nCount);
            for (POSITION pos = this->m_pNodeHead; pos != NULL;)
                SerializeElements<TYPE>(ar, &this->GetNext(pos), 1);
            return;
        }
        for (DWORD_PTR nLeft = ar.ReadCount(); nLeft > 0; nLeft--) {
            TYPE element{};
            SerializeElements<TYPE>(ar, &element, 1);
            this->AddTail(element);
        }
    }
};
