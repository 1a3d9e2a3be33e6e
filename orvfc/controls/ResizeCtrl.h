#pragma once

#include <afxwin.h>
#include <orvfc/OrvApi.h>

struct CResizeArray; // the registered children

// One registration: a child window and its shares of a change of the parent's client size, in parts of which
// the whole change has as many as Create was told (100 unless said otherwise: percentages).
struct CResizeInfo {
    HWND hWnd;
    int left;   // of the change in width: how far the child moves to the right
    int top;    // of the change in height: how far it moves down
    int width;  // of the change in width: how much wider it becomes
    int height; // of the change in height: how much higher it becomes
};

// Makes any dialog or window resizable: moves and sizes its children by fixed shares whenever its client size
// changes. It needs no base class: it subclasses the window, so construct it beside or inside the window's
// object, call Create when the window and its children are there (OnInitDialog), and Add the children.
//
//     m_resize.Create(this);
//     m_resize.Add(IDC_LIST, 0, 0, 100, 100);  // grows with the dialog
//     m_resize.Add(IDOK, 100, 100, 0, 0);      // stays in the corner
//
// Fractions of a pixel are carried from step to step: many small steps end in the layout of one large step.
// All children move in one batch. A minimised parent keeps its layout; one child's window may go at any time.
//
// Control and parent may end in either order. When the parent ends first the control is as newly made, only
// its tracking sizes stay. Other subclasses of the parent may come and go in any order: while one lies above
// the control, a disabled or destroyed control goes on passing messages, until the parent ends or a message
// arrives with nobody above.
class ORVFC_API CResizeCtrl {
public:
    CResizeCtrl();
    // As Create. Whether it worked: GetEnabled, if it was to be enabled.
    CResizeCtrl(HWND hParent, int enable = TRUE, int parts = 100);
    CResizeCtrl(CWnd* pParent, int enable = TRUE, int parts = 100);
    ~CResizeCtrl();
    CResizeCtrl(const CResizeCtrl&) = delete;
    CResizeCtrl& operator=(const CResizeCtrl&) = delete;

    // Takes a window of this process as parent. Non-zero when it worked; 0, with nothing changed, when the
    // control has a parent already, for what is no window, for parts below 1, and, to be enabled at once,
    // where another control is enabled.
    int Create(HWND hParent, int enable = TRUE, int parts = 100);
    int Create(CWnd* pParent, int enable = TRUE, int parts = 100);

    // Enabling subclasses the parent and goes on from the size it has now; a captioned window without a
    // sizing border gets one, around the same client area. Disabling undoes both; children and their
    // remainders stay. 0 when it cannot be: no parent, or another control is enabled there.
    int SetEnabled(BOOL bEnable);
    BOOL GetEnabled() const { return m_bEnabled; }

    // The size grip in the parent's bottom-right corner: SM_CXVSCROLL wide and SM_CYHSCROLL high, drawn after
    // the parent has painted; dragging it sizes the parent. Off at first, and again after Create. A maximised
    // parent shows none. Set always returns 0.
    int SetGripEnabled(BOOL bEnable);
    BOOL GetGripEnabled() const { return m_bGrip; }

    // Registers a child of the parent. Non-zero when it worked; 0 when there is no parent, for what is no
    // window, for a share outside 0..parts, and for left + width or top + height beyond parts. A child
    // registered again takes the new shares and begins without remainders. A window that is no child of the
    // parent when the size changes is passed over. A drop-down combo keeps its field's and its list's height
    // whatever its share.
    int Add(HWND hWnd, int left, int top, int width, int height);
    int Add(CWnd* pWnd, int left, int top, int width, int height);
    int Add(int nID, int left, int top, int width, int height);
    int Add(const CResizeInfo* pInfo);

    // The child stays where it is. 0 when it was not registered.
    int Remove(HWND hWnd);
    int Remove(CWnd* pWnd);
    int Remove(int nID);

    // Limits of the whole window's size, pixels; they replace what the parent itself says. A negative width
    // or height is no limit in that direction; (-1, -1) at first.
    void SetMinimumTrackingSize(const CSize& size) { m_sizeMinimum = size; }
    // The parent's size now (restored, where it is minimised). Without parent nothing changes.
    void SetMinimumTrackingSize();
    CSize GetMinimumTrackingSize() const { return m_sizeMinimum; }
    void SetMaximumTrackingSize(const CSize& size) { m_sizeMaximum = size; }
    CSize GetMaximumTrackingSize() const { return m_sizeMaximum; }

    // The parent's, screen coordinates. 0, and the rectangle unchanged, without parent.
    int GetWindowRect(RECT* pRect) const;

    void Dump(CDumpContext& dc) const;

private:
    struct Row;
    static const Row rows[];
    static LRESULT CALLBACK ParentProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    BOOL ProcessMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    BOOL OnSize(WPARAM wParam, LPARAM lParam, LRESULT& result);
    BOOL OnGetMinMaxInfo(WPARAM wParam, LPARAM lParam, LRESULT& result);
    BOOL OnNcHitTest(WPARAM wParam, LPARAM lParam, LRESULT& result);
    BOOL OnPaint(WPARAM wParam, LPARAM lParam, LRESULT& result);
    BOOL OnPrintClient(WPARAM wParam, LPARAM lParam, LRESULT& result);
    BOOL OnEraseBkgnd(WPARAM wParam, LPARAM lParam, LRESULT& result);

    BOOL HasParent();
    BOOL Hook();
    BOOL Unhook();
    BOOL IsHooked() const;
    BOOL PassOn(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    void ChangeStyle(BOOL bSizing);
    void ForgetParent();

    void Resize(int cx, int cy);
    void PlanMoves(int dx, int dy);
    void MoveChildren();
    void EraseWhatIsDue(HWND parent);
    void RepaintSeenThrough(HWND parent);
    void PlaceGrip();
    BOOL IsGripShown() const;
    void DrawGrip(HDC hDC) const;

    HWND m_hParent;
    int m_nParts;
    CSize m_sizeLast;         // the parent's client size last seen; negative: none yet, it is minimised
    CResizeArray* m_pEntries; // owned; NULL without parent
    CSize m_sizeMinimum;
    CSize m_sizeMaximum;
    BOOL m_bResizing;
    BOOL m_bEraseDue; // of the parent's background, put off while children move
    BOOL m_bEnabled;
    BOOL m_bGrip;
    CRect m_rcGrip; // client coordinates of the parent
    WNDPROC m_pfnPrevious;
    BOOL m_bBorderAdded;
};
