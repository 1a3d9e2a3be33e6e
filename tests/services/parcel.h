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
    void Serialize(CArchive& ar) override;

    static std::set<Parcel*>& all(); // that live

    LONG m_nWeight = 0;
    std::function<void()> m_onSerialize; // called first, when there is one
};

} // namespace orv::test
