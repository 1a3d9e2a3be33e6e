#pragma once

#include "OrvRegStore.h"

// Settings of a host in the registry, of the machine or of the user.
class ORVFC_API COrvRegister : public COrvRegStore {
public:
    COrvRegister(); // HKEY_LOCAL_MACHINE, writable
    // HKEY_LOCAL_MACHINE (bLocalMachine not 0) or HKEY_CURRENT_USER.
    COrvRegister(int bLocalMachine, int bReadOnly);

    // Opens a key below m_hKey (HKEY_CURRENT_USER when that is 0). One that is not there is made when bCreate
    // is not 0; without bCreate the failed opening leaves m_hKey as the system does, which is 0.
    BOOL Open(const char* lpszPath, int bCreate);

    using COrvRegStore::Write;
    BOOL Write(const char* lpszName, const char* lpszText);
};
