#include "Progress.h"

#include <cstdio>
#include <io.h>

namespace gallery {

Progress::Progress()
    : m_next(Clock::now() + std::chrono::seconds(1)), m_terminal(_isatty(_fileno(stderr)) != 0) {}

Progress::~Progress() {
    if (m_shown && m_terminal) {
        std::fputs("\n", stderr);
    }
}

void Progress::show(const char* what, const std::string& name, size_t done, size_t all) {
    const Clock::time_point now = Clock::now();
    if (now < m_next) {
        return;
    }
    const unsigned percent = all > 0 ? unsigned(100.0 * double(done) / double(all)) : 100;
    std::fprintf(stderr, m_terminal ? "\r%s %s: %u%%   " : "%s %s: %u%%\n", what, name.c_str(), percent);
    std::fflush(stderr);
    m_next = now + std::chrono::milliseconds(500);
    m_shown = true;
}

} // namespace gallery
