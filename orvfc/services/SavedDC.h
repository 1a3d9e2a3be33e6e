#pragma once

#include <afxwin.h>

namespace orv {

// Gives a device context back as it was: attributes, selected objects, path. It must end before objects that
// were selected meanwhile are deleted.
class SavedDC {
public:
    explicit SavedDC(CDC* pDC) : m_pDC(pDC), m_nSaved(pDC->SaveDC()) {}
    ~SavedDC() {
        if (m_nSaved != 0)
            m_pDC->RestoreDC(-1); // the number would be another one in an attribute context with saved states
    }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    CDC* m_pDC;
    int m_nSaved;
};

} // namespace orv
