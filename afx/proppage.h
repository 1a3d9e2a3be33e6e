#pragma once

// What a property sheet needs of its pages. Internal to orvafx.dll.

#include "afxdlgs.h"

#include <string>

struct OrvPageAccess {
    // What the system's sheet takes; NULL when the page has no template.
    static HPROPSHEETPAGE handle(CPropertyPage& page);
};

namespace orvafx {

// Code page text for the system's wide records.
std::wstring wide(LPCSTR text);

} // namespace orvafx
