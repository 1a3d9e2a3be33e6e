// The font pickers against bare calls: filling the list of faces, painting a row.

#include <orvfc/ORVFC.h>

#include "harness.h"
#include "picker_stage.h"

#include <memory>

namespace {

struct Stage : orv::bench::PickerStage {
    CFontCombo faces;
    CComboBox bare;

    Stage() {
        const CRect rect(0, 0, 200, 200);
        faces.Create(WS_CHILD | CBS_DROPDOWNLIST, rect, &parent, 1);
        bare.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | CBS_SORT, rect,
                    &parent, 2);
    }

    static Stage& the() {
        static Stage& stage = *new Stage;
        return stage;
    }
};

void fillFaces(int times) {
    while (times--)
        Stage::the().faces.Initialize();
}

int CALLBACK addBare(const LOGFONT* plf, const TEXTMETRIC*, DWORD type, LPARAM) {
    if (type & TRUETYPE_FONTTYPE)
        Stage::the().bare.AddString(plf->lfFaceName);
    return TRUE;
}

void fillBare(int times) {
    while (times--) {
        Stage::the().bare.ResetContent();
        const HDC screen = ::GetWindowDC(NULL);
        LOGFONT any = {};
        ::EnumFontFamiliesExA(screen, &any, addBare, 0, 0);
        ::ReleaseDC(NULL, screen);
    }
}

void paintBare(int times) {
    while (times--)
        Stage::the().paintBare("12.00", 5);
}

orv::bench::Work painting(std::shared_ptr<COrvCmbRecord> record) {
    return [record](int times) {
        while (times--)
            record->DrawItem(&Stage::the().dc, Stage::the().row, TRUE);
    };
}

const orv::bench::Rows rows([](orv::bench::Suite& suite) {
    Stage::the();
    suite.add({"pickers", "the list of faces filled / the enumeration with CB_ADDSTRING", 1.3, fillFaces,
               fillBare, 15});
    // One whole row each: ground, frame, name. A shape makes its font for each painting.
    suite.add({"pickers", "a face's row / FillRect and TextOut", 6,
               painting(std::make_shared<CFontObj>("宋体", 1)), paintBare});
    suite.add({"pickers", "a size's row / FillRect and TextOut", 6,
               painting(std::make_shared<CCmbFontSizeData>(12.0)), paintBare});
    suite.add({"pickers", "an alignment's row / FillRect and TextOut", 6,
               painting(std::make_shared<CCmbFontAlignData>(1)), paintBare});
    suite.add({"pickers", "a shape's row / FillRect and TextOut", 12,
               painting(std::make_shared<CCmbFontShapeData>(ORVSHAPE_BOLD)), paintBare});
});

} // namespace
