#pragma once

// One list of fields for both directions of an archive.

#include <afx.h>

namespace orv {

template <class... Field>
void archiveFields(CArchive& ar, Field&... field) {
    if (ar.IsStoring())
        (ar << ... << field);
    else
        (ar >> ... >> field);
}

// Stores the record, or loads it aside first: a load that throws leaves the record as it was.
// fields(record, ar) names the fields.
template <class Record, class Fields>
void archiveWhole(Record& record, CArchive& ar, Fields fields) {
    if (ar.IsStoring()) {
        fields(record, ar);
        return;
    }
    Record aside(record);
    fields(aside, ar);
    record = aside;
}

} // namespace orv
