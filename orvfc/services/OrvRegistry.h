#pragma once

#include "OrvRegStore.h"

// Settings of a host in the registry of the machine: an older twin of COrvRegister, whose values are in use.
// New hosts take COrvRegister.
class ORVFC_API COrvRegistry : public COrvRegStore {
public:
    // HKEY_LOCAL_MACHINE, whatever the first argument says. Deliberately so.
    COrvRegistry(int bLocalMachine, int bReadOnly);

    // Opens a key below m_hKey. When that fails and bCreate is not 0, CreateKey goes on with what the system
    // has left in m_hKey, which is 0: a key that is not there is then not made. Deliberately so.
    BOOL Open(const char* lpszPath, int bCreate);

    using COrvRegStore::Write;
    // A text value as long as the text with its closing zero, which holds the bytes of the pointer and zeros,
    // not the text. Deliberately so.
    BOOL Write(const char* lpszName, const char* lpszText);
};
