#pragma once

// Catches what the code under test says to a debugger: trace lines and failed assertions.

#include <string>
#include <vector>

namespace orv::test {

// While one exists, OutputDebugString lines of every thread are kept, and failed assertions are counted and
// passed over, as a developer does who presses "ignore".
class DebugEvents {
public:
    DebugEvents();
    ~DebugEvents();
    DebugEvents(const DebugEvents&) = delete;
    DebugEvents& operator=(const DebugEvents&) = delete;

    std::vector<std::string> traces() const;
    // All lines behind one another.
    std::string text() const;
    int assertions() const;

private:
    void* handler_;
};

} // namespace orv::test
