#pragma once

// What the tests of the value half share.

#include <afx.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdio.h>
#include <string>

#if defined(_WIN32)
#include "support/debug_events.h"
#else
#include <signal.h>
#endif

namespace orv::test {

// The bytes of a text, zero bytes included, as gtest can print them.
inline std::string bytesOf(const CString& str) {
    return std::string(str.GetString(), (size_t)str.GetLength());
}

// "01 FF41" as bytes.
template <class BYTES = std::string>
BYTES fromHex(const std::string& hex) {
    BYTES bytes;
    for (size_t at = 0; (at = hex.find_first_not_of(' ', at)) != std::string::npos; at += 2)
        bytes.push_back(static_cast<typename BYTES::value_type>(std::stoi(hex.substr(at, 2), nullptr, 16)));
    return bytes;
}

template <class BYTES>
std::string toHex(const BYTES& bytes) {
    std::string hex;
    for (const auto b : bytes) {
        char digits[4];
        snprintf(digits, sizeof(digits), hex.empty() ? "%02X" : " %02X", static_cast<BYTE>(b));
        hex += digits;
    }
    return hex;
}

// A whole number as archives hold it.
inline std::string int32(unsigned value) {
    return {reinterpret_cast<const char*>(&value), 4};
}

// Failed assertions are counted and passed over while one of these exists.
class PassedAssertions {
public:
#if defined(_WIN32)
    int count() const {
        return m_events.assertions();
    }

private:
    DebugEvents m_events;
#else
    PassedAssertions() : m_old(signal(SIGTRAP, [](int) { s_count = s_count + 1; })) {
        s_count = 0;
    }
    ~PassedAssertions() {
        signal(SIGTRAP, m_old);
    }
    PassedAssertions(const PassedAssertions&) = delete;
    PassedAssertions& operator=(const PassedAssertions&) = delete;
    int count() const {
        return s_count;
    }

private:
    inline static volatile sig_atomic_t s_count = 0;
    void (*m_old)(int);
#endif
};

// Whether f throws an EXCEPTION, which is deleted.
template <class EXCEPTION>
bool throws(const std::function<void()>& f) {
    try {
        f();
    } catch (EXCEPTION* e) {
        e->Delete();
        return true;
    }
    return false;
}

// The cause of the EXCEPTION that f throws, which is deleted, or none.
template <class EXCEPTION>
int causeOf(const std::function<void()>& f) {
    try {
        f();
    } catch (EXCEPTION* e) {
        const int nCause = e->m_cause;
        e->Delete();
        return nCause;
    }
    return EXCEPTION::none;
}

// A memory file that hands out no direct buffer: archives over it copy, as they do over files on disk.
class CopiedMemFile : public CMemFile {
public:
    using CMemFile::CMemFile;
    UINT GetBufferPtr(UINT nCommand, UINT nCount, void** ppStart, void** ppMax) override {
        return nCommand == bufferCheck ? 0 : CMemFile::GetBufferPtr(nCommand, nCount, ppStart, ppMax);
    }
};

template <class FILE = CMemFile>
std::string contentsOf(FILE& file) {
    std::string bytes((size_t)file.GetLength(), '\0');
    file.SeekToBegin();
    file.Read(bytes.data(), (UINT)bytes.size());
    return bytes;
}

// What the object tells about itself.
template <class OBJECT>
std::string dumped(const OBJECT& object) {
    CMemFile file;
    CDumpContext dc(&file);
    object.Dump(dc);
    dc.Flush();
    return contentsOf(file);
}

// What store writes into an archive.
template <class FILE = CMemFile>
std::string stored(const std::function<void(CArchive&)>& store, int nBufSize = 4096) {
    FILE file;
    CArchive ar(&file, CArchive::store, nBufSize);
    store(ar);
    ar.Close();
    return contentsOf(file);
}

// Lets load read from the bytes. The cause of the archive exception that ends it, or none.
template <class FILE = CMemFile>
int loaded(const std::string& bytes, const std::function<void(CArchive&)>& load, int nBufSize = 4096) {
    FILE file;
    file.Write(bytes.data(), (UINT)bytes.size());
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load, nBufSize);
    return causeOf<CArchiveException>([&] { load(ar); });
}

// What the object writes of itself, and the object read from that.
template <class OBJECT>
std::string serialized(OBJECT& object) {
    return stored([&](CArchive& ar) { object.Serialize(ar); });
}

template <class OBJECT>
int deserialized(OBJECT& object, const std::string& bytes) {
    return loaded(bytes, [&](CArchive& ar) { object.Serialize(ar); });
}

} // namespace orv::test
