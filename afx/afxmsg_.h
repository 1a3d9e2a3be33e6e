#pragma once

// The entries of message maps. Every entry checks its handler's signature when it is compiled.

// How an entry's handler is called: its result, then its arguments. One case each in msgdispatch.cpp, in this
// order.
enum AfxSig : UINT_PTR {
    AfxSig_end = 0,
    // Handlers of ON_MESSAGE.
    AfxSig_l_wl, // LRESULT(WPARAM, LPARAM)
    AfxSig_v_wl, // void(WPARAM, LPARAM)
    // Commands, notifications and their reflections.
    AfxSig_cmd_v,   // void()
    AfxSig_cmd_b,   // BOOL()
    AfxSig_cmd_v_u, // void(UINT nID)
    AfxSig_cmd_b_u, // BOOL(UINT nID)
    AfxSig_cmd_ui,  // void(CCmdUI*)
    AfxSig_ntf_v,   // void(NMHDR*, LRESULT*)
    AfxSig_ntf_b,   // BOOL(NMHDR*, LRESULT*)
    AfxSig_ntf_v_u, // void(UINT nID, NMHDR*, LRESULT*)
    AfxSig_ntf_b_u, // BOOL(UINT nID, NMHDR*, LRESULT*)
    // Window messages.
    AfxSig_i_c,      // int(LPCREATESTRUCT)
    AfxSig_b_c,      // BOOL(LPCREATESTRUCT)
    AfxSig_v,        // void()
    AfxSig_b_D,      // BOOL(CDC*)
    AfxSig_B_D_W_u,  // HBRUSH(CDC*, CWnd*, UINT)
    AfxSig_v_i_i,    // void(int, int)
    AfxSig_v_u_i_i,  // void(UINT, int, int)
    AfxSig_v_u_R,    // void(UINT, LPRECT)
    AfxSig_v_p,      // void(record*)
    AfxSig_v_b_p,    // void(BOOL, record*)
    AfxSig_l_pt,     // LRESULT(CPoint)
    AfxSig_b_b,      // BOOL(BOOL)
    AfxSig_v_u_W_b,  // void(UINT, CWnd*, BOOL)
    AfxSig_v_b_dw,   // void(BOOL, DWORD)
    AfxSig_v_W,      // void(CWnd*)
    AfxSig_v_b,      // void(BOOL)
    AfxSig_v_b_u,    // void(BOOL, UINT)
    AfxSig_b_v,      // BOOL()
    AfxSig_v_Wl,     // void(CWnd*) from lParam
    AfxSig_v_up,     // void(UINT_PTR)
    AfxSig_v_key,    // void(UINT, UINT, UINT) key, repeat count, flags
    AfxSig_u_v,      // UINT()
    AfxSig_v_u_pt,   // void(UINT, CPoint)
    AfxSig_b_wheel,  // BOOL(UINT, short, CPoint)
    AfxSig_i_W_u_u,  // int(CWnd*, UINT, UINT)
    AfxSig_b_W_u_u,  // BOOL(CWnd*, UINT, UINT)
    AfxSig_v_W_pt,   // void(CWnd*, CPoint)
    AfxSig_v_u_u_W,  // void(UINT, UINT, CScrollBar*)
    AfxSig_v_u_l,    // void(UINT, LPARAM)
    AfxSig_v_M,      // void(CMenu*)
    AfxSig_v_M_u_b,  // void(CMenu*, UINT, BOOL)
    AfxSig_v_u_u_hM, // void(UINT, UINT, HMENU)
    AfxSig_v_u_Wl,   // void(UINT, CWnd*)
    AfxSig_v_i_p,    // void(int, record*)
    AfxSig_i_i_p,    // int(int, record*)
    AfxSig_i_u_L_u,  // int(UINT, CListBox*, UINT)
    AfxSig_v_u_s,    // void(UINT, LPCTSTR)
    AfxSig_v_drop,   // void(HDROP)
    AfxSig_b_p,      // BOOL(record*)
    // Reflected window messages.
    AfxSig_v_rp,  // void(item record*)
    AfxSig_i_rp,  // int(item record*)
    AfxSig_B_D_u, // HBRUSH(CDC*, UINT)
    AfxSig_v_u_u, // void(UINT, UINT)
    AfxSig_i_u_u, // int(UINT, UINT)
    AfxSig_count
};

// Handlers are kept under one type and called under their own; the compiler's warning about that is meant
// for others.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpragmas"
#pragma GCC diagnostic ignored "-Wunknown-warning-option"
#pragma GCC diagnostic ignored "-Wcast-function-type"
template <class HANDLER>
inline AFX_PMSG OrvHandler(HANDLER handler) {
    return reinterpret_cast<AFX_PMSG>(handler);
}
#pragma GCC diagnostic pop

// Reflected messages lie beyond every control's own, registered ones above them.
#define WM_REFLECT_BASE (WM_USER + 0x1C00)
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019 // all WM_CTLCOLORxxx in one
#endif

#define ORV_ENTRY(message, code, id, idLast, sig, base, memberFxn, result, arguments)                        \
    {static_cast<UINT>(message),                                                                             \
     static_cast<UINT>(code),                                                                                \
     static_cast<UINT>(id),                                                                                  \
     static_cast<UINT>(idLast),                                                                              \
     AfxSig_##sig,                                                                                           \
     OrvHandler(static_cast<result(base::*) arguments>(memberFxn))},

// --- messages by number

#define ON_MESSAGE(message, memberFxn)                                                                       \
    ORV_ENTRY(message, 0, 0, 0, l_wl, CWnd, memberFxn, LRESULT, (WPARAM, LPARAM))
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                \
    ORV_ENTRY(message, 0, 0, 0, v_wl, CWinThread, memberFxn, void, (WPARAM, LPARAM))
#define ORV_REGISTERED_ENTRY(variable, base, result, memberFxn)                                              \
    {0xC000,                                                                                                 \
     0,                                                                                                      \
     0,                                                                                                      \
     0,                                                                                                      \
     reinterpret_cast<UINT_PTR>(static_cast<const UINT*>(&variable)),                                        \
     OrvHandler(static_cast<result (base::*)(WPARAM, LPARAM)>(memberFxn))},
// nMessageVariable: an lvalue UINT holding a RegisterWindowMessage number.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                   \
    ORV_REGISTERED_ENTRY(nMessageVariable, CWnd, LRESULT, memberFxn)

// --- commands

#define ON_COMMAND(id, memberFxn)                                                                            \
    ORV_ENTRY(WM_COMMAND, CN_COMMAND, id, id, cmd_v, CCmdTarget, memberFxn, void, ())
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                              \
    ORV_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, cmd_v_u, CCmdTarget, memberFxn, void, (UINT))
// A handler that returns FALSE passes the command on.
#define ON_COMMAND_EX(id, memberFxn)                                                                         \
    ORV_ENTRY(WM_COMMAND, CN_COMMAND, id, id, cmd_b_u, CCmdTarget, memberFxn, BOOL, (UINT))
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                           \
    ORV_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, cmd_b_u, CCmdTarget, memberFxn, BOOL, (UINT))
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                  \
    ORV_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, cmd_ui, CCmdTarget, memberFxn, void, (CCmdUI*))
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                    \
    ORV_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, cmd_ui, CCmdTarget, memberFxn, void, (CCmdUI*))

// --- notifications from controls

#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    ORV_ENTRY(WM_COMMAND, static_cast<WORD>(wNotifyCode), id, id, cmd_v, CCmdTarget, memberFxn, void, ())
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                 \
    ORV_ENTRY(WM_COMMAND, static_cast<WORD>(wNotifyCode), id, idLast, cmd_v_u, CCmdTarget, memberFxn, void,  \
              (UINT))
#define ORV_NOTIFY_CODE(code) static_cast<WORD>(static_cast<int>(code))
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                \
    ORV_ENTRY(WM_NOTIFY, ORV_NOTIFY_CODE(wNotifyCode), id, id, ntf_v, CCmdTarget, memberFxn, void,           \
              (NMHDR*, LRESULT*))
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                  \
    ORV_ENTRY(WM_NOTIFY, ORV_NOTIFY_CODE(wNotifyCode), id, idLast, ntf_v_u, CCmdTarget, memberFxn, void,     \
              (UINT, NMHDR*, LRESULT*))
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn)                                                             \
    ORV_ENTRY(WM_NOTIFY, ORV_NOTIFY_CODE(wNotifyCode), id, id, ntf_b_u, CCmdTarget, memberFxn, BOOL,         \
              (UINT, NMHDR*, LRESULT*))
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                               \
    ORV_ENTRY(WM_NOTIFY, ORV_NOTIFY_CODE(wNotifyCode), id, idLast, ntf_b_u, CCmdTarget, memberFxn, BOOL,     \
              (UINT, NMHDR*, LRESULT*))

// --- what a control's parent sends back to it. The _EX forms pass on to the parent when they return FALSE.

#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    ORV_ENTRY(WM_COMMAND + WM_REFLECT_BASE, static_cast<WORD>(wNotifyCode), 0, 0, cmd_v, CCmdTarget,         \
              memberFxn, void, ())
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                        \
    ORV_ENTRY(WM_COMMAND + WM_REFLECT_BASE, static_cast<WORD>(wNotifyCode), 0, 0, cmd_b, CCmdTarget,         \
              memberFxn, BOOL, ())
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                            \
    ORV_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, ORV_NOTIFY_CODE(wNotifyCode), 0, 0, ntf_v, CCmdTarget, memberFxn, \
              void, (NMHDR*, LRESULT*))
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                         \
    ORV_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, ORV_NOTIFY_CODE(wNotifyCode), 0, 0, ntf_b, CCmdTarget, memberFxn, \
              BOOL, (NMHDR*, LRESULT*))

#define ORV_ON_REFLECTED(message, sig, memberFxn, result, arguments)                                         \
    ORV_ENTRY(message + WM_REFLECT_BASE, 0, 0, 0, sig, CWnd, &ThisClass::memberFxn, result, arguments)
#define ON_WM_DRAWITEM_REFLECT() ORV_ON_REFLECTED(WM_DRAWITEM, v_rp, DrawItem, void, (LPDRAWITEMSTRUCT))
#define ON_WM_MEASUREITEM_REFLECT()                                                                          \
    ORV_ON_REFLECTED(WM_MEASUREITEM, v_rp, MeasureItem, void, (LPMEASUREITEMSTRUCT))
#define ON_WM_DELETEITEM_REFLECT()                                                                           \
    ORV_ON_REFLECTED(WM_DELETEITEM, v_rp, DeleteItem, void, (LPDELETEITEMSTRUCT))
#define ON_WM_COMPAREITEM_REFLECT()                                                                          \
    ORV_ON_REFLECTED(WM_COMPAREITEM, i_rp, CompareItem, int, (LPCOMPAREITEMSTRUCT))
#define ON_WM_CTLCOLOR_REFLECT() ORV_ON_REFLECTED(WM_CTLCOLOR, B_D_u, CtlColor, HBRUSH, (CDC*, UINT))
#define ON_WM_HSCROLL_REFLECT() ORV_ON_REFLECTED(WM_HSCROLL, v_u_u, HScroll, void, (UINT, UINT))
#define ON_WM_VSCROLL_REFLECT() ORV_ON_REFLECTED(WM_VSCROLL, v_u_u, VScroll, void, (UINT, UINT))
#define ON_WM_CHARTOITEM_REFLECT() ORV_ON_REFLECTED(WM_CHARTOITEM, i_u_u, CharToItem, int, (UINT, UINT))
#define ON_WM_VKEYTOITEM_REFLECT() ORV_ON_REFLECTED(WM_VKEYTOITEM, i_u_u, VKeyToItem, int, (UINT, UINT))

// --- window messages, each to the member of its name

#define ORV_ON_WM(message, sig, memberFxn, result, arguments)                                                \
    ORV_ENTRY(message, 0, 0, 0, sig, CWnd, &ThisClass::memberFxn, result, arguments)
#define ON_WM_CREATE() ORV_ON_WM(WM_CREATE, i_c, OnCreate, int, (LPCREATESTRUCT))
#define ON_WM_NCCREATE() ORV_ON_WM(WM_NCCREATE, b_c, OnNcCreate, BOOL, (LPCREATESTRUCT))
#define ON_WM_DESTROY() ORV_ON_WM(WM_DESTROY, v, OnDestroy, void, ())
#define ON_WM_NCDESTROY() ORV_ON_WM(WM_NCDESTROY, v, OnNcDestroy, void, ())
#define ON_WM_CLOSE() ORV_ON_WM(WM_CLOSE, v, OnClose, void, ())
#define ON_WM_PAINT() ORV_ON_WM(WM_PAINT, v, OnPaint, void, ())
#define ON_WM_NCPAINT() ORV_ON_WM(WM_NCPAINT, v, OnNcPaint, void, ())
#define ON_WM_ERASEBKGND() ORV_ON_WM(WM_ERASEBKGND, b_D, OnEraseBkgnd, BOOL, (CDC*))
#define ON_WM_CTLCOLOR() ORV_ON_WM(WM_CTLCOLOR, B_D_W_u, OnCtlColor, HBRUSH, (CDC*, CWnd*, UINT))
#define ON_WM_MOVE() ORV_ON_WM(WM_MOVE, v_i_i, OnMove, void, (int, int))
#define ON_WM_SIZE() ORV_ON_WM(WM_SIZE, v_u_i_i, OnSize, void, (UINT, int, int))
#define ON_WM_SIZING() ORV_ON_WM(WM_SIZING, v_u_R, OnSizing, void, (UINT, LPRECT))
#define ON_WM_MOVING() ORV_ON_WM(WM_MOVING, v_u_R, OnMoving, void, (UINT, LPRECT))
#define ON_WM_GETMINMAXINFO() ORV_ON_WM(WM_GETMINMAXINFO, v_p, OnGetMinMaxInfo, void, (MINMAXINFO*))
#define ON_WM_WINDOWPOSCHANGING()                                                                            \
    ORV_ON_WM(WM_WINDOWPOSCHANGING, v_p, OnWindowPosChanging, void, (WINDOWPOS*))
#define ON_WM_WINDOWPOSCHANGED() ORV_ON_WM(WM_WINDOWPOSCHANGED, v_p, OnWindowPosChanged, void, (WINDOWPOS*))
#define ON_WM_NCCALCSIZE() ORV_ON_WM(WM_NCCALCSIZE, v_b_p, OnNcCalcSize, void, (BOOL, NCCALCSIZE_PARAMS*))
#define ON_WM_NCHITTEST() ORV_ON_WM(WM_NCHITTEST, l_pt, OnNcHitTest, LRESULT, (CPoint))
#define ON_WM_NCACTIVATE() ORV_ON_WM(WM_NCACTIVATE, b_b, OnNcActivate, BOOL, (BOOL))
#define ON_WM_ACTIVATE() ORV_ON_WM(WM_ACTIVATE, v_u_W_b, OnActivate, void, (UINT, CWnd*, BOOL))
#define ON_WM_ACTIVATEAPP() ORV_ON_WM(WM_ACTIVATEAPP, v_b_dw, OnActivateApp, void, (BOOL, DWORD))
#define ON_WM_SETFOCUS() ORV_ON_WM(WM_SETFOCUS, v_W, OnSetFocus, void, (CWnd*))
#define ON_WM_KILLFOCUS() ORV_ON_WM(WM_KILLFOCUS, v_W, OnKillFocus, void, (CWnd*))
#define ON_WM_ENABLE() ORV_ON_WM(WM_ENABLE, v_b, OnEnable, void, (BOOL))
#define ON_WM_SHOWWINDOW() ORV_ON_WM(WM_SHOWWINDOW, v_b_u, OnShowWindow, void, (BOOL, UINT))
#define ON_WM_QUERYENDSESSION() ORV_ON_WM(WM_QUERYENDSESSION, b_v, OnQueryEndSession, BOOL, ())
#define ON_WM_ENDSESSION() ORV_ON_WM(WM_ENDSESSION, v_b, OnEndSession, void, (BOOL))
#define ON_WM_CANCELMODE() ORV_ON_WM(WM_CANCELMODE, v, OnCancelMode, void, ())
#define ON_WM_CAPTURECHANGED() ORV_ON_WM(WM_CAPTURECHANGED, v_Wl, OnCaptureChanged, void, (CWnd*))
#define ON_WM_TIMER() ORV_ON_WM(WM_TIMER, v_up, OnTimer, void, (UINT_PTR))
#define ON_WM_CHAR() ORV_ON_WM(WM_CHAR, v_key, OnChar, void, (UINT, UINT, UINT))
#define ON_WM_KEYDOWN() ORV_ON_WM(WM_KEYDOWN, v_key, OnKeyDown, void, (UINT, UINT, UINT))
#define ON_WM_KEYUP() ORV_ON_WM(WM_KEYUP, v_key, OnKeyUp, void, (UINT, UINT, UINT))
#define ON_WM_SYSCHAR() ORV_ON_WM(WM_SYSCHAR, v_key, OnSysChar, void, (UINT, UINT, UINT))
#define ON_WM_SYSKEYDOWN() ORV_ON_WM(WM_SYSKEYDOWN, v_key, OnSysKeyDown, void, (UINT, UINT, UINT))
#define ON_WM_SYSKEYUP() ORV_ON_WM(WM_SYSKEYUP, v_key, OnSysKeyUp, void, (UINT, UINT, UINT))
#define ON_WM_GETDLGCODE() ORV_ON_WM(WM_GETDLGCODE, u_v, OnGetDlgCode, UINT, ())
#define ON_WM_MOUSEMOVE() ORV_ON_WM(WM_MOUSEMOVE, v_u_pt, OnMouseMove, void, (UINT, CPoint))
#define ON_WM_LBUTTONDOWN() ORV_ON_WM(WM_LBUTTONDOWN, v_u_pt, OnLButtonDown, void, (UINT, CPoint))
#define ON_WM_LBUTTONUP() ORV_ON_WM(WM_LBUTTONUP, v_u_pt, OnLButtonUp, void, (UINT, CPoint))
#define ON_WM_LBUTTONDBLCLK() ORV_ON_WM(WM_LBUTTONDBLCLK, v_u_pt, OnLButtonDblClk, void, (UINT, CPoint))
#define ON_WM_RBUTTONDOWN() ORV_ON_WM(WM_RBUTTONDOWN, v_u_pt, OnRButtonDown, void, (UINT, CPoint))
#define ON_WM_RBUTTONUP() ORV_ON_WM(WM_RBUTTONUP, v_u_pt, OnRButtonUp, void, (UINT, CPoint))
#define ON_WM_RBUTTONDBLCLK() ORV_ON_WM(WM_RBUTTONDBLCLK, v_u_pt, OnRButtonDblClk, void, (UINT, CPoint))
#define ON_WM_MBUTTONDOWN() ORV_ON_WM(WM_MBUTTONDOWN, v_u_pt, OnMButtonDown, void, (UINT, CPoint))
#define ON_WM_MBUTTONUP() ORV_ON_WM(WM_MBUTTONUP, v_u_pt, OnMButtonUp, void, (UINT, CPoint))
#define ON_WM_NCMOUSEMOVE() ORV_ON_WM(WM_NCMOUSEMOVE, v_u_pt, OnNcMouseMove, void, (UINT, CPoint))
#define ON_WM_NCLBUTTONDOWN() ORV_ON_WM(WM_NCLBUTTONDOWN, v_u_pt, OnNcLButtonDown, void, (UINT, CPoint))
#define ON_WM_NCLBUTTONUP() ORV_ON_WM(WM_NCLBUTTONUP, v_u_pt, OnNcLButtonUp, void, (UINT, CPoint))
#define ON_WM_NCLBUTTONDBLCLK() ORV_ON_WM(WM_NCLBUTTONDBLCLK, v_u_pt, OnNcLButtonDblClk, void, (UINT, CPoint))
#define ON_WM_MOUSELEAVE() ORV_ON_WM(WM_MOUSELEAVE, v, OnMouseLeave, void, ())
#define ON_WM_MOUSEWHEEL() ORV_ON_WM(WM_MOUSEWHEEL, b_wheel, OnMouseWheel, BOOL, (UINT, short, CPoint))
#define ON_WM_MOUSEACTIVATE() ORV_ON_WM(WM_MOUSEACTIVATE, i_W_u_u, OnMouseActivate, int, (CWnd*, UINT, UINT))
#define ON_WM_SETCURSOR() ORV_ON_WM(WM_SETCURSOR, b_W_u_u, OnSetCursor, BOOL, (CWnd*, UINT, UINT))
#define ON_WM_CONTEXTMENU() ORV_ON_WM(WM_CONTEXTMENU, v_W_pt, OnContextMenu, void, (CWnd*, CPoint))
#define ON_WM_HSCROLL() ORV_ON_WM(WM_HSCROLL, v_u_u_W, OnHScroll, void, (UINT, UINT, CScrollBar*))
#define ON_WM_VSCROLL() ORV_ON_WM(WM_VSCROLL, v_u_u_W, OnVScroll, void, (UINT, UINT, CScrollBar*))
#define ON_WM_SYSCOMMAND() ORV_ON_WM(WM_SYSCOMMAND, v_u_l, OnSysCommand, void, (UINT, LPARAM))
#define ON_WM_INITMENU() ORV_ON_WM(WM_INITMENU, v_M, OnInitMenu, void, (CMenu*))
#define ON_WM_INITMENUPOPUP()                                                                                \
    ORV_ON_WM(WM_INITMENUPOPUP, v_M_u_b, OnInitMenuPopup, void, (CMenu*, UINT, BOOL))
#define ON_WM_MENUSELECT() ORV_ON_WM(WM_MENUSELECT, v_u_u_hM, OnMenuSelect, void, (UINT, UINT, HMENU))
#define ON_WM_PARENTNOTIFY() ORV_ON_WM(WM_PARENTNOTIFY, v_u_l, OnParentNotify, void, (UINT, LPARAM))
#define ON_WM_ENTERIDLE() ORV_ON_WM(WM_ENTERIDLE, v_u_Wl, OnEnterIdle, void, (UINT, CWnd*))
#define ON_WM_DRAWITEM() ORV_ON_WM(WM_DRAWITEM, v_i_p, OnDrawItem, void, (int, LPDRAWITEMSTRUCT))
#define ON_WM_MEASUREITEM() ORV_ON_WM(WM_MEASUREITEM, v_i_p, OnMeasureItem, void, (int, LPMEASUREITEMSTRUCT))
#define ON_WM_DELETEITEM() ORV_ON_WM(WM_DELETEITEM, v_i_p, OnDeleteItem, void, (int, LPDELETEITEMSTRUCT))
#define ON_WM_COMPAREITEM() ORV_ON_WM(WM_COMPAREITEM, i_i_p, OnCompareItem, int, (int, LPCOMPAREITEMSTRUCT))
#define ON_WM_CHARTOITEM() ORV_ON_WM(WM_CHARTOITEM, i_u_L_u, OnCharToItem, int, (UINT, CListBox*, UINT))
#define ON_WM_VKEYTOITEM() ORV_ON_WM(WM_VKEYTOITEM, i_u_L_u, OnVKeyToItem, int, (UINT, CListBox*, UINT))
#define ON_WM_SYSCOLORCHANGE() ORV_ON_WM(WM_SYSCOLORCHANGE, v, OnSysColorChange, void, ())
#define ON_WM_SETTINGCHANGE() ORV_ON_WM(WM_SETTINGCHANGE, v_u_s, OnSettingChange, void, (UINT, LPCTSTR))
#define ON_WM_STYLECHANGED() ORV_ON_WM(WM_STYLECHANGED, v_i_p, OnStyleChanged, void, (int, LPSTYLESTRUCT))
#define ON_WM_DROPFILES() ORV_ON_WM(WM_DROPFILES, v_drop, OnDropFiles, void, (HDROP))
#define ON_WM_HELPINFO() ORV_ON_WM(WM_HELP, b_p, OnHelpInfo, BOOL, (HELPINFO*))
#define ON_WM_PALETTECHANGED() ORV_ON_WM(WM_PALETTECHANGED, v_W, OnPaletteChanged, void, (CWnd*))
#define ON_WM_QUERYNEWPALETTE() ORV_ON_WM(WM_QUERYNEWPALETTE, b_v, OnQueryNewPalette, BOOL, ())

// --- notification codes by name

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
