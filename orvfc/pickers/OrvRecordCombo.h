#pragma once

#include <afxwin.h>
#include <orvfc/OrvApi.h>

#include "TypedText.h"

// What an item of an owner-drawn combo stands for: a value that has a name and can draw itself.
class ORVFC_API COrvCmbRecord {
public:
    virtual ~COrvCmbRecord();

    // The item's text: what typing searches and a screen reader reads.
    virtual CString GetName() const = 0;
    // Draws the row into rc, in pixels. nState: ODS_SELECTED (TRUE will do), ODS_DISABLED; other bits do not
    // count. The device context is left as it was, but for its background colour.
    virtual void DrawItem(CDC* pDC, const CRect& rc, int nState) = 0;
    virtual void Dump(CDumpContext& dc) const;

protected:
    COrvCmbRecord() = default;
    COrvCmbRecord(const COrvCmbRecord&) = default;
    COrvCmbRecord& operator=(const COrvCmbRecord&) = default;
};

// A drop-down list whose items are records on the heap. Each item's data is its record; the combo owns the
// records and deletes them with their items.
//
// Attach it to a dialog's combo (DDX_Control, SubclassDlgItem; give it CBS_OWNERDRAWFIXED and CBS_HASSTRINGS)
// or create it: then the two styles, and CBS_DROPDOWNLIST where no kind was asked for, are added. Row heights
// are set in both cases; a font higher than the rows makes them higher. Without CBS_HASSTRINGS other programs
// see the selected item's name only. The parent must be a window of the foundation: owner-drawing comes back
// through it. Items go with the window: a window created anew is filled anew.
//
// A choice by mouse or keyboard is told to the message window or the parent; selecting in code tells nobody.
// The host's own ON_CBN_SELCHANGE runs as well, after the combo's part, before what was posted arrives.
class ORVFC_API COrvRecordCombo : public CComboBox {
    DECLARE_DYNAMIC(COrvRecordCombo)

public:
    ~COrvRecordCombo() override;

    // Who is told of choices instead of the parent; NULL: the parent. Not owned: set NULL before it goes. One
    // that has no window misses the message.
    void SetMessageWnd(CWnd* pMessageWnd) { m_pMessageWnd = pMessageWnd; }
    CWnd* GetMessageWnd() const { return m_pMessageWnd; }

    // Selects item 0, in the pickers with a current value that too; an empty list stays as it is.
    void SetInit();

    // An item without record draws nothing; without item (the empty field) the background alone is drawn.
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    // The constructor's height; attaching and WM_SETFONT make rows fit a higher font.
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;
    void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) override;

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    // nRowHeight: of items and field, in pixels.
    explicit COrvRecordCombo(CWnd* pMessageWnd = NULL, int nRowHeight = 18);

    // Takes the record over and gives its item's index, behind the last item (-1) or before nIndex. On
    // failure (no window, no room, not owner-drawn, an index that there is not) CB_ERR or CB_ERRSPACE, and
    // the record is deleted. Null adds an item without record. The selected item stays selected; CBS_SORT
    // does not count.
    int InsertRecord(int nIndex, COrvCmbRecord* pRecord);
    // Removes the item and gives its record to the caller.
    COrvCmbRecord* TakeRecord(int nIndex);
    // NULL for an index that there is not, and for an item without record.
    COrvCmbRecord* GetRecord(int nIndex) const;
    // A row of the combo's own for a value that no row of the host has, one at a time: the one before it goes
    // first, so that its place can be looked for among the others.
    void DeleteOwnRow();
    int InsertOwnRow(int nIndex, COrvCmbRecord* pRecord);
    BOOL IsOwnRow(const COrvCmbRecord* pRecord) const { return pRecord && pRecord == m_pOwnRow; }
    void KeepOwnRow() { m_pOwnRow = NULL; } // no more the combo's own
    // add(row) for each row of a set: the number of items that came. Null: 0.
    template <class Set, class Add>
    static int AddRows(Set* pSet, Add add) {
        int nAdded = 0;
        for (int i = 0; pSet && i < pSet->GetSize(); ++i)
            if (const auto* pRow = pSet->GetElement(i); pRow && add(*pRow) >= 0)
                ++nAdded;
        return nAdded;
    }
    // The first item whose record fits; -1 when none does.
    template <class Record, class Fits>
    int FindRecord(Fits fits) const {
        const int nCount = m_hWnd ? GetCount() : 0;
        for (int i = 0; i < nCount; ++i)
            if (const auto* pRecord = static_cast<const Record*>(GetRecord(i)); pRecord && fits(*pRecord))
                return i;
        return -1;
    }
    // The first item whose record bears the name, byte for byte; -1 when none does.
    int FindNamed(const CString& strName) const;
    // Selects the item and gives 1; 0 leaves the selection when there is no such item.
    int SelectItem(int nIndex);
    // Of the selected record; empty when there is none.
    CString CurrentName() const;
    // The selected record; NULL when there is none.
    template <class Record>
    const Record* CurrentRecord() const {
        return static_cast<const Record*>(GetRecord(m_hWnd ? GetCurSel() : -1));
    }

    // Draws one row: the record does it.
    virtual void DrawRecord(COrvCmbRecord& record, CDC* pDC, const CRect& rc, int nState);
    // After the selection has changed by mouse or keyboard. The window may be gone when it returns.
    virtual void OnSelchange() = 0;
    // After a row was selected by a message: in code, or from another program.
    virtual void OnSelected() {}
    // Posts: to the message window with wParam 0, else to the parent with wParam = the combo's identifier.
    // lParam is 0. What was posted may find the combo gone.
    void PostChoice(UINT message);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg BOOL OnReflectSelchange();
    DECLARE_MESSAGE_MAP()

private:
    void SetRecord(int nIndex, COrvCmbRecord* pRecord);
    BOOL OwnsItems() const;
    BOOL HasStrings() const;
    void SelectTyped();
    LRESULT GiveText(WPARAM nRoom, LPARAM lpBuffer) const;

    CWnd* m_pMessageWnd;
    COrvCmbRecord* m_pOwnRow; // owned by its item; null: none
    int m_nRowHeight;
    COrvTypedText m_typed;
};
