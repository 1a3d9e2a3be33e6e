#pragma once

// Objects to bytes and back.

#include <afx.h>

#include <stdio.h>
#include <string>

namespace orv::test {

template <class T>
std::string store(T& object) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    object.Serialize(ar);
    ar.Close();
    const UINT size = static_cast<UINT>(file.GetLength());
    BYTE* bytes = file.Detach();
    std::string stored(reinterpret_cast<char*>(bytes), size);
    free(bytes);
    return stored;
}

// The cause of the archive exception, 0 without one.
template <class T>
int load(T& object, std::string bytes) {
    CMemFile file(reinterpret_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    try {
        object.Serialize(ar);
    } catch (CArchiveException* e) {
        const int cause = e->m_cause;
        e->Delete();
        ar.Abort();
        return cause;
    }
    return CArchiveException::none;
}

inline std::string bytesOf(const char* hex) {
    std::string bytes;
    unsigned byte;
    int used;
    for (; sscanf(hex, " %2x%n", &byte, &used) == 1; hex += used)
        bytes += static_cast<char>(byte);
    return bytes;
}

inline std::string hexOf(const std::string& bytes) {
    std::string hex;
    char text[4];
    for (unsigned char byte : bytes) {
        snprintf(text, sizeof(text), "%02X ", byte);
        hex += text;
    }
    return hex;
}

inline std::string int32(unsigned value) {
    std::string bytes;
    for (int i = 0; i < 4; ++i)
        bytes += static_cast<char>(value >> (8 * i));
    return bytes;
}

} // namespace orv::test
