#pragma once

// Where everything of the outlook bar lies, and what lies under a point. Rows are walked from the first one
// shown, so that painting and hit tests cost what is in view, however many items the folder has. Client
// coordinates in pixels; sums are taken in 64 bits and end at the limits of a LONG.

#include <wintypes.h>

#include <functional>

namespace orv {

// Pixels; the control's fields of the same meaning.
struct OutBarMetrics {
    int folderHeight = 22;
    int smallLabelGap = 4; // between a small icon and its label
    int largeLabelGap = 3; // between a large icon and its label
    int smallSpacing = 10;
    int largeSpacing = 8;
    int leftMargin = 5; // of small icons
    int topMargin = 5;
};

struct OutBarParts {
    SIZE icon;  // (0, 0) without one
    SIZE label; // in the large view broken into the inside rectangle's width
};

struct OutBarScene {
    RECT client = {};
    OutBarMetrics metrics;
    bool smallIcons = false;
    int folders = 0;
    int open = -1; // the open folder
    int items = 0; // of the folder that is laid out
    int firstItem = 0;
};

// One item and where its rectangle begins.
struct OutBarRow {
    int item;
    LONGLONG top;
    OutBarParts parts;
};

enum class OutBarHit { none = -1, folder = 0, item = 1, upArrow = 2, downArrow = 3 };

class OutBarLayout {
public:
    // The sizes of one item; asked for items in view only, and for those on the way to a row that is asked
    // for.
    using PartsOf = std::function<OutBarParts(int item)>;

    OutBarLayout(const OutBarScene& scene, PartsOf partsOf);

    // False, and an empty rectangle, when there is no such folder.
    bool folderRect(int folder, RECT& rect) const;
    // The open folder's contents; may be empty or inverted when the headers leave no room.
    RECT insideRect() const;

    int items() const { return scene_.items; }
    SIZE itemSize(const OutBarParts& parts) const;
    OutBarRow row(int item) const;
    bool nextRow(OutBarRow& row) const; // false behind the last item
    RECT itemRect(const OutBarRow& row) const;
    RECT iconRect(const OutBarRow& row) const;
    RECT labelRect(const OutBarRow& row) const;

    // The last item whose rectangle begins above the inside bottom, at least the first one shown; 0 without
    // items.
    int lastVisible() const;
    // Items shown whole, from the first one on.
    int wholeItems() const;
    // There is more to scroll to.
    bool itemsBelow() const;
    // The first item that lets `item` be seen whole at the bottom, and the furthest one to scroll to.
    int firstToShow(int item) const;
    int furthestFirst() const { return firstToShow(scene_.items - 1); }

    // Scroll arrows of that size at the right end of the inside rectangle's edges; empty where there is no
    // room for both.
    RECT upArrow(SIZE size) const;
    RECT downArrow(SIZE size) const;

    // index: the folder or item hit, -1 for the others. Headers come before items; where headers overlap,
    // the first one is hit.
    OutBarHit hit(POINT point, int& index) const;

    // Where an item dropped at this height would be inserted, among those in view.
    int dropIndex(LONG y) const;
    // The mark at that place: a strip across the inside rectangle.
    RECT dropRect(int index) const;

private:
    LONGLONG pitch(const OutBarParts& parts) const;
    int folderAt(POINT point) const;
    int itemAt(POINT point) const;
    bool arrowsFit(const RECT& inside, SIZE size) const;

    OutBarScene scene_;
    PartsOf partsOf_;
};

} // namespace orv
