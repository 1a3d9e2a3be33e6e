#pragma once

#include "PFComboxData.h"

// Chooses how an area is filled. A choice posts WM_FILL_TYPE_CMB_SELCHANGE. See COrvRecordCombo for what the
// pickers have in common.
class ORVFC_API COrvFillTypeCmb : public COrvRecordCombo {
    DECLARE_DYNAMIC(COrvFillTypeCmb)

public:
    explicit COrvFillTypeCmb(CWnd* pMessageWnd = NULL) : COrvRecordCombo(pMessageWnd) {}

    // The new item's index, or CB_ERR or CB_ERRSPACE.
    int AddItem(int nFillType);
    // Adds the types -1 and 0 to 6.
    void InitGerFillType();

    // 0 when nothing is selected.
    int GetCurrentFillType() const;
    // The first item of that type; without one it gets an item at the end. 1, or 0 without a window or room.
    int SetCurrentFillType(int nFillType);

protected:
    void OnSelchange() override;
    DECLARE_MESSAGE_MAP()
};
