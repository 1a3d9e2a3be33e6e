#pragma once

// Whole numbers as archives hold them.

#include "afx/afx_test.h"

namespace orv::test {

inline std::string int32(unsigned value) {
    return {reinterpret_cast<const char*>(&value), 4};
}

} // namespace orv::test
