#pragma once

// A host's own serial class.

#include <afx.h>

#include <functional>

namespace orv::test {

class Parcel : public CObject {
    DECLARE_SERIAL(Parcel)

public:
    Parcel() { ++live(); }
    ~Parcel() override { --live(); }
    void Serialize(CArchive& ar) override;

    static int& live(); // how many there are

    LONG m_nWeight = 0;
    std::function<void()> m_onSerialize; // called first, when there is one
};

} // namespace orv::test
