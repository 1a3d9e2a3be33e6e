// The pickers of line properties against bare calls: filling a list, painting a row.

#include <orvfc/ORVFC.h>

#include "harness.h"
#include "picker_stage.h"

#include <memory>
#include <vector>

namespace {

constexpr int manyRows = 5000;
// Windows and a paper to paint on, made before the first row is measured.
struct Stage : orv::bench::PickerStage {
    CColorCmb colors;
    CComboBox bare;
    CColorSet set;
    COrvMainDrawManage patterns{CString()};

    Stage() {
        const CRect rect(0, 0, 200, 200);
        colors.Create(WS_CHILD, rect, &parent, 1);
        bare.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, rect, &parent, 2);
        set.EmptyAllColors();
        for (int i = 0; i < manyRows; ++i) {
            CString name;
            name.Format("颜色 %d", i);
            set.AddItem(name, static_cast<COLORREF>(i));
        }
    }

    static Stage& the() {
        static Stage& stage = *new Stage;
        return stage;
    }
};

void fillColors(int times) {
    Stage& stage = Stage::the();
    while (times--) {
        stage.colors.ResetContent();
        stage.colors.AddItem(&stage.set);
    }
}

void fillBare(int times) {
    Stage& stage = Stage::the();
    while (times--) {
        stage.bare.ResetContent();
        for (int i = 0; i < manyRows; ++i)
            stage.bare.SetItemData(stage.bare.AddString(stage.set.GetElement(i)->strName), 1);
    }
}

void paintBare(int times) {
    while (times--)
        Stage::the().paintBare("虚点点线", 8);
}

template <class Record>
orv::bench::Work painting(Record record) {
    auto painted = std::make_shared<Record>(record);
    return [painted](int times) {
        while (times--) {
            if constexpr (std::is_same_v<Record, CCmbLineStyleData>)
                painted->DrawItem(&Stage::the().dc, Stage::the().row, TRUE, &Stage::the().patterns);
            else
                painted->DrawItem(&Stage::the().dc, Stage::the().row, TRUE);
        }
    };
}

const orv::bench::Rows rows([](orv::bench::Suite& suite) {
    Stage::the();
    suite.add({"pickers", "5,000 colours into their combo / the same texts and item data added bare", 1.3,
               fillColors, fillBare, 15});
    // One whole row each: ground, frame, sample, name.
    suite.add({"pickers", "a colour's row / FillRect and TextOut", 4,
               painting(CCmbColorData(0xFF, "虚点点线")), paintBare});
    suite.add({"pickers", "a dashed line's row / FillRect and TextOut", 8,
               painting(CCmbLineStyleData(4, "虚点点线")), paintBare});
    suite.add({"pickers", "a width's row / FillRect and TextOut", 4,
               painting(CCmbLineWidthData(3, "虚点点线")), paintBare});
    suite.add({"pickers", "a brush figure's row / FillRect and TextOut", 4,
               painting(CCmbBrushFigureData(3, "虚点点线", 0)), paintBare});
    suite.add(
        {"pickers", "a filling's row / FillRect and TextOut", 4, painting(CCmbFillTypeData(3)), paintBare});
});

} // namespace
