#pragma once

// A host's own serial class.

#include <afx.h>

#include <functional>
#include <set>

namespace orv::test {

class Parcel : public CObject {
    DECLARE_SERIAL(Parcel)

public:
    Parcel() { all().insert(this); }
    ~Parcel() override { all().erase(this); }
    void Serialize(CArchive& ar) override {
        if (m_onSerialize)
            m_onSerialize();
        if (ar.IsStoring())
            ar << m_nWeight;
        else
            ar >> m_nWeight;
    }

    // That live.
    static std::set<Parcel*>& all() {
        static std::set<Parcel*> parcels;
        return parcels;
    }

    LONG m_nWeight = 0;
    std::function<void()> m_onSerialize; // called first, when there is one
};

} // namespace orv::test
