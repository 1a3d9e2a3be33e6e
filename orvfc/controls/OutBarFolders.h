#pragma once

// What the outlook bar holds: folders in display order, each with its items.

#include <afxwin.h>
#include <afxcmn.h>

#include <memory>
#include <vector>

namespace orv {

struct OutBarItem {
    CString text;
    int image = -1; // negative: no icon
    DWORD_PTR data = 0;

    // The label's sizes as last measured; negative widths: not yet.
    mutable CSize smallLabel{-1, 0};
    mutable CSize largeLabel{-1, 0};
    mutable int largeWidth = -1; // the width that largeLabel was broken into

    void setText(const char* newText) {
        text = newText;
        smallLabel.cx = largeLabel.cx = -1;
    }
};

struct OutBarFolder {
    CString name;
    DWORD_PTR data = 0;
    HWND child = NULL;          // the host's; NULL: a folder of items
    bool holdsChild = false;    // stays when the child's owner has destroyed it
    CImageList* images[2] = {}; // large, small; the host's
    std::vector<std::unique_ptr<OutBarItem>> items;

    int count() const { return static_cast<int>(items.size()); }
};

struct OutBarFolders {
    std::vector<std::unique_ptr<OutBarFolder>> rows;
    CImageList* images[2] = {}; // for folders that are added

    int count() const { return static_cast<int>(rows.size()); }
    // NULL when there is no such one.
    OutBarFolder* folder(int index) const {
        return index >= 0 && index < count() ? rows[static_cast<size_t>(index)].get() : NULL;
    }
    OutBarItem* item(int folderIndex, int index) const {
        const OutBarFolder* owner = folder(folderIndex);
        return owner && index >= 0 && index < owner->count() ? owner->items[static_cast<size_t>(index)].get()
                                                             : NULL;
    }
};

} // namespace orv
