#pragma once

#include <afx.h>
#include <orvfc/OrvApi.h>

#include "DynamicArray.h"

// What the catalogues of named values have in common: rows that the set owns, in the order in which they
// came. A row has a strName, a constructor from name and value, compares with ==, and has a Dump.
template <class Row, class Value>
class ORVFC_API COrvNamedSet {
public:
    COrvNamedSet();
    virtual ~COrvNamedSet();
    COrvNamedSet(const COrvNamedSet&) = delete;
    COrvNamedSet& operator=(const COrvNamedSet&) = delete;

    // Append a row, or a copy of one, and return 1; the same row may be there twice. Null gives 0.
    int AddItem(CString strName, Value value);
    int AddItem(Row* pRow);
    // Append copies of the rows that are not there yet, and return 1. A set merged into itself stays as it
    // is.
    int AddItem(const COrvNamedSet& other);
    int AddItem(const CDynamicPtrArray<Row>& rows);

    LONG GetSize() const;
    // The row, owned by the set. Out of range: assertion, null.
    Row* GetElement(int i) const;

    void Dump(CDumpContext& dc) const;

protected:
    CDynamicPtrArray<Row> m_rows;

private:
    int FindItem(const Row* pRow) const;
};
