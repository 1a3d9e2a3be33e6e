#pragma once

// The outlook bar: a stack of folders, one of them open.

#include <afxwin.h>
#include <afxcmn.h>
#include <orvfc/OrvApi.h>

class CGfxGroupEdit;

namespace orv {
struct OutBarFolder;
struct OutBarFolders;
struct OutBarItem;
class OutBarLayout;
enum class OutBarHit;
} // namespace orv

// Behaviour of the bar. The 0x004 to 0x080 bits say what its user may do; the members below work without
// them.
#define OUTBAR_SMALL_ICONS 0x001    // small icons with labels beside them; clear: large ones, labels below
#define OUTBAR_DRAG_ITEMS 0x004     // drag items to other places and folders
#define OUTBAR_RENAME_FOLDERS 0x008 // F2 on a header
#define OUTBAR_RENAME_ITEMS 0x010   // F2 on an item
#define OUTBAR_REMOVE_FOLDERS 0x020 // Delete on a header
#define OUTBAR_REMOVE_ITEMS 0x040   // Delete on an item
#define OUTBAR_ADD_ENTRIES 0x080    // Insert: a new item or folder
#define OUTBAR_ANIMATE 0x100        // folders slide when another one opens
#define OUTBAR_HILIGHT_ITEM 0x200   // a frame around the item under the mouse
#define OUTBAR_DEFAULT_FLAGS 0x3FC

// From CGfxGroupEdit to the bar, see there.
#define WM_GFX_END_LABEL_EDIT (WM_USER + 0x3E1)

// One entry, folder or item, as it is handed in.
struct ORVFC_API OUTBAR_INFO {
    CString strText;
    int nImage = -1;      // negative: no icon. Items only
    DWORD_PTR dwData = 0; // the host's
    CWnd* pChild = NULL;  // folders only: the window that the folder shows in place of items

    void Dump(CDumpContext& dc) const;
};

// Folder headers stacked from the top and, behind the open folder, from the bottom; between them the open
// folder's items, or its child window. Headers open their folder. A click on an item, or Enter, selects it
// and sends WM_GFX_OUTBAR_LBUTTON_DOWN (ORVFC.h) with zero parameters to the notified window, which asks
// GetCurrentItemData. Items that do not fit are reached by two arrows, the wheel and the keyboard.
//
// Mouse: a press on an arrow scrolls by one item, and again as long as it is held; a notch of the wheel
// scrolls by one item. A dragged item shows a mark where it would be dropped. Near the upper and lower edge
// the items scroll; a header under the mouse for half a second opens its folder; a drop on a header appends
// to its folder. Esc, the right button, removing or inserting rows, renaming and disabling meanwhile end the
// drag without a drop. A drop sends no message. A disabled bar takes neither presses nor hovers.
//
// Keyboard (the bar is a tab stop): up and down walk headers and items as they stand, Home, End and the page
// keys go further, Enter opens a folder (open already, its child window gets the focus) or clicks an item,
// once however long it is held, F2 renames, Delete removes, Insert adds an item to the open folder, behind
// the current one, Ctrl+Insert a folder; their names are then typed. Tab goes from the bar to the open
// folder's child window, if it is a tab stop or has WS_EX_CONTROLPARENT and one in it, and on as the parent's
// dialog has it; Shift+Tab comes back from there to the bar, but from what follows the bar it passes the
// child over. When its folder closes, the bar takes the focus from it.
//
// What child windows of folders tell this window goes on to its parent as it is, and the answer back to them:
// WM_COMMAND, WM_NOTIFY, owner-draw, WM_CTLCOLOR... and scroll bar messages, and those of the library's
// pickers. Give them identifiers that the parent's other controls do not have. Handlers of a derived class
// come first and keep what they handle. The child's own object hears by reflection, once: from the parent if
// that is a CWnd, but from here if a derived class has a handler. The parent may destroy the bar meanwhile.
//
// Context menu (right button, menu key): the notified window, or else the parent, gets WM_CONTEXTMENU with
// this window and a screen position which HitTestEx recognises; an item under it has been selected before,
// without a click message. Position (-1, -1): nothing is current.
//
// Indexes count from 0; items are those of the open folder unless a folder is given. An index that does not
// exist changes nothing and gives false, -1, 0, NULL or an empty text. Rectangles are in client pixels. Where
// a BOOL or bool is returned, it says whether it was done.
class ORVFC_API CGfxOutBarCtrl : public CWnd {
    DECLARE_DYNCREATE(CGfxOutBarCtrl)

public:
    CGfxOutBarCtrl();
    ~CGfxOutBarCtrl() override;
    CGfxOutBarCtrl(const CGfxOutBarCtrl&) = delete;
    CGfxOutBarCtrl& operator=(const CGfxOutBarCtrl&) = delete;

    // --- appearance: may be changed at any time, Invalidate shows it; after sizes call LayoutChanged.
    // Colours that were left alone follow the system's when these change; header texts, and the text in the
    // rename field, always have the system's. A disabled bar's texts are grey or half in m_crBackground, and
    // so are its icons.
    COLORREF m_crBackground;  // item area, at its top
    COLORREF m_crBackground2; // item area, at its bottom: shaded when it is another colour
    COLORREF m_crWindow;      // label texts of items, the drop mark
    COLORREF m_crWindow2;     // paper of the rename field
    COLORREF m_cr3dFace;      // header face
    COLORREF m_cr3dLight;     // header edge, inner light
    COLORREF m_crHilight;     // header and item highlight edge
    COLORREF m_crShadow;      // header and item shadow edge
    COLORREF m_crDkShadow;    // outer shadow edge
    // Pixels. They do not grow with the system's font: labels are measured, headers and margins are the
    // host's.
    int m_nFolderHeight = 22;
    int m_xSmallIconLabelOffset = 4;
    int m_yLargeIconLabelOffset = 3;
    int m_ySmallIconSpacing = 10;
    int m_yLargeIconSpacing = 8; // counts in an item's height and once more between items
    int m_xLeftMargin = 5;
    int m_yTopMargin = 5;

    // --- state: to be read
    bool m_bUpArrow = false; // arrows are not shown where there is no room for both
    bool m_bDownArrow = false;
    bool m_bUpPressed = false;
    bool m_bDownPressed = false;
    CRect m_rcUpArrow; // empty while the arrow is not shown
    CRect m_rcDownArrow;
    LONG m_nAnimationTickCount = 10;
    DWORD m_dwFlags = OUTBAR_DEFAULT_FLAGS;
    int m_nSelFolder = -1;
    int m_nFirstItem = 0;
    int m_nLastFolderHighlighted = -1;
    int m_nLastItemHighlighted = -1;
    int m_nLastDragItemDraw = -1;     // the drop mark stands before this item; -1: there is none
    int m_nLastDragItemDrawType = -1; // 0 it is the first place, 1 between two items, 2 behind the last one
    int m_nSelItem = -1;              // last clicked; -1 again when another folder opens
    CWnd* m_pNotifyWnd = NULL;
    HCURSOR m_hHandCursor;   // over folders and items
    HCURSOR m_hDragCursor;   // while an item is dragged
    HCURSOR m_hNoDragCursor; // where it cannot be dropped

    // --- creation and flags
    // WS_TABSTOP and WS_CLIPCHILDREN come with every style.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                DWORD dwFlags = OUTBAR_DEFAULT_FLAGS);
    DWORD GetFlag() const { return m_dwFlags; }
    // redraw 0: Invalidate; else SetWindowPos with redraw and SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER.
    void ModifyFlag(const DWORD& dwRemove, const DWORD& dwAdd, UINT redraw = 0);
    bool IsSmallIconView() const { return (m_dwFlags & OUTBAR_SMALL_ICONS) != 0; }
    void SetSmallIconView(bool bSmall);
    // The frame around the item under the mouse (OUTBAR_HILIGHT_ITEM).
    void SetAnimSelHighlight(bool bHighlight);
    // Milliseconds between two steps of a sliding folder; values outside 0 to 100 count as these.
    LONG GetAnimationTickCount() const { return m_nAnimationTickCount; }
    void SetAnimationTickCount(LONG nTickCount) { m_nAnimationTickCount = nTickCount; }
    // Gets the click message and the context menu (this window itself: only the clicks). It stays the
    // host's, who takes it back (NULL) before the object ends; a window that is gone gets nothing.
    void SetNotifyWnd(CWnd* pNotifyWnd);
    CWnd* GetNotifyWnd() const { return m_pNotifyWnd; }

    // --- folders. The first one that is added opens.
    int AddFolder(const char* name, DWORD_PTR data = 0);
    // child is made a child of this window (WS_CHILD, no WS_POPUP) if it is none; it stays the host's object,
    // is shown while its folder is open and may be destroyed, or taken to another parent, at any time. It
    // goes down with this window. NULL, one without a window yet, or one that holds this window: the folder
    // stays empty.
    int AddFolderBar(const char* name, CWnd* child, DWORD_PTR data = 0);
    int AddFolder(const OUTBAR_INFO& info);
    // When the open one goes, the one behind it opens, or else the one before. A child window is hidden.
    bool RemoveFolder(int folder);
    void RemoveAllFolder();
    int GetFolderCount() const;
    int GetSelFolder() const { return m_nSelFolder; }
    // Shows it from its first item on. True, and nothing changes, when it is open.
    bool SetSelFolder(int folder);
    bool SetFolderText(int folder, const char* text);
    // The first folder of that name, -1 without one.
    int GetFolderText(const char* name) const;
    CString GetFolderName(int folder) const;
    // NULL for a folder of items, and when the window is gone.
    CWnd* GetFolderChild(int folder) const;
    DWORD_PTR GetFolderData(int folder) const;
    // which: 0 large icons, 1 small icons. Lists stay the host's and live as long as they are set. NULL: no
    // icons.
    bool SetFolderImageList(int folder, CImageList* pImageList, int which);
    CImageList* GetFolderImageList(int folder, bool bSmall) const;
    // For all folders, also those added later.
    bool SetImageList(CImageList* pImageList, int which);
    // The list that all folders have; pImageList when there are none or they differ.
    CImageList* GetImageList(CImageList* pImageList, int which) const;

    // --- items
    // index outside 0 to the number of items: behind the last one. Returns the item's index.
    int InsertItem(int folder, int index, const char* text, int image = -1, DWORD_PTR data = 0);
    int InsertItem(int folder, int index, const OUTBAR_INFO& info);
    bool RemoveItem(int item);
    int GetItemCount() const;
    // Of any folder, open or not: what a host stores to set its entries up again. On failure info stays.
    int GetItemCount(int folder) const;
    bool GetItemInfo(int folder, int item, OUTBAR_INFO& info) const;
    bool IsValidItem(int item) const;
    CString GetItemText(int item) const;
    bool SetItemText(int item, const char* text);
    DWORD_PTR GetItemData(int item) const;
    bool SetItemData(int item, DWORD_PTR data);
    int GetItemImage(int item) const; // -1 without an icon
    bool SetItemImage(int item, int image);
    // Of the last clicked item, 0 when none was clicked in this folder since it opened.
    DWORD_PTR GetCurrentItemData() const;
    // Items seen whole.
    int GetCountPerPage() const;
    // Scrolls by so many items, as far as there are some: negative towards the first one.
    void ScrollItems(int nItems);

    // --- geometry
    // The open folder's contents between the headers; the whole client area without folders. Inverted when
    // the headers leave no room.
    void GetInsideRect(CRect& rect) const;
    // Failures of these leave an empty rectangle. A folder that is not open is laid out as if it were shown
    // here from its first item on.
    bool GetFolderRect(int folder, CRect& rect) const;
    bool GetItemRect(int folder, int item, CRect& rect) const;
    bool GetIconRect(int folder, int item, CRect& rect) const;
    bool GetLabelRect(int folder, int item, CRect& rect) const;
    // part: 1 the icon ((0, 0) without one), 2 the label in the default GUI font, 3 the whole item.
    CSize GetItemSize(int folder, int item, int part) const;
    // The last one counts when its rectangle begins in view. 0 and 0 without items, -1 and -1 without folder.
    void GetVisibleRange(int folder, int& first, int& last) const;
    // The drop mark before an item of the open folder; the number of items: behind the last one.
    bool GetDragItemRect(int item, CRect& rect) const;
    // 0 a header (index: the folder), 1 an item (index: the item; its icon or label in the large view, its
    // rectangle in the small one), 2 and 3 the up and down arrow, otherwise -1. index is -1 unless told.
    int HitTestEx(const CPoint& point, int& index) const;
    // After the public sizes changed: works out scrolling and arrows again, and repaints.
    void LayoutChanged();

    // --- renaming in place. Whatever changes texts or the layout ends it before, taking the text. An empty
    // text is not taken. False while the bar is disabled.
    bool StartGroupEdit(int folder);
    bool StartItemEdit(int item);

    BOOL PreTranslateMessage(MSG* pMsg) override;

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // --- painting
    void Paint(CDC& dc, const CRect& rcPart) const;
    void PaintHeader(CDC& dc, int nFolder) const;
    void PaintItems(CDC& dc) const;
    void PaintArrows(CDC& dc) const;
    // The mark with its two arrow heads.
    void DrawDragArrow(CDC& dc, const CRect& rcMark, int nType) const;
    // -1: none.
    void HighlightFolder(int nFolder);
    void HighlightItem(int nItem, bool bPressed);
    // From the open folder to another one, which is open afterwards.
    void AnimateFolderScroll(int nFrom, int nTo);

    // The end of renaming: wParam 0 takes the text, lParam is the field's window.
    afx_msg LRESULT OnEndLabelEdit(WPARAM wParam, LPARAM lParam);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSysColorChange();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    DECLARE_MESSAGE_MAP()

private:
    // A row of the keyboard's walk; item -1 is the folder's header.
    struct Row {
        int folder;
        int item;
    };
    struct Drag;

    orv::OutBarFolder* OpenFolder() const;
    orv::OutBarItem* ItemAt(int nItem) const;
    int AddRow(const OUTBAR_INFO& info, bool bChild);
    void OpenRow(int nFolder);
    void Arrange();
    void ShowChild() const;
    void AdoptChild(int nFolder) const;
    HWND ChildOf(int nFolder) const;
    void LeaveChild();
    HWND TabStop() const;
    void EnterChild();
    void BeforeChange(bool bRows);
    void LetGo() const;
    void TakeSystemColors(bool bAll);
    orv::OutBarLayout LayoutOf(int nFolder) const;
    orv::OutBarHit Hit(const CPoint& point, int& index) const;
    CSize LabelSize(const orv::OutBarItem& item, int nWidth) const;
    CSize IconSize(const orv::OutBarFolder& folder, const orv::OutBarItem& item) const;
    void InvalidateItem(int nItem);

    void PaintBackground(CDC& dc, const CRect& rcInside) const;
    void PaintItem(CDC& dc, int nItem, const CRect& rcIcon, const CRect& rcLabel) const;
    void PaintFrame(CDC& dc, int nItem, const CRect& rcAround) const;
    bool IsCurrent(int nFolder, int nItem) const;

    bool PressArrow(const CPoint& point);
    void ReleaseArrow();
    void RepeatArrow();
    bool IsAlive(HWND hWnd) const;
    void Hover(const CPoint& point);
    void ClearHover();
    void ClickItem(int nItem);
    void SelectItem(int nItem);
    HWND NotifiedWindow() const;

    void TrackItem(int nItem, const CPoint& ptPress);
    bool IsOver(const Drag& drag) const;
    bool TrackMessage(const MSG& msg, Drag& drag);
    void TrackMove(const CPoint& point, Drag& drag);
    void TrackTimer(Drag& drag);
    void ClearDrag();
    void Drop(const Drag& drag);
    void SetDragMark(int nItem);

    Row CurrentRow() const;
    void SetCurrentRow(const Row& row);
    void MarkCurrentRow(bool bMark);
    void ShowItem(int nItem);
    bool Walk(UINT nChar);
    void OpenCurrentRow();
    void RenameCurrentRow();
    void RemoveCurrentRow();
    void AddEntry();
    CPoint MenuPoint();

    bool StartEdit(const CRect& rect, const CString& text, DWORD dwStyle);
    void EndRename(bool bTake);
    HBRUSH RenameColors(CDC& dc);

    COLORREF m_crTaken[9]; // the system's, when they were last taken over

    orv::OutBarFolders* m_pFolders;
    int m_nItemPressed = -1;  // drawn pushed in
    bool m_bTracking = false; // an item is held
    bool m_bAnimating = false;
    int m_nArrowHeld = 0;      // -1 up, 1 down
    HWND m_hNotifyWnd = NULL;  // of m_pNotifyWnd when it was set: a temporary object does not stay
    int m_nCurrentItem = -1;   // of the keyboard, -1: a header
    int m_nCurrentFolder = -1; // that header
    bool m_bKeyboard = false;  // the keyboard was used last: the current row is marked
    int m_nWheelRest = 0;      // what was turned and is not yet an item
    HWND m_hEdit = NULL;
    int m_nEditFolder = -1;
    int m_nEditItem = -1; // -1: the folder's name
    CBrush m_brEdit;
};
