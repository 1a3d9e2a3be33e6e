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
        case EMR_DELETEOBJECT:
            pens_.erase(as<EMRDELETEOBJECT>(record).ihObject);
            brushes_.erase(as<EMRDELETEOBJECT>(record).ihObject);
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
            seen.push_back("path " + strokeText({{}, pen_.width, pen_.color, false, 0}));
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
            pen_ = {PS_NULL, 0, 0};
        else if (object == (ENHMETA_STOCK_OBJECT | BLACK_PEN))
            pen_ = {PS_SOLID, 0, 0};
        else if (auto pen = pens_.find(object); pen != pens_.end())
            pen_ = pen->second;
        else if (auto brush = brushes_.find(object); brush != brushes_.end())
            brush_ = brush->second;
    }

    void draw(std::vector<POINT> points, bool filled) {
        if (inPath_ || (!filled && (pen_.style & PS_STYLE_MASK) == PS_NULL))
            return;
        seen.push_back(strokeText({std::move(points), pen_.width, pen_.color, filled, brush_}));
    }

    std::map<DWORD, Pen> pens_;
    std::map<DWORD, COLORREF> brushes_;
    Pen pen_ = {PS_SOLID, 0, 0};
    COLORREF brush_ = 0xFFFFFF;
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
