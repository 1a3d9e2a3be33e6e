// Blocks of text: COrvDrawText against the system's own DrawText with word breaking, the growth of its cost
// with the text, and labels.

#include "harness.h"

#include <afxwin.h>

#include <orvfc/text/FontAppFile.h>

#include <memory>
#include <string>

namespace {

constexpr int kWidth = 1000; // pixels of the box and the picture
constexpr int kHeight = 1000;

class Sheet {
public:
    Sheet() {
        dc.CreateCompatibleDC(NULL);
        CClientDC screen(NULL);
        bitmap_.CreateCompatibleBitmap(&screen, kWidth, kHeight);
        old_ = dc.SelectObject(&bitmap_);
        dc.SetBkMode(TRANSPARENT);
    }
    ~Sheet() { dc.SelectObject(old_); }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    CDC dc;

private:
    CBitmap bitmap_;
    CBitmap* old_;
};

struct Stage {
    Sheet sheet;

    static Stage& the() {
        static Stage stage;
        return stage;
    }
};

// Chinese and Latin words with blanks between, so many characters.
CString paragraph(int characters) {
    static const char* const words[] = {"京沪铁路",   " railway ", "自北京至",
                                        " Shanghai ", "全长公里",  " line "};
    CString text;
    for (int count = 0, i = 0; count < characters; ++i) {
        const CString word(words[i % 6]);
        text += word;
        count += i % 2 == 0 ? 4 : word.GetLength();
    }
    return text;
}

std::shared_ptr<COrvDrawText> block() {
    auto text = std::make_shared<COrvDrawText>();
    text->LSetSingleline(FALSE);
    text->LSetRowDist(0);
    text->SetShowRect(CRect(0, 0, kWidth, kHeight));
    return text;
}

// All the objects are made at the first use, when the foundation runs.
template <class Make, class Draw>
orv::bench::Work lazily(Make make, Draw draw) {
    auto made = std::make_shared<decltype(make())>();
    return [=](int times) {
        if (!*made)
            *made = make();
        while (times--)
            draw(**made);
    };
}

struct Block {
    std::shared_ptr<COrvDrawText> text;
    CString content;
};

orv::bench::Work drawBlock(int characters) {
    return lazily(
        [=] {
            return std::make_shared<Block>(Block{block(), paragraph(characters)});
        },
        [](Block& b) { b.text->Draw(&Stage::the().sheet.dc, b.content); });
}

orv::bench::Work layOut(int characters) {
    return lazily(
        [=] {
            return std::make_shared<Block>(Block{block(), paragraph(characters)});
        },
        [](Block& b) {
            CFPRect rect(b.text->LGetFPRect());
            b.text->GetAutoRect(rect, b.content);
            orv::bench::keep(rect.GetHeight());
        });
}

orv::bench::Work drawBySystem(int characters, UINT more) {
    return lazily(
        [=] {
            return std::make_shared<Block>(Block{block(), paragraph(characters)});
        },
        [=](Block& b) {
            CDC& dc = Stage::the().sheet.dc;
            CFont* old = dc.SelectObject(b.text->LGetOrvFont()->GetFont());
            CRect rect(0, 0, kWidth, kHeight);
            dc.DrawText(b.content, &rect, DT_WORDBREAK | DT_NOPREFIX | DT_NOCLIP | more);
            dc.SelectObject(old);
            orv::bench::keep(rect.Height());
        });
}

constexpr int kLabels = 1000;

CRect labelAt(int i) {
    return CRect(CPoint(i % 20 * 50, i / 20 * 20), CSize(50, 20));
}

orv::bench::Work labels(double angle) {
    return lazily(
        [] {
            auto text = block();
            text->InitSingleText();
            return text;
        },
        [=](COrvDrawText& text) {
            for (int i = 0; i < kLabels; ++i) {
                CFPRect rect(labelAt(i));
                rect.SetAngle(angle);
                text.LSetFPRect(rect);
                text.Draw(&Stage::the().sheet.dc, "北京南");
            }
        });
}

orv::bench::Work bareLabels() {
    return lazily(block, [](COrvDrawText& text) {
        CDC& dc = Stage::the().sheet.dc;
        for (int i = 0; i < kLabels; ++i) {
            CFont font;
            text.LGetOrvFont()->CopytoFont(&font);
            CFont* old = dc.SelectObject(&font);
            dc.TextOut(labelAt(i).left, labelAt(i).top, "北京南", 6);
            dc.SelectObject(old);
        }
    });
}

std::string name(const char* what, int characters) {
    return std::string(what) + " " + std::to_string(characters) + " characters";
}

void addTexts(orv::bench::Suite& suite) {
    for (const int characters : {1000, 10000, 40000}) {
        const int rounds = characters > 1000 ? 9 : 0;
        suite.add({"texts in a box, against the system's DrawText with word breaking",
                   name("drawing", characters), 1.5, drawBlock(characters), drawBySystem(characters, 0),
                   rounds});
        suite.add({"texts in a box, against the system's DrawText with word breaking",
                   name("laying out", characters), 1.5, layOut(characters),
                   drawBySystem(characters, DT_CALCRECT), rounds});
    }
    for (const int characters : {2000, 20000, 80000}) {
        suite.add({"texts in a box, twice the text against once", name("drawing", characters), 2.3,
                   drawBlock(characters), drawBlock(characters / 2), 9});
        suite.add({"texts in a box, twice the text against once", name("laying out", characters), 2.3,
                   layOut(characters), layOut(characters / 2), 9});
    }
    for (const double angle : {0.0, 0.5})
        suite.add({"1,000 labels, against a new font and TextOut for each", angle == 0 ? "upright" : "turned",
                   1.5, labels(angle), bareLabels(), 9});
}

const orv::bench::Rows rows(addTexts);

} // namespace
