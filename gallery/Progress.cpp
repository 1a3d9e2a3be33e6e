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
    const std::string share = all > 0 ? ": " + std::to_string(100 * done / all) + "%" : std::string();
    std::fprintf(stderr, m_terminal ? "\r%s %s%s   " : "%s %s%s\n", what, name.c_str(), share.c_str());
    std::fflush(stderr);
    m_next = now + std::chrono::milliseconds(500);
    m_shown = true;
}

} // namespace gallery
