#include "parcel.h"

namespace orv::test {

IMPLEMENT_SERIAL(Parcel, CObject, 3)

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

} // namespace orv::test
