#pragma once

// The members of COrvNamedSet, for the source file of each catalogue, and looking rows up.

#include "NamedSet.h"
#include "OwnedRows.h"

namespace orv {

// The first row that fits, null when none does.
template <class Row, class Fits>
Row* firstRow(const CDynamicPtrArray<Row>& rows, Fits fits) {
    for (int i = 0; i < rows.GetSize(); ++i)
        if (fits(*rows[i]))
            return rows[i];
    return NULL;
}

template <class Row>
Row* firstRowNamed(const CDynamicPtrArray<Row>& rows, const CString& strName) {
    return firstRow(rows, [&](const Row& row) { return row.strName.Compare(strName) == 0; });
}

} // namespace orv

template <class Row, class Value>
COrvNamedSet<Row, Value>::COrvNamedSet() = default;

template <class Row, class Value>
COrvNamedSet<Row, Value>::~COrvNamedSet() = default;

template <class Row, class Value>
int COrvNamedSet<Row, Value>::AddItem(CString strName, Value value) {
    orv::addNew<Row>(m_rows, strName, value);
    return 1;
}

template <class Row, class Value>
int COrvNamedSet<Row, Value>::AddItem(Row* pRow) {
    if (!pRow)
        return 0;
    orv::addNew<Row>(m_rows, *pRow);
    return 1;
}

template <class Row, class Value>
int COrvNamedSet<Row, Value>::AddItem(const COrvNamedSet& other) {
    return AddItem(other.m_rows);
}

template <class Row, class Value>
int COrvNamedSet<Row, Value>::AddItem(const CDynamicPtrArray<Row>& rows) {
    // A width that is not a number equals no row, not even itself: only the rows that were there are walked.
    const auto nRows = &rows == &m_rows ? 0 : rows.GetSize();
    for (int i = 0; i < nRows; ++i)
        if (FindItem(rows[i]) < 0)
            AddItem(rows[i]);
    return 1;
}

template <class Row, class Value>
LONG COrvNamedSet<Row, Value>::GetSize() const {
    return m_rows.GetSize();
}

template <class Row, class Value>
Row* COrvNamedSet<Row, Value>::GetElement(int i) const {
    return m_rows[i];
}

template <class Row, class Value>
void COrvNamedSet<Row, Value>::Dump(CDumpContext& dc) const {
    for (int i = 0; i < m_rows.GetSize(); ++i)
        m_rows[i]->Dump(dc);
}

template <class Row, class Value>
int COrvNamedSet<Row, Value>::FindItem(const Row* pRow) const {
    for (int i = 0; pRow && i < m_rows.GetSize(); ++i)
        if (*m_rows[i] == *pRow)
            return i;
    return -1;
}
