#include "debug_events.h"

#include <windows.h>

#include <mutex>

namespace orv::test {

namespace {

constexpr DWORD debugPrint = 0x40010006; // raised by OutputDebugStringA: length and pointer of the text

std::mutex eventsLock;
std::vector<std::string> traceLines;
int failedAssertions;

LONG CALLBACK onException(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode == debugPrint && record.NumberParameters >= 2) {
        std::lock_guard guard(eventsLock);
        traceLines.emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    if (record.ExceptionCode == EXCEPTION_BREAKPOINT) {
        std::lock_guard guard(eventsLock);
        ++failedAssertions;
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

DebugEvents::DebugEvents() {
    {
        std::lock_guard guard(eventsLock);
        traceLines.clear();
        failedAssertions = 0;
    }
    handler_ = ::AddVectoredExceptionHandler(1, onException);
}

DebugEvents::~DebugEvents() {
    ::RemoveVectoredExceptionHandler(handler_);
}

std::vector<std::string> DebugEvents::traces() const {
    std::lock_guard guard(eventsLock);
    return traceLines;
}

std::string DebugEvents::text() const {
    std::string all;
    for (const std::string& line : traces())
        all += line;
    return all;
}

int DebugEvents::assertions() const {
    std::lock_guard guard(eventsLock);
    return failedAssertions;
}

} // namespace orv::test
