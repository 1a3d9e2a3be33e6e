#include "metafile_strokes.h"

#include "stroke_text.h"

#include <map>

namespace orv::test {

namespace {

struct Pen {
    UINT style;
    int width;
    COLORREF color;
};

// Plays the records that matter and notes what can be seen.
class Reader {
public:
    std::vector<std::string> seen;

    void read(const ENHMETARECORD& record) {
        switch (record.iType) {
        case EMR_CREATEPEN: {
            const auto& r = as<EMRCREATEPEN>(record);
            pens_[r.ihPen] = {r.lopn.lopnStyle, int(r.lopn.lopnWidth.x), r.lopn.lopnColor};
            break;
        }
        case EMR_EXTCREATEPEN: {
            const auto& r = as<EMREXTCREATEPEN>(record);
            pens_[r.ihPen] = {r.elp.elpPenStyle, int(r.elp.elpWidth), r.elp.elpColor};
            break;
        }
        case EMR_CREATEBRUSHINDIRECT: {
            const auto& r = as<EMRCREATEBRUSHINDIRECT>(record);
            brushes_[r.ihBrush] = r.lb.lbColor;
            break;
        }
        case EMR_EXTCREATEFONTINDIRECTW: {
            const auto& r = as<EMREXTCREATEFONTINDIRECTW>(record);
            fonts_[r.ihFont] = int(r.elfw.elfLogFont.lfEscapement);
            break;
        }
        case EMR_SETTEXTCOLOR:
            now_.textColor = as<EMRSETTEXTCOLOR>(record).crColor;
            break;
        case EMR_SAVEDC:
            saved_.push_back(now_);
            break;
        case EMR_RESTOREDC:
            restore(as<EMRRESTOREDC>(record).iRelative);
            break;
        case EMR_EXTTEXTOUTW:
            write(record, as<EMREXTTEXTOUTW>(record).emrtext);
            break;
        case EMR_FILLRGN: {
            const auto& r = as<EMRFILLRGN>(record);
            const RECT& b = reinterpret_cast<const RGNDATA*>(r.RgnData)->rdh.rcBound;
            char text[96];
            snprintf(text, sizeof(text), "region %d,%d %d,%d fill %06X", int(b.left), int(b.top),
                     int(b.right), int(b.bottom), unsigned(brushes_[r.ihBrush]));
            seen.push_back(text);
            break;
        }
        case EMR_DELETEOBJECT:
            pens_.erase(as<EMRDELETEOBJECT>(record).ihObject);
            brushes_.erase(as<EMRDELETEOBJECT>(record).ihObject);
            fonts_.erase(as<EMRDELETEOBJECT>(record).ihObject);
            break;
        case EMR_SELECTOBJECT:
            select(as<EMRSELECTOBJECT>(record).ihObject);
            break;
        case EMR_MOVETOEX:
            position_ = point(as<EMRMOVETOEX>(record).ptl);
            break;
        case EMR_LINETO: {
            const POINT to = point(as<EMRLINETO>(record).ptl);
            draw({position_, to}, false);
            position_ = to;
            break;
        }
        case EMR_POLYLINE:
        case EMR_POLYGON: {
            const auto& r = as<EMRPOLYLINE>(record);
            draw(points(r.aptl, r.cptl), record.iType == EMR_POLYGON);
            break;
        }
        case EMR_POLYLINE16:
        case EMR_POLYGON16: {
            const auto& r = as<EMRPOLYLINE16>(record);
            draw(points(r.apts, r.cpts), record.iType == EMR_POLYGON16);
            break;
        }
        case EMR_BEGINPATH:
            inPath_ = true;
            break;
        case EMR_ENDPATH:
            inPath_ = false;
            break;
        case EMR_STROKEPATH:
            seen.push_back("path " + strokeText({{}, now_.pen.width, now_.pen.color, false, 0}));
            break;
        }
    }

private:
    template <class Record>
    static const Record& as(const ENHMETARECORD& record) {
        return reinterpret_cast<const Record&>(record);
    }
    template <class Point>
    static POINT point(const Point& p) {
        return {p.x, p.y};
    }
    template <class Point>
    static std::vector<POINT> points(const Point* p, DWORD count) {
        std::vector<POINT> all;
        for (DWORD i = 0; i < count; ++i)
            all.push_back(point(p[i]));
        return all;
    }

    void select(DWORD object) {
        if (object == (ENHMETA_STOCK_OBJECT | NULL_PEN))
            now_.pen = {PS_NULL, 0, 0};
        else if (object == (ENHMETA_STOCK_OBJECT | BLACK_PEN))
            now_.pen = {PS_SOLID, 0, 0};
        else if (auto pen = pens_.find(object); pen != pens_.end())
            now_.pen = pen->second;
        else if (auto brush = brushes_.find(object); brush != brushes_.end())
            now_.brush = brush->second;
        else if (auto font = fonts_.find(object); font != fonts_.end())
            now_.escapement = font->second;
    }

    // level: negative, counted back from the last one saved, or the number of one.
    void restore(int level) {
        const size_t kept = level < 0 ? saved_.size() + level : size_t(level - 1);
        if (kept >= saved_.size())
            return;
        now_ = saved_[kept];
        saved_.resize(kept);
    }

    void write(const ENHMETARECORD& record, const EMRTEXT& text) {
        const auto* wide =
            reinterpret_cast<const WCHAR*>(reinterpret_cast<const BYTE*>(&record) + text.offString);
        char bytes[512] = "";
        const int count =
            ::WideCharToMultiByte(936, 0, wide, int(text.nChars), bytes, sizeof(bytes) - 1, NULL, NULL);
        char part[64];
        snprintf(part, sizeof(part), "text %d,%d ", int(text.ptlReference.x), int(text.ptlReference.y));
        std::string line = part + std::string(bytes, size_t(count));
        snprintf(part, sizeof(part), " %06X", unsigned(now_.textColor));
        line += part;
        if (now_.escapement != 0)
            line += " turned " + std::to_string(now_.escapement);
        seen.push_back(line);
    }

    void draw(std::vector<POINT> points, bool filled) {
        if (inPath_ || (!filled && (now_.pen.style & PS_STYLE_MASK) == PS_NULL))
            return;
        seen.push_back(strokeText({std::move(points), now_.pen.width, now_.pen.color, filled, now_.brush}));
    }

    struct State {
        Pen pen = {PS_SOLID, 0, 0};
        COLORREF brush = 0xFFFFFF;
        int escapement = 0;
        COLORREF textColor = 0;
    };

    State now_;
    std::map<DWORD, Pen> pens_;
    std::map<DWORD, int> fonts_;
    std::vector<State> saved_;
    std::map<DWORD, COLORREF> brushes_;
    POINT position_ = {0, 0};
    bool inPath_ = false;
};

int CALLBACK readRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM reader) {
    reinterpret_cast<Reader*>(reader)->read(*record);
    return 1;
}

} // namespace

std::vector<std::string> visibleStrokes(HENHMETAFILE file) {
    Reader reader;
    ::EnumEnhMetaFile(NULL, file, readRecord, &reader, NULL);
    return std::move(reader.seen);
}

} // namespace orv::test
