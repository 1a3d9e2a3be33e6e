#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace gallery {

// Says on the error stream how far a long task is. Quiet for the first second, so that quick tasks say
// nothing; then at most twice a second, over the same line on a terminal and as lines of their own elsewhere.
class Progress {
public:
    Progress();
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // Cheap enough for every figure. all: 0 when the end is not known.
    void show(const char* what, const std::string& name, size_t done, size_t all);

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point m_next;
    bool m_terminal;
    bool m_shown = false;
};

} // namespace gallery
