// Draws a line, stores and loads objects of its own and of the library, catches what the library's archive
// throws.

#include <orvfc/ORVFC.h>

#include <cstdio>

// A serial class of the host.
class CStation : public CObject {
    DECLARE_SERIAL(CStation)

public:
    CString m_strName;
    CPoint m_ptPlace;

    void Serialize(CArchive& ar) override {
        if (ar.IsStoring())
            ar << m_strName << m_ptPlace;
        else
            ar >> m_strName >> m_ptPlace;
    }
};

IMPLEMENT_SERIAL(CStation, CObject, 1)

static int failures = 0;

static void check(bool good, const char* what) {
    if (good)
        return;
    std::printf("consumer: failed: %s\n", what);
    ++failures;
}

static void drawALine() {
    CDC dc;
    dc.CreateCompatibleDC(NULL);
    CBitmap bitmap;
    bitmap.CreateBitmap(200, 20, 1, 32, NULL);
    CBitmap* old = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 200, 20, RGB(255, 255, 255));
    dc.BeginPath();
    dc.MoveTo(0, 10);
    dc.LineTo(200, 10);
    dc.EndPath();
    COrvMainDrawManage manage("");
    check(manage.Draw(&dc, 1, 1, RGB(255, 0, 0)) == 1, "Draw answers 1");
    check(dc.GetPixel(5, 10) == RGB(255, 0, 0), "the dash is red");
    check(dc.GetPixel(20, 10) == RGB(255, 255, 255), "the gap is white");
    check(dc.GetPixel(25, 10) == RGB(255, 0, 0), "the second dash is red");
    dc.SelectObject(old);
}

static void storeAndLoad() {
    CMemFile file;
    CStation station;
    station.m_strName = "南京";
    station.m_ptPlace = CPoint(3, -4);
    COrvDrawManage set;
    set.m_strName = "线型";
    {
        CArchive ar(&file, CArchive::store);
        CStation* p = &station;
        COrvDrawManage* q = &set;
        ar << p << q << p;
    }
    file.SeekToBegin();
    CStation *first = NULL, *again = NULL;
    COrvDrawManage* loaded = NULL;
    {
        CArchive ar(&file, CArchive::load);
        ar >> first >> loaded >> again;
    }
    check(first && first->m_strName == "南京" && first->m_ptPlace == CPoint(3, -4), "the host's object");
    check(again == first, "an object stored twice comes back once");
    check(loaded && loaded->m_strName == "线型", "the library's object");
    delete first;
    delete loaded;

    // Cut in the middle: the exception is thrown inside the library and caught here.
    BYTE cut[] = {1, 0, 0, 0, 40};
    CMemFile hostile(cut, sizeof cut);
    bool caught = false;
    try {
        CArchive ar(&hostile, CArchive::load);
        set.Serialize(ar);
    } catch (CArchiveException* e) {
        caught = e->m_cause == CArchiveException::endOfFile;
        e->Delete();
    }
    check(caught, "the archive's exception arrives");
    check(set.m_strName == "线型", "a failed load changes nothing");
}

int main() {
    AfxWinInit(::GetModuleHandleA(NULL), NULL, ::GetCommandLineA(), 0);
    drawALine();
    storeAndLoad();
    std::printf("consumer: %s\n", failures ? "failed" : "all well");
    return failures ? 1 : 0;
}
