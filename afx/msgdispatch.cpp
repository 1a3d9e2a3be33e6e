#include "msgdispatch.h"

namespace orvafx {

namespace {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpragmas"
#pragma GCC diagnostic ignored "-Wunknown-warning-option"
#pragma GCC diagnostic ignored "-Wcast-function-type"

// The handler under its own signature again: the opposite of OrvHandler.
template <class Result, class... Arguments>
Result callWindow(CWnd* window, AFX_PMSG handler, Arguments... arguments) {
    using Handler = Result (CWnd::*)(Arguments...);
    return (window->*reinterpret_cast<Handler>(handler))(arguments...);
}

template <class Result, class... Arguments>
Result callTarget(CCmdTarget* target, AFX_PMSG handler, Arguments... arguments) {
    using Handler = Result (CCmdTarget::*)(Arguments...);
    return (target->*reinterpret_cast<Handler>(handler))(arguments...);
}

#pragma GCC diagnostic pop

template <class T>
T* at(LPARAM lParam) {
    return reinterpret_cast<T*>(lParam);
}

template <class Handle>
Handle handleIn(UINT_PTR value) {
    return reinterpret_cast<Handle>(value);
}

// One caller for each signature of AfxSig from AfxSig_i_c on.
struct Call {
    CWnd* w;
    AFX_PMSG f;
    WPARAM wp;
    LPARAM lp;

    UINT low() const { return LOWORD(wp); }
    UINT high() const { return HIWORD(wp); }
    UINT lowL() const { return LOWORD(lp); }
    UINT highL() const { return HIWORD(lp); }
    CPoint point() const { return CPoint(lp); }
    CWnd* windowW() const { return CWnd::FromHandle(handleIn<HWND>(wp)); }
    CWnd* windowL() const { return CWnd::FromHandle(handleIn<HWND>(lp)); }

    template <class... Arguments>
    LRESULT nothing(Arguments... arguments) const {
        callWindow<void>(w, f, arguments...);
        return 0;
    }
    template <class Result, class... Arguments>
    LRESULT value(Arguments... arguments) const {
        return (LRESULT)callWindow<Result>(w, f, arguments...);
    }
};

HBRUSH callControlColor(const Call& c, bool reflected) {
    const auto& color = *at<ControlColor>(c.lp);
    CDC* dc = CDC::FromHandle(color.dc);
    if (reflected)
        return callWindow<HBRUSH>(c.w, c.f, dc, color.type);
    return callWindow<HBRUSH>(c.w, c.f, dc, CWnd::FromHandle(color.control), color.type);
}

// A scroll bar without an object of its own gets a plain temporary one; CScrollBar adds no members to it.
CScrollBar* scrollBarIn(LPARAM lParam) {
    return static_cast<CScrollBar*>(CWnd::FromHandle(handleIn<HWND>(lParam)));
}

using Caller = LRESULT (*)(const Call&);

constexpr Caller callers[] = {
    [](const Call& c) { return c.value<int>(at<CREATESTRUCT>(c.lp)); },                 // i_c
    [](const Call& c) { return c.value<BOOL>(at<CREATESTRUCT>(c.lp)); },                // b_c
    [](const Call& c) { return c.nothing(); },                                          // v
    [](const Call& c) { return c.value<BOOL>(CDC::FromHandle(handleIn<HDC>(c.wp))); },  // b_D
    [](const Call& c) { return (LRESULT)callControlColor(c, false); },                  // B_D_W_u
    [](const Call& c) { return c.nothing(int(c.point().x), int(c.point().y)); },        // v_i_i
    [](const Call& c) { return c.nothing(UINT(c.wp), int(c.lowL()), int(c.highL())); }, // v_u_i_i
    [](const Call& c) { return c.nothing(UINT(c.wp), at<RECT>(c.lp)); },                // v_u_R
    [](const Call& c) { return c.nothing(at<void>(c.lp)); },                            // v_p
    [](const Call& c) { return c.nothing(BOOL(c.wp), at<void>(c.lp)); },                // v_b_p
    [](const Call& c) { return c.value<LRESULT>(c.point()); },                          // l_pt
    [](const Call& c) { return c.value<BOOL>(BOOL(c.wp)); },                            // b_b
    [](const Call& c) { return c.nothing(c.low(), c.windowL(), BOOL(c.high())); },      // v_u_W_b
    [](const Call& c) { return c.nothing(BOOL(c.wp), DWORD(c.lp)); },                   // v_b_dw
    [](const Call& c) { return c.nothing(c.windowW()); },                               // v_W
    [](const Call& c) { return c.nothing(BOOL(c.wp)); },                                // v_b
    [](const Call& c) { return c.nothing(BOOL(c.wp), UINT(c.lp)); },                    // v_b_u
    [](const Call& c) { return c.value<BOOL>(); },                                      // b_v
    [](const Call& c) { return c.nothing(c.windowL()); },                               // v_Wl
    [](const Call& c) { return c.nothing(UINT_PTR(c.wp)); },                            // v_up
    [](const Call& c) { return c.nothing(UINT(c.wp), c.lowL(), c.highL()); },           // v_key
    [](const Call& c) { return c.value<UINT>(); },                                      // u_v
    [](const Call& c) { return c.nothing(UINT(c.wp), c.point()); },                     // v_u_pt
    [](const Call& c) { return c.value<BOOL>(c.low(), short(c.high()), c.point()); },   // b_wheel
    [](const Call& c) { return c.value<int>(c.windowW(), c.lowL(), c.highL()); },       // i_W_u_u
    [](const Call& c) { return c.value<BOOL>(c.windowW(), c.lowL(), c.highL()); },      // b_W_u_u
    [](const Call& c) { return c.nothing(c.windowW(), c.point()); },                    // v_W_pt
    [](const Call& c) { return c.nothing(c.low(), c.high(), scrollBarIn(c.lp)); },      // v_u_u_W
    [](const Call& c) { return c.nothing(UINT(c.wp), c.lp); },                          // v_u_l
    [](const Call& c) { return c.nothing(CMenu::FromHandle(handleIn<HMENU>(c.wp))); },  // v_M
    [](const Call& c) {                                                                 // v_M_u_b
        return c.nothing(CMenu::FromHandle(handleIn<HMENU>(c.wp)), c.lowL(), BOOL(c.highL()));
    },
    [](const Call& c) { return c.nothing(c.low(), c.high(), handleIn<HMENU>(c.lp)); }, // v_u_u_hM
    [](const Call& c) { return c.nothing(UINT(c.wp), c.windowL()); },                  // v_u_Wl
    [](const Call& c) { return c.nothing(int(c.wp), at<void>(c.lp)); },                // v_i_p
    [](const Call& c) { return c.value<int>(int(c.wp), at<void>(c.lp)); },             // i_i_p
    [](const Call& c) {                                                                // i_u_L_u
        return c.value<int>(c.low(), static_cast<CListBox*>(c.windowL()), c.high());
    },
    [](const Call& c) { return c.nothing(UINT(c.wp), at<const TCHAR>(c.lp)); }, // v_u_s
    [](const Call& c) { return c.nothing(handleIn<HDROP>(c.wp)); },             // v_drop
    [](const Call& c) { return c.value<BOOL>(at<void>(c.lp)); },                // b_p
    [](const Call& c) { return c.nothing(at<void>(c.lp)); },                    // v_rp
    [](const Call& c) { return c.value<int>(at<void>(c.lp)); },                 // i_rp
    [](const Call& c) { return (LRESULT)callControlColor(c, true); },           // B_D_u
    [](const Call& c) { return c.nothing(c.low(), c.high()); },                 // v_u_u
    [](const Call& c) { return c.value<int>(c.low(), c.high()); },              // i_u_u
};
static_assert(sizeof(callers) / sizeof(callers[0]) == AfxSig_count - AfxSig_i_c);

bool matches(const AFX_MSGMAP_ENTRY& entry, UINT message, UINT code, UINT id) {
    return entry.nMessage == message && entry.nCode == code && id >= entry.nID && id <= entry.nLastID;
}

} // namespace

const AFX_MSGMAP_ENTRY* findCommandEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id) {
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : NULL)
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
            if (matches(*entry, message, code, id))
                return entry;
    return NULL;
}

const AFX_MSGMAP_ENTRY* findMessageEntry(const AFX_MSGMAP* map, UINT message) {
    const bool registered = message >= 0xC000;
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : NULL)
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
            if (registered ? entry->nMessage == 0xC000 && *handleIn<const UINT*>(entry->nSig) == message
                           : matches(*entry, message, 0, 0))
                return entry;
    return NULL;
}

BOOL callCommandHandler(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra) {
    const auto* notification = static_cast<const Notification*>(extra);
    switch (entry.nSig) {
    case AfxSig_cmd_v:
        callTarget<void>(target, entry.pfn);
        return TRUE;
    case AfxSig_cmd_b:
        return callTarget<BOOL>(target, entry.pfn);
    case AfxSig_cmd_v_u:
        callTarget<void>(target, entry.pfn, id);
        return TRUE;
    case AfxSig_cmd_b_u:
        return callTarget<BOOL>(target, entry.pfn, id);
    case AfxSig_cmd_ui: {
        auto* ui = static_cast<CCmdUI*>(extra);
        ui->m_bContinueRouting = FALSE;
        callTarget<void>(target, entry.pfn, ui);
        const BOOL done = !ui->m_bContinueRouting;
        ui->m_bContinueRouting = FALSE;
        return done;
    }
    case AfxSig_ntf_v:
        callTarget<void>(target, entry.pfn, notification->header, notification->result);
        return TRUE;
    case AfxSig_ntf_b:
        return callTarget<BOOL>(target, entry.pfn, notification->header, notification->result);
    case AfxSig_ntf_v_u:
        callTarget<void>(target, entry.pfn, id, notification->header, notification->result);
        return TRUE;
    case AfxSig_ntf_b_u:
        return callTarget<BOOL>(target, entry.pfn, id, notification->header, notification->result);
    default:
        ASSERT(FALSE);
        return FALSE;
    }
}

BOOL passDialogCommandOn(const CWnd* dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
    const bool command = code == CN_COMMAND || code == static_cast<int>(CN_UPDATE_COMMAND_UI);
    // Of the numbers only the program's own commands, neither controls nor the system's.
    if (!command || !(id & 0x8000) || id >= 0xF000)
        return FALSE;
    CWnd* owner = CWnd::FromHandlePermanent(::GetParent(dialog->m_hWnd));
    if (owner && owner->OnCmdMsg(id, code, extra, info))
        return TRUE;
    CWinApp* app = AfxGetApp();
    return app && app->OnCmdMsg(id, code, extra, info);
}

bool wantsRecord(UINT_PTR sig) {
    switch (sig) {
    case AfxSig_i_c:
    case AfxSig_b_c:
    case AfxSig_v_u_R:
    case AfxSig_v_p:
    case AfxSig_v_b_p:
    case AfxSig_v_i_p:
    case AfxSig_i_i_p:
    case AfxSig_b_p:
    case AfxSig_v_rp:
    case AfxSig_i_rp:
        return true;
    default:
        return false;
    }
}

LRESULT callMessageHandler(CWnd* window, const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam) {
    if (entry.nMessage == 0xC000 || entry.nSig == AfxSig_l_wl)
        return callWindow<LRESULT>(window, entry.pfn, wParam, lParam);
    return callers[entry.nSig - AfxSig_i_c]({window, entry.pfn, wParam, lParam});
}

} // namespace orvafx
