// Bitmaps and device contexts.

#include "cdib.h"
#include "DibInfo.h"
#include "DibTurn.h"

#include <algorithm>
#include <cmath>
#include <vector>

using orv::handleOf;

namespace {

// Puts a device context back as it was.
class SavedDc {
public:
    explicit SavedDc(HDC dc) : dc_(dc), state_(::SaveDC(dc)) {}
    ~SavedDc() {
        if (state_ != 0)
            ::RestoreDC(dc_, state_);
    }
    SavedDc(const SavedDc&) = delete;
    SavedDc& operator=(const SavedDc&) = delete;

private:
    HDC dc_;
    int state_;
};

// Where colours are few the picture's palette is asked for; drawing takes no colours away from others.
void selectPalette(HDC dc, HPALETTE palette) {
    if (palette != NULL && (::GetDeviceCaps(dc, RASTERCAPS) & RC_PALETTE) != 0) {
        ::SelectPalette(dc, palette, TRUE);
        ::RealizePalette(dc);
    }
}

// Beyond the system's coordinates lies nothing.
POINT moved(CPoint point, CSize by) {
    const auto sum = [](LONG a, LONG b) {
        return LONG(std::clamp<LONGLONG>(LONGLONG(a) + b, INT_MIN, INT_MAX));
    };
    return {sum(point.x, by.cx), sum(point.y, by.cy)};
}

// The system draws mirrored pictures a pixel further right or down than their rectangle.
void moveMirrored(HDC dc, CPoint origin, CSize size) {
    POINT corners[2] = {origin, moved(origin, size)};
    ::LPtoDP(dc, corners, 2);
    ::OffsetViewportOrgEx(dc, corners[1].x < corners[0].x ? -1 : 0, corners[1].y < corners[0].y ? -1 : 0,
                          NULL);
}

bool isDone(int lines) {
    return lines != 0 && lines != int(GDI_ERROR);
}

// Logical units become device pixels, y downwards.
void useDevicePixels(HDC dc) {
    if (::GetGraphicsMode(dc) == GM_ADVANCED)
        ::ModifyWorldTransform(dc, NULL, MWT_IDENTITY);
    ::SetMapMode(dc, MM_TEXT);
    ::SetWindowOrgEx(dc, 0, 0, NULL);
    ::SetViewportOrgEx(dc, 0, 0, NULL);
}

// A picture turned onto a device, a band of rows at a time.
class TurnedDrawing {
public:
    TurnedDrawing(HDC dc, const orv::PlainRows& plain, const orv::DibTurn& turn, const RECT& box)
        : dc_(dc), plain_(plain), turn_(turn), box_(box), info_(plain.info) {
        stride_ = (size_t(box.right - box.left) * plain.rows.bitCount + 31) / 32 * 4;
    }
    bool draw();

private:
    bool band(int top, int bottom);
    bool clip();

    static constexpr size_t bandBytes = 1 << 20;
    static constexpr size_t mostBandRows = 256;

    HDC dc_;
    const orv::PlainRows& plain_;
    const orv::DibTurn& turn_;
    RECT box_;
    orv::DibInfo info_;
    size_t stride_;
    std::vector<BYTE> rows_;
    std::vector<RECT> spans_;
};

bool TurnedDrawing::draw() {
    const int height = int(std::clamp(bandBytes / stride_, size_t(1), mostBandRows));
    rows_.resize(stride_ * height);
    for (int top = box_.top; top < box_.bottom; top += height) {
        if (!band(top, std::min<int>(top + height, box_.bottom)))
            return false;
    }
    return true;
}

bool TurnedDrawing::band(int top, int bottom) {
    spans_.clear();
    for (int y = top; y < bottom; ++y) {
        int first, last;
        if (!turn_.span(y, box_.left, box_.right, first, last))
            continue;
        turn_.copy(plain_.rows, y, first, last, &rows_[stride_ * (y - top)], box_.left);
        spans_.push_back({first, y, last, y + 1});
    }
    if (spans_.empty())
        return true;
    const SavedDc saved(dc_);
    if (!clip())
        return false;
    const int width = box_.right - box_.left;
    info_.header.biWidth = width;
    info_.header.biHeight = top - bottom; // from the top down
    info_.header.biSizeImage = DWORD(stride_ * (bottom - top));
    return isDone(::SetDIBitsToDevice(dc_, box_.left, top, width, bottom - top, 0, 0, 0, bottom - top,
                                      rows_.data(), info_.get(), DIB_RGB_COLORS));
}

// Nothing outside the spans is touched.
bool TurnedDrawing::clip() {
    std::vector<BYTE> data(sizeof(RGNDATAHEADER) + spans_.size() * sizeof(RECT));
    const RGNDATAHEADER header = {sizeof(header), RDH_RECTANGLES, DWORD(spans_.size()),
                                  DWORD(spans_.size() * sizeof(RECT)), box_};
    memcpy(data.data(), &header, sizeof(header));
    memcpy(data.data() + sizeof(header), spans_.data(), spans_.size() * sizeof(RECT));
    const HRGN region =
        ::ExtCreateRegion(NULL, DWORD(data.size()), reinterpret_cast<const RGNDATA*>(data.data()));
    const bool clipped = region != NULL && ::ExtSelectClipRgn(dc_, region, RGN_AND) != ERROR;
    if (region != NULL)
        ::DeleteObject(region);
    return clipped;
}

// The upright box of a parallelogram, cut to what is visible. A metafile has no clipping box; there the
// coordinates it can record are the limit.
void visibleBox(HDC dc, const orv::DibVector (&corners)[4], RECT& box) {
    constexpr LONG most = 0x7FFF;
    if (::GetClipBox(dc, &box) == ERROR)
        box = {-most, -most, most, most};
    for (int i = 0; i < 2; ++i) {
        const auto at = [&](int corner) { return i == 0 ? corners[corner].x : corners[corner].y; };
        const double least = std::floor(std::min({at(0), at(1), at(2), at(3)}));
        const double most = std::ceil(std::max({at(0), at(1), at(2), at(3)}));
        LONG& from = i == 0 ? box.left : box.top;
        LONG& to = i == 0 ? box.right : box.bottom;
        if (!(least < to && most > from))
            from = to;
        else {
            from = LONG(std::max<double>(from, least));
            to = LONG(std::min<double>(to, most));
        }
    }
}

bool drawTurned(HDC dc, HPALETTE palette, const orv::PlainRows& plain, CPoint origin, CSize size,
                double angle) {
    POINT edges[3] = {origin, moved(origin, CSize(size.cx, 0)), moved(origin, CSize(0, size.cy))};
    ::LPtoDP(dc, edges, 3);
    const orv::DibVector corner = {double(edges[0].x), double(edges[0].y)};
    const auto edge = [&](int i) {
        return orv::turned({edges[i].x - corner.x, edges[i].y - corner.y}, angle);
    };
    const orv::DibVector across = edge(1), down = edge(2);
    const orv::DibTurn turn(corner, across, down, plain.layout.width, plain.layout.height);
    if (!turn.isDrawable())
        return false;
    const SavedDc saved(dc);
    selectPalette(dc, palette);
    useDevicePixels(dc);
    RECT box;
    const orv::DibVector corners[4] = {corner,
                                       {corner.x + across.x, corner.y + across.y},
                                       {corner.x + down.x, corner.y + down.y},
                                       {corner.x + across.x + down.x, corner.y + across.y + down.y}};
    visibleBox(dc, corners, box);
    if (box.left >= box.right || box.top >= box.bottom)
        return true;
    try {
        return TurnedDrawing(dc, plain, turn, box).draw();
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// Whether a display is left what it shows of a picture and no more. Pictures of many more pixels than there
// is place for some systems turn all into the display's own pixels before they choose the few: seconds and a
// gigabyte for a large sheet. In places of sides near the ends of their numbers they divide by zero.
// Metafiles and printers get the whole picture.
bool isForDisplay(HDC dc, const orv::DibLayout& layout, CPoint origin, CSize size, bool smooth) {
    const DWORD kind = ::GetObjectType(dc);
    if ((kind != OBJ_DC && kind != OBJ_MEMDC) || ::GetDeviceCaps(dc, TECHNOLOGY) != DT_RASDISPLAY)
        return false;
    POINT corners[2] = {origin, moved(origin, size)};
    ::LPtoDP(dc, corners, 2);
    const double width = std::fabs(double(corners[1].x) - corners[0].x);
    const double height = std::fabs(double(corners[1].y) - corners[0].y);
    constexpr double longest = 1 << 30, farLarger = 4;
    if (width > longest || height > longest)
        return true;
    const double place = width * height;
    return !smooth && place > 0 && double(layout.width) * layout.height > farLarger * place;
}

} // namespace

UINT COrvDib::UsePalette(CDC* pDC, int background) {
    const HDC dc = handleOf(pDC);
    if (m_hPal == NULL || dc == NULL)
        return 0;
    ::SelectPalette(dc, m_hPal, background != 0);
    return ::RealizePalette(dc);
}

BOOL COrvDib::SetSystemPalette(CDC* pDC) {
    const HDC dc = handleOf(pDC);
    if (m_pInfoHeader == NULL || m_nColorTableEntries != 0 || dc == NULL)
        return FALSE;
    const HPALETTE palette = ::CreateHalftonePalette(dc);
    if (palette == NULL)
        return FALSE;
    if (m_hPal != NULL)
        ::DeleteObject(m_hPal);
    m_hPal = palette;
    return TRUE;
}

BOOL COrvDib::Draw(CDC* pDC, CPoint origin, CSize size) {
    const HDC dc = handleOf(pDC);
    const orv::PlainRows plain(*this);
    if (dc == NULL || !plain.isGood() || size.cx == 0 || size.cy == 0)
        return FALSE;
    const bool smooth = ::GetStretchBltMode(dc) == HALFTONE;
    if (isForDisplay(dc, plain.layout, origin, size, smooth))
        return drawTurned(dc, m_hPal, plain, origin, size, 0);
    const SavedDc saved(dc);
    selectPalette(dc, m_hPal);
    if (!smooth)
        ::SetStretchBltMode(dc, COLORONCOLOR);
    moveMirrored(dc, origin, size);
    return isDone(::StretchDIBits(dc, origin.x, origin.y, size.cx, size.cy, 0, 0, plain.layout.width,
                                  plain.layout.height, plain.rows.bits, plain.info.get(), DIB_RGB_COLORS,
                                  SRCCOPY));
}

BOOL COrvDib::Draw(CDC* pDC, CPoint origin, CSize size, double angle) {
    const HDC dc = handleOf(pDC);
    const orv::PlainRows plain(*this);
    if (dc == NULL || !plain.isGood() || !std::isfinite(angle))
        return FALSE;
    return drawTurned(dc, m_hPal, plain, origin, size, angle);
}

HBITMAP COrvDib::CreateSection(CDC* pDC) {
    orv::DibLayout layout;
    if (m_pBits != NULL || !orv::layoutOf(*this, layout) || layout.isRunLength())
        return NULL;
    orv::DibInfo info;
    orv::fillInfo(*this, layout, info);
    void* bits = NULL;
    m_hSection = ::CreateDIBSection(handleOf(pDC), info.get(), DIB_RGB_COLORS, &bits, NULL, 0);
    if (m_hSection == NULL)
        return NULL;
    m_pBits = static_cast<BYTE*>(bits);
    m_nBitsOwner = ownerNobody;
    // The section holds the rows and nothing behind them; a size field that promised more would be a lie.
    m_dwImageBytes = layout.rowsBytes;
    if (m_pInfoHeader->biSizeImage > layout.rowsBytes)
        m_pInfoHeader->biSizeImage = layout.rowsBytes;
    return m_hSection;
}

HBITMAP COrvDib::CreateBitmap(CDC* pDC) {
    const HDC dc = handleOf(pDC);
    const orv::PlainRows plain(*this);
    if (dc == NULL || !plain.isGood())
        return NULL;
    const SavedDc saved(dc);
    selectPalette(dc, m_hPal);
    return ::CreateDIBitmap(dc, &plain.info.header, CBM_INIT, plain.rows.bits, plain.info.get(),
                            DIB_RGB_COLORS);
}
