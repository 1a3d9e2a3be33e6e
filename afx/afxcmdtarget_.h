#pragma once

// CCmdTarget: everything that receives commands and messages through a message map.

#include <afx.h>

class CCmdTarget;
class CCmdUI;
class CMenu;
class CWnd;

// A handler of any signature; its entry's nSig says what it really is.
typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)(void);

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode; // notification code; CN_COMMAND, CN_UPDATE_COMMAND_UI
    UINT nID;   // of the control or command: first and last
    UINT nLastID;
    UINT_PTR nSig; // AfxSig; for registered messages the address of the variable that holds the number
    AFX_PMSG pfn;
};

// The entries of one class. The base's table is reached through a function, which works across DLLs.
struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// Who would handle a command, when the caller only asks.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI (static_cast<UINT>(-1))

#define afx_msg

#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                     \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                                      \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() {                                                 \
        [[maybe_unused]] typedef theClass ThisClass;                                                         \
        typedef baseClass TheBaseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    { 0, 0, 0, 0, AfxSig_end, static_cast<AFX_PMSG>(0) }                                                     \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};            \
    return &messageMap;                                                                                      \
    }

class ORVAFX_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

public:
    ~CCmdTarget() override = default;

    // Routes a command (nCode CN_COMMAND), a control's notification (its code; for WM_NOTIFY MAKELONG(code,
    // WM_NOTIFY)), or the question how a command's items look (CN_UPDATE_COMMAND_UI, pExtra a CCmdUI). TRUE
    // when somebody took it. With pHandlerInfo nobody is called.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

protected:
    CCmdTarget() = default;

    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

// How the items of one command look, while the handler of ON_UPDATE_COMMAND_UI decides. The state of a menu
// item (m_pMenu, m_nIndex) or of a control (m_pOther).
class ORVAFX_API CCmdUI {
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;
    CCmdUI(const CCmdUI&) = delete;
    CCmdUI& operator=(const CCmdUI&) = delete;

    UINT m_nID = 0;
    UINT m_nIndex = 0;
    CMenu* m_pMenu = NULL;
    CMenu* m_pSubMenu = NULL; // set when the item opens a menu
    CWnd* m_pOther = NULL;
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0;

    virtual void Enable(BOOL bOn = TRUE);
    // 0: off, 1: on, 2: neither (controls only).
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    // Asks pTarget. An item for which there is no handler at all is disabled when bDisableIfNoHndler.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};

// Shows the hour-glass while it lives.
class ORVAFX_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    void Restore();
};

#include "afxmsg_.h"
