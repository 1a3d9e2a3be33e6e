#pragma once

#include <orvfc/pickers/OrvRecordCombo.h>

// A face in the list of a CFontCombo.
class ORVFC_API CFontObj : public COrvCmbRecord {
public:
    explicit CFontObj(DWORD dwFlags = 0);
    CFontObj(CString strFace, DWORD dwFlags);
    // Copies the face, not the font that was made to draw it.
    CFontObj(const CFontObj& obj);
    CFontObj& operator=(const CFontObj& obj);
    ~CFontObj() override;

    CString GetName() const override { return m_strFace; }
    DWORD GetFlags() const { return m_dwFlags; }
    BOOL GetFontInUse() const { return m_bInUse; }
    void SetFontInUse(BOOL bInUse) { m_bInUse = bInUse; }

    // The name in its own face, where that has all its characters, upright and of a row's height, else in the
    // device context's font; a face in use has a mark before it. The font is made at the first drawing and
    // kept until FreeFont.
    void DrawItem(CDC* pDC, const CRect& rc, int nState) override;
    void FreeFont();
    BOOL HasFont() const { return m_pFont != NULL; }

private:
    CFont* OwnFace(CDC* pDC);

    CString m_strFace;
    DWORD m_dwFlags;
    BOOL m_bInUse;
    CFont* m_pFont;     // owned; null until it is drawn
    BOOL m_bOwnFace;    // can show its own name
    LONG m_nFontHeight; // of m_pFont
};

// The picker of font faces: the system's TrueType faces in alphabetical order, each shown in itself, and a
// field in which a name may be typed.
//
// A choice posts to the parent WM_FONT_NAME_CMB_SELCHANGE (wParam: the combo's identifier, lParam 0), and
// behind it WM_COMMAND with wParam 1 and lParam the combo's window. A plain dialog takes that command for its
// OK button: swallow it in PreTranslateMessage, as COrvFCDrawTextPropPage does.
//
// A typed name counts as a choice when it is the name of a row (the case does not count) and the typing
// pauses, Enter is pressed or the field is left; other text makes way for the current name with Enter and
// when the field is left. While the list is open, typing leads to the row that begins so, and Enter chooses
// it.
class ORVFC_API CFontCombo : public COrvRecordCombo {
    DECLARE_DYNAMIC(CFontCombo)

public:
    CFontCombo();
    explicit CFontCombo(int nStyle); // kept for the host; nothing here looks at it

    // Fills the list anew from the system; the current name stays.
    void Initialize();
    void EnumerateFonts();
    // Adds a face at its place in the alphabet, unless it is there. Its index, or -1.
    int AddFont(CString strFace, DWORD dwFlags);
    // Marks a face as one that the document uses. FALSE when there is no such row.
    int SetFontInUse(const CString& strFace);

    // Takes what stands in the field, without telling anybody. FALSE when no row has that name: the field
    // then shows the current name again.
    int SetCurrentFont();
    CString GetCurrentFontName() const { return m_strCurrent; }
    // A name that no row has stands in the field (of a drop-down list: in a row of its own) and is current.
    void SetCurrentFontName(CString strFace);

    // For EnumFontFamiliesEx, lThis being the combo that a face is added to. Of a screen's fonts TrueType
    // ones count, but for those that also have the type bit 0x4000; of a printer's, for hosts that enumerate
    // its device context, all that can be scaled.
    static int CALLBACK EnumFamScreenCallBackEx(const LOGFONT* plf, const TEXTMETRIC* ptm, DWORD nFontType,
                                                LPARAM lThis);
    static int CALLBACK EnumFamPrinterCallBackEx(const LOGFONT* plf, const TEXTMETRIC* ptm, DWORD nFontType,
                                                 LPARAM lThis);

    int GetStyleCode() const { return m_nStyle; }
    void Dump(CDumpContext& dc) const override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void DrawRecord(COrvCmbRecord& record, CDC* pDC, const CRect& rc, int nState) override;
    void OnSelchange() override;
    void OnSelected() override { TakeChosenRow(); }
    afx_msg void OnDestroy();
    afx_msg BOOL OnEditchange();
    afx_msg BOOL OnSetfocus();
    afx_msg BOOL OnKillfocus();
    afx_msg BOOL OnDropdown();
    afx_msg BOOL OnSelendok();
    afx_msg BOOL OnCloseUp();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    DECLARE_MESSAGE_MAP()

private:
    int FindFace(const CString& strFace) const;
    int PlaceOf(const CString& strFace) const;
    BOOL TakeTypedFace();
    BOOL TakeChosenRow();
    void TakeField();
    BOOL IsBegunInField(int nIndex) const;
    void FreeFonts();
    void Report();

    CString m_strCurrent;
    struct Collected;
    Collected* m_pCollected; // while the system enumerates
    int m_nStyle;
    int m_nFonts; // made since they were freed
};
