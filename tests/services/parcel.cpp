#include "parcel.h"

namespace orv::test {

IMPLEMENT_SERIAL(Parcel, CObject, 3)
IMPLEMENT_SERIAL(Crate, Parcel, 3)

std::set<Parcel*>& Parcel::all() {
    static std::set<Parcel*> parcels;
    return parcels;
}

void Parcel::Serialize(CArchive& ar) {
    if (m_onSerialize)
        m_onSerialize();
    if (ar.IsStoring())
        ar << m_nWeight;
    else
        ar >> m_nWeight;
}

// The weight comes last, so that a stream can end with the content read.
void Crate::Serialize(CArchive& ar) {
    if (ar.IsStoring())
        ar << m_pContent;
    else
        ar >> m_pContent;
    Parcel::Serialize(ar);
}

} // namespace orv::test
