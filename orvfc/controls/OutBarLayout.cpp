#include "OutBarLayout.h"

#include <algorithm>
#include <utility>

namespace orv {

namespace {

constexpr int arrowMargin = 4; // between a scroll arrow and the edges
constexpr int markHalf = 3;    // a drop mark is a row more than twice that high

LONG clamped(LONGLONG value) {
    return static_cast<LONG>(std::clamp<LONGLONG>(value, INT_MIN, INT_MAX));
}

RECT rectOf(LONGLONG left, LONGLONG top, LONGLONG right, LONGLONG bottom) {
    return {clamped(left), clamped(top), clamped(right), clamped(bottom)};
}

// Left and top edges belong to a rectangle, right and bottom ones do not.
bool holds(const RECT& rect, POINT point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

LONGLONG middle(LONG from, LONG to) {
    return (LONGLONG(from) + to) / 2;
}

} // namespace

OutBarLayout::OutBarLayout(const OutBarScene& scene, PartsOf partsOf)
    : scene_(scene), partsOf_(std::move(partsOf)) {
    scene_.firstItem = std::clamp(scene_.firstItem, 0, std::max(0, scene_.items - 1));
}

bool OutBarLayout::folderRect(int folder, RECT& rect) const {
    rect = {};
    if (folder < 0 || folder >= scene_.folders)
        return false;
    const RECT& client = scene_.client;
    const LONGLONG height = scene_.metrics.folderHeight;
    // The first header's upper edge lies above the client area.
    const LONGLONG top = folder <= scene_.open ? client.top - 1 + folder * height
                                               : client.bottom - (LONGLONG(scene_.folders) - folder) * height;
    rect = rectOf(client.left, top, client.right, top + height);
    return true;
}

RECT OutBarLayout::insideRect() const {
    const RECT& client = scene_.client;
    if (scene_.folders <= 0)
        return client;
    const LONGLONG height = scene_.metrics.folderHeight;
    return rectOf(client.left, client.top + (LONGLONG(scene_.open) + 1) * height - 1, client.right,
                  client.bottom - (LONGLONG(scene_.folders) - scene_.open - 1) * height);
}

SIZE OutBarLayout::itemSize(const OutBarParts& parts) const {
    const OutBarMetrics& m = scene_.metrics;
    if (scene_.smallIcons) {
        const LONGLONG gap = parts.icon.cx > 0 ? m.smallLabelGap : 0;
        return {clamped(LONGLONG(parts.icon.cx) + gap + parts.label.cx),
                std::max(parts.icon.cy, parts.label.cy)};
    }
    // The spacing counts here and once more from item to item.
    return {std::max(parts.icon.cx, parts.label.cx),
            clamped(LONGLONG(parts.icon.cy) + parts.label.cy + m.largeLabelGap + m.largeSpacing)};
}

// At least one pixel: a walk over the view ends whatever the sizes are.
LONGLONG OutBarLayout::pitch(const OutBarParts& parts) const {
    const int spacing = scene_.smallIcons ? scene_.metrics.smallSpacing : scene_.metrics.largeSpacing;
    return std::max<LONGLONG>(1, LONGLONG(itemSize(parts).cy) + spacing);
}

OutBarRow OutBarLayout::row(int item) const {
    LONGLONG top = insideRect().top;
    for (int i = scene_.firstItem; i < item; ++i)
        top += pitch(partsOf_(i));
    for (int i = scene_.firstItem; i > item; --i)
        top -= pitch(partsOf_(i - 1));
    return {item, top, partsOf_(item)};
}

bool OutBarLayout::nextRow(OutBarRow& row) const {
    if (row.item + 1 >= scene_.items)
        return false;
    row.top += pitch(row.parts);
    row.parts = partsOf_(++row.item);
    return true;
}

RECT OutBarLayout::itemRect(const OutBarRow& row) const {
    const RECT inside = insideRect();
    return rectOf(inside.left, row.top, inside.right, row.top + itemSize(row.parts).cy);
}

RECT OutBarLayout::iconRect(const OutBarRow& row) const {
    const RECT inside = insideRect();
    const SIZE icon = row.parts.icon;
    if (scene_.smallIcons) {
        const LONGLONG left = LONGLONG(inside.left) + scene_.metrics.leftMargin + 2;
        const LONGLONG top = row.top + scene_.metrics.topMargin;
        return rectOf(left, top, left + icon.cx, top + icon.cy);
    }
    const LONGLONG left = middle(inside.left, inside.right) - icon.cx / 2;
    // Moved up by 3 at the top and by 2 at the bottom: one row higher than the icon.
    return rectOf(left, row.top - 3, left + icon.cx, row.top + icon.cy - 2);
}

RECT OutBarLayout::labelRect(const OutBarRow& row) const {
    const OutBarMetrics& m = scene_.metrics;
    const RECT inside = insideRect();
    const SIZE label = row.parts.label;
    LONGLONG left, top;
    if (scene_.smallIcons) {
        const LONGLONG gap = row.parts.icon.cx > 0 ? m.smallLabelGap : 0;
        left = LONGLONG(inside.left) + row.parts.icon.cx + gap + m.leftMargin + 2;
        // In the middle of the item and its spacing, which is where the icon with its top margin is too.
        top = row.top + (LONGLONG(itemSize(row.parts).cy) + m.smallSpacing - label.cy) / 2 + m.topMargin - 5;
    } else {
        left = middle(inside.left, inside.right) - label.cx / 2;
        top = row.top + itemSize(row.parts).cy - m.largeSpacing - label.cy;
    }
    // What is too wide ends at the edges.
    return rectOf(std::max<LONGLONG>(left, inside.left), top,
                  std::min<LONGLONG>(left + label.cx, inside.right), top + label.cy);
}

int OutBarLayout::lastVisible() const {
    if (scene_.items <= 0)
        return 0;
    const LONG bottom = insideRect().bottom;
    OutBarRow next = row(scene_.firstItem);
    int last = next.item;
    while (nextRow(next) && next.top < bottom)
        last = next.item;
    return last;
}

int OutBarLayout::wholeItems() const {
    if (scene_.items <= 0)
        return 0;
    const LONG bottom = insideRect().bottom;
    int whole = 0;
    OutBarRow next = row(scene_.firstItem);
    do {
        if (itemRect(next).bottom > bottom)
            break;
        ++whole;
    } while (nextRow(next));
    return whole;
}

// An item higher than the view is passed when it is the first one shown.
bool OutBarLayout::itemsBelow() const {
    return scene_.firstItem + std::max(1, wholeItems()) < scene_.items;
}

int OutBarLayout::firstToShow(int item) const {
    if (item < 0 || item >= scene_.items)
        return 0;
    const RECT inside = insideRect();
    LONGLONG left = LONGLONG(inside.bottom) - inside.top - itemSize(partsOf_(item)).cy;
    int first = item;
    while (first > 0) {
        left -= pitch(partsOf_(first - 1));
        if (left < 0)
            break;
        --first;
    }
    return first;
}

bool OutBarLayout::arrowsFit(const RECT& inside, SIZE size) const {
    return LONGLONG(inside.bottom) - inside.top >= 2 * (LONGLONG(size.cy) + arrowMargin) &&
           LONGLONG(inside.right) - inside.left >= LONGLONG(size.cx) + 2 * arrowMargin;
}

RECT OutBarLayout::upArrow(SIZE size) const {
    const RECT inside = insideRect();
    if (!arrowsFit(inside, size))
        return {};
    const LONG right = inside.right - arrowMargin, top = inside.top + arrowMargin;
    return {right - size.cx, top, right, top + size.cy};
}

RECT OutBarLayout::downArrow(SIZE size) const {
    const RECT inside = insideRect();
    if (!arrowsFit(inside, size))
        return {};
    const LONG right = inside.right - arrowMargin, bottom = inside.bottom - arrowMargin;
    return {right - size.cx, bottom - size.cy, right, bottom};
}

int OutBarLayout::folderAt(POINT point) const {
    const RECT& client = scene_.client;
    const LONGLONG height = scene_.metrics.folderHeight;
    if (height <= 0 || scene_.folders <= 0)
        return -1;
    const auto isHit = [&](LONGLONG folder) {
        RECT rect;
        return folder >= 0 && folder < scene_.folders && folderRect(static_cast<int>(folder), rect) &&
               holds(rect, point);
    };
    const LONGLONG above = (LONGLONG(point.y) - client.top + 1) / height;
    if (above <= scene_.open && isHit(above))
        return static_cast<int>(above);
    // The lower stack counts from the bottom.
    const LONGLONG below = scene_.folders - 1 - (LONGLONG(client.bottom) - 1 - point.y) / height;
    return below > scene_.open && isHit(below) ? static_cast<int>(below) : -1;
}

int OutBarLayout::itemAt(POINT point) const {
    const RECT inside = insideRect();
    if (scene_.items <= 0 || !holds(inside, point))
        return -1;
    OutBarRow next = row(scene_.firstItem);
    do {
        if (next.top >= inside.bottom)
            break;
        const bool isHit = scene_.smallIcons ? holds(itemRect(next), point)
                                             : holds(iconRect(next), point) || holds(labelRect(next), point);
        if (isHit)
            return next.item;
    } while (nextRow(next));
    return -1;
}

OutBarHit OutBarLayout::hit(POINT point, int& index) const {
    index = folderAt(point);
    if (index >= 0)
        return OutBarHit::folder;
    index = itemAt(point);
    return index >= 0 ? OutBarHit::item : OutBarHit::none;
}

int OutBarLayout::dropIndex(LONG y) const {
    if (scene_.items <= 0)
        return 0;
    const LONG bottom = insideRect().bottom;
    OutBarRow next = row(scene_.firstItem);
    do {
        if (next.top >= bottom || y < next.top + itemSize(next.parts).cy / 2)
            return next.item;
    } while (nextRow(next));
    return scene_.items;
}

RECT OutBarLayout::dropRect(int index) const {
    const RECT inside = insideRect();
    LONGLONG line = inside.top;
    if (scene_.items > 0) {
        const OutBarRow before = row(std::clamp(index, 0, scene_.items - 1));
        line = index >= scene_.items ? before.top + pitch(before.parts) : before.top;
    }
    // In the middle of the gap between what is drawn above and below.
    if (!scene_.smallIcons)
        line -= scene_.metrics.largeSpacing;
    line = std::min<LONGLONG>(line, LONGLONG(inside.bottom) - markHalf - 1);
    line = std::max<LONGLONG>(line, LONGLONG(inside.top) + markHalf);
    return rectOf(inside.left, line - markHalf, inside.right, line + markHalf + 1);
}

} // namespace orv
