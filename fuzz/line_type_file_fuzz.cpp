// Line-type files and stored curves from any bytes, and a short walk with whatever came of them.

#include <afx.h>

#include <orvfc/linestyle/LineProperBar.h>

#include <memory>

#include "tests/linestyle/stroke_recorder.h"

namespace {

// False when the stream was refused.
template <class T>
bool load(T& object, const uint8_t* data, size_t size) {
    CMemFile file(const_cast<BYTE*>(data), static_cast<UINT>(size));
    CArchive ar(&file, CArchive::load);
    try {
        object.Serialize(ar);
        return true;
    } catch (CException* e) {
        e->Delete();
        ar.Abort();
        return false;
    }
}

void walk(COrvDrawBasicDash& dash) {
    const POINT points[] = {{0, 0}, {50, 10}, {50, 10}, {-7, 60}, {3000, 0}, {3000, 9}};
    const BYTE types[] = {PT_MOVETO, PT_LINETO, PT_LINETO, BYTE(PT_LINETO) | BYTE(PT_CLOSEFIGURE),
                          PT_MOVETO, PT_LINETO};
    dash.m_hDC = reinterpret_cast<HDC>(1);
    COrvDrawCurve curve(&dash);
    curve.MoveTo(1e9, -1e9);
    curve.MoveTo(0, 0);
    curve.PolyDraw(points, types, 6);
    dash.ResetDrawEnvir();
    curve.FinishDraw();
    curve.PolyDraw(points, types, 6);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    orv::test::recordStrokes = false;
    COrvDrawManage set;
    set.InitToGerApp();
    if (!load(set, data, size) && !set.GetDashFromType(4))
        abort(); // a refused file leaves the set as it was
    for (int type : {1, 2, 3, 4, 5, 101})
        if (COrvDrawBasicDash* dash = set.GetDashFromType(type))
            walk(*dash);

    COrvDrawBasicDash none;
    COrvDrawCurve curve(&none);
    if (!load(curve, data, size)) {
        if (curve.m_pDash != &none)
            abort();
        return 0;
    }
    const std::unique_ptr<COrvDrawBasicDash> dash(curve.m_pDash);
    if (!dash)
        return 0;
    curve.LineTo(curve.m_dCurX + 40, curve.m_dCurY + 30);
    walk(*dash);
    return 0;
}
