// Folders and items of the outlook bar.

#include "GfxOutBarCtrl.h"

#include "OutBarFolders.h"

#include <algorithm>

using orv::OutBarFolder;
using orv::OutBarItem;

namespace {

const char* textOf(const char* text) {
    return text ? text : "";
}

bool isList(int which) {
    return which == 0 || which == 1;
}

} // namespace

OutBarFolder* CGfxOutBarCtrl::OpenFolder() const {
    return m_pFolders->folder(m_nSelFolder);
}

OutBarItem* CGfxOutBarCtrl::ItemAt(int nItem) const {
    return m_pFolders->item(m_nSelFolder, nItem);
}

// A rename ends before what it stands on changes, a drag when rows come or go.
void CGfxOutBarCtrl::BeforeChange(bool bRows) {
    EndRename(true);
    if (bRows && m_bTracking)
        LetGo();
}

// --- folders

int CGfxOutBarCtrl::AddRow(const OUTBAR_INFO& info, bool bChild) {
    BeforeChange(true);
    auto folder = std::make_unique<OutBarFolder>();
    folder->name = info.strText;
    folder->data = info.dwData;
    folder->holdsChild = bChild;
    folder->child = info.pChild ? info.pChild->m_hWnd : NULL;
    std::copy(std::begin(m_pFolders->images), std::end(m_pFolders->images), folder->images);
    m_pFolders->rows.push_back(std::move(folder));
    const int nFolder = GetFolderCount() - 1;
    AdoptChild(nFolder);
    if (m_nSelFolder < 0)
        OpenRow(nFolder);
    else
        LayoutChanged();
    return nFolder;
}

int CGfxOutBarCtrl::AddFolder(const char* name, DWORD_PTR data) {
    OUTBAR_INFO info;
    info.strText = textOf(name);
    info.dwData = data;
    return AddRow(info, false);
}

int CGfxOutBarCtrl::AddFolderBar(const char* name, CWnd* child, DWORD_PTR data) {
    OUTBAR_INFO info;
    info.strText = textOf(name);
    info.dwData = data;
    info.pChild = child;
    return AddRow(info, true);
}

int CGfxOutBarCtrl::AddFolder(const OUTBAR_INFO& info) {
    return AddRow(info, info.pChild != NULL);
}

bool CGfxOutBarCtrl::RemoveFolder(int folder) {
    if (!m_pFolders->folder(folder))
        return false;
    BeforeChange(true);
    if (folder == m_nSelFolder)
        LeaveChild();
    if (!m_pFolders->folder(folder)) // both may have called the host
        return false;
    if (HWND hChild = ChildOf(folder))
        ::ShowWindow(hChild, SW_HIDE);
    m_pFolders->rows.erase(m_pFolders->rows.begin() + folder);
    m_nLastFolderHighlighted = -1;
    if (folder == m_nSelFolder) {
        OpenRow(std::min(folder, GetFolderCount() - 1));
    } else {
        if (folder < m_nSelFolder)
            --m_nSelFolder;
        m_nCurrentFolder = m_nSelFolder;
        LayoutChanged();
    }
    return true;
}

void CGfxOutBarCtrl::RemoveAllFolder() {
    BeforeChange(true);
    LeaveChild();
    for (int i = 0; i < GetFolderCount(); ++i)
        if (HWND hChild = ChildOf(i))
            ::ShowWindow(hChild, SW_HIDE);
    m_pFolders->rows.clear();
    m_nLastFolderHighlighted = -1;
    OpenRow(-1);
}

int CGfxOutBarCtrl::GetFolderCount() const {
    return m_pFolders->count();
}

// Opens without a look back: from its first item on, nothing clicked.
void CGfxOutBarCtrl::OpenRow(int nFolder) {
    m_nSelFolder = m_nCurrentFolder = nFolder;
    m_nFirstItem = 0;
    m_nSelItem = m_nCurrentItem = m_nItemPressed = m_nLastItemHighlighted = -1;
    SetDragMark(-1);
    LayoutChanged();
}

bool CGfxOutBarCtrl::SetSelFolder(int folder) {
    if (!m_pFolders->folder(folder))
        return false;
    if (folder == m_nSelFolder)
        return true;
    BeforeChange(false);
    LeaveChild();
    if (!m_pFolders->folder(folder))
        return false;
    if ((m_dwFlags & OUTBAR_ANIMATE) && m_hWnd && ::IsWindowVisible(m_hWnd))
        AnimateFolderScroll(m_nSelFolder, folder);
    else
        OpenRow(folder);
    return true;
}

bool CGfxOutBarCtrl::SetFolderText(int folder, const char* text) {
    BeforeChange(false);
    OutBarFolder* row = m_pFolders->folder(folder);
    if (!row)
        return false;
    row->name = textOf(text);
    if (m_hWnd)
        Invalidate(FALSE);
    return true;
}

int CGfxOutBarCtrl::GetFolderText(const char* name) const {
    for (int i = 0; i < GetFolderCount(); ++i)
        if (m_pFolders->folder(i)->name == textOf(name))
            return i;
    return -1;
}

CString CGfxOutBarCtrl::GetFolderName(int folder) const {
    const OutBarFolder* row = m_pFolders->folder(folder);
    return row ? row->name : CString();
}

DWORD_PTR CGfxOutBarCtrl::GetFolderData(int folder) const {
    const OutBarFolder* row = m_pFolders->folder(folder);
    return row ? row->data : 0;
}

// --- image lists

bool CGfxOutBarCtrl::SetFolderImageList(int folder, CImageList* pImageList, int which) {
    OutBarFolder* row = m_pFolders->folder(folder);
    if (!row || !isList(which))
        return false;
    row->images[which] = pImageList;
    LayoutChanged();
    return true;
}

CImageList* CGfxOutBarCtrl::GetFolderImageList(int folder, bool bSmall) const {
    const OutBarFolder* row = m_pFolders->folder(folder);
    return row ? row->images[bSmall] : NULL;
}

bool CGfxOutBarCtrl::SetImageList(CImageList* pImageList, int which) {
    if (!isList(which))
        return false;
    m_pFolders->images[which] = pImageList;
    for (const auto& row : m_pFolders->rows)
        row->images[which] = pImageList;
    LayoutChanged();
    return true;
}

CImageList* CGfxOutBarCtrl::GetImageList(CImageList* pImageList, int which) const {
    if (!isList(which) || m_pFolders->rows.empty())
        return pImageList;
    CImageList* shared = m_pFolders->rows.front()->images[which];
    const bool bAll = std::all_of(m_pFolders->rows.begin(), m_pFolders->rows.end(),
                                  [&](const auto& row) { return row->images[which] == shared; });
    return bAll ? shared : pImageList;
}

// --- items

int CGfxOutBarCtrl::InsertItem(int folder, int index, const char* text, int image, DWORD_PTR data) {
    OUTBAR_INFO info;
    info.strText = textOf(text);
    info.nImage = image;
    info.dwData = data;
    return InsertItem(folder, index, info);
}

int CGfxOutBarCtrl::InsertItem(int folder, int index, const OUTBAR_INFO& info) {
    BeforeChange(true);
    OutBarFolder* row = m_pFolders->folder(folder);
    if (!row || row->holdsChild)
        return -1;
    if (index < 0 || index > row->count())
        index = row->count();
    auto item = std::make_unique<OutBarItem>();
    item->text = info.strText;
    item->image = info.nImage;
    item->data = info.dwData;
    row->items.insert(row->items.begin() + index, std::move(item));
    if (folder == m_nSelFolder) {
        // What is selected and what is seen stay.
        for (int* pIndex : {&m_nSelItem, &m_nCurrentItem, &m_nFirstItem})
            if (index < *pIndex || (index == *pIndex && pIndex != &m_nFirstItem))
                ++*pIndex;
        m_nLastItemHighlighted = -1;
        LayoutChanged();
    }
    return index;
}

bool CGfxOutBarCtrl::RemoveItem(int item) {
    if (!ItemAt(item))
        return false;
    BeforeChange(true);
    OutBarFolder* row = OpenFolder();
    if (!ItemAt(item))
        return false;
    row->items.erase(row->items.begin() + item);
    if (m_nSelItem == item)
        m_nSelItem = -1;
    for (int* pIndex : {&m_nSelItem, &m_nFirstItem})
        if (item < *pIndex)
            --*pIndex;
    // The keyboard goes on with the next item, or the one before, or the header.
    if (m_nCurrentItem > item || m_nCurrentItem >= row->count())
        --m_nCurrentItem;
    m_nLastItemHighlighted = m_nItemPressed = -1;
    LayoutChanged();
    return true;
}

int CGfxOutBarCtrl::GetItemCount() const {
    const OutBarFolder* row = OpenFolder();
    return row ? row->count() : 0;
}

int CGfxOutBarCtrl::GetItemCount(int folder) const {
    const OutBarFolder* row = m_pFolders->folder(folder);
    return row ? row->count() : 0;
}

bool CGfxOutBarCtrl::GetItemInfo(int folder, int item, OUTBAR_INFO& info) const {
    const OutBarItem* row = m_pFolders->item(folder, item);
    if (!row)
        return false;
    info.strText = row->text;
    info.nImage = row->image;
    info.dwData = row->data;
    info.pChild = NULL;
    return true;
}

bool CGfxOutBarCtrl::IsValidItem(int item) const {
    return ItemAt(item) != NULL;
}

CString CGfxOutBarCtrl::GetItemText(int item) const {
    const OutBarItem* row = ItemAt(item);
    return row ? row->text : CString();
}

bool CGfxOutBarCtrl::SetItemText(int item, const char* text) {
    BeforeChange(false);
    OutBarItem* row = ItemAt(item);
    if (!row)
        return false;
    row->setText(textOf(text));
    LayoutChanged();
    return true;
}

DWORD_PTR CGfxOutBarCtrl::GetItemData(int item) const {
    const OutBarItem* row = ItemAt(item);
    return row ? row->data : 0;
}

bool CGfxOutBarCtrl::SetItemData(int item, DWORD_PTR data) {
    OutBarItem* row = ItemAt(item);
    if (row)
        row->data = data;
    return row != NULL;
}

int CGfxOutBarCtrl::GetItemImage(int item) const {
    const OutBarItem* row = ItemAt(item);
    return row ? row->image : -1;
}

bool CGfxOutBarCtrl::SetItemImage(int item, int image) {
    OutBarItem* row = ItemAt(item);
    if (!row)
        return false;
    row->image = image;
    LayoutChanged();
    return true;
}

DWORD_PTR CGfxOutBarCtrl::GetCurrentItemData() const {
    return GetItemData(m_nSelItem);
}
