// The streams of stored values: what becomes of damaged ones. Their bytes are looked at where the registry
// holds them.

#include <orvfc/services/StoredStreams.h>

#include <gtest/gtest.h>

#include <string>

#include "afx/afx_test.h"
#include "parcel.h"

using namespace orv;
using test::Parcel;

namespace orv::test {
IMPLEMENT_SERIAL(Parcel, CObject, 3)
}

namespace {

StreamBytes bytes(const char* hex) {
    return test::fromHex<StreamBytes>(hex);
}

} // namespace

TEST(StoredStreams, PointsOfShortArrays) {
    struct {
        const char* bytes;
        StreamOutcome outcome;
        LONG x, y;
    } const rows[] = {
        {"02 00 05 00 00 00 FF FF FF FF", StreamOutcome::good, 5, -1},
        {"03 00 05 00 00 00 06 00 00 00 07 00 00 00", StreamOutcome::good, 5, 6},
        {"01 00 05 00 00 00", StreamOutcome::damaged, 70, 80},
        {"00 00", StreamOutcome::damaged, 70, 80},
        {"05 00 05 00 00 00 06 00 00 00 07 00 00 00 08 00 00 00", StreamOutcome::damaged, 70, 80},
        {"", StreamOutcome::damaged, 70, 80},
    };
    for (const auto& row : rows) {
        POINT point = {70, 80};
        EXPECT_EQ(row.outcome, loadStream(bytes(row.bytes), point)) << row.bytes;
        EXPECT_EQ(row.x, point.x) << row.bytes;
        EXPECT_EQ(row.y, point.y) << row.bytes;
    }
}

// Good streams cut at every byte leave what was there; whole ones are added to it.
TEST(StoredStreams, CutStreamsChangeNothing) {
    const StreamBytes texts = bytes("03 00 03 6F 6E 65 00 05 74 68 72 65 65");
    for (size_t n = 0; n <= texts.size(); ++n) {
        const bool whole = n == texts.size();
        CStringList list;
        list.AddTail("before");
        EXPECT_EQ(whole ? StreamOutcome::good : StreamOutcome::damaged,
                  loadStream(StreamView(texts).first(n), list))
            << n;
        EXPECT_EQ(whole ? 4 : 1, list.GetCount()) << n;
        EXPECT_TRUE(list.GetHead() == "before" && list.GetTail() == (whole ? "three" : "before")) << n;
    }
    const StreamBytes numbers(15, 1);
    for (size_t n = 0; n <= numbers.size(); ++n) {
        RECT rect = {5, 6, 7, 8};
        EXPECT_EQ(StreamOutcome::damaged, loadStream(StreamView(numbers).first(n), rect)) << n;
        EXPECT_TRUE(CRect(rect) == CRect(5, 6, 7, 8)) << n;
    }
}

// Objects that were read whole live on; one that was read in part is deleted.
TEST(StoredStreams, CutObjectListsAreUndone) {
    const StreamBytes stream =
        bytes("02 00 FF FF 03 00 06 00 50 61 72 63 65 6C 05 00 00 00 01 80 06 00 00 00");
    Parcel kept;
    for (size_t n = 0; n < stream.size(); ++n) {
        CObList list;
        list.AddTail(&kept);
        EXPECT_EQ(StreamOutcome::damaged, loadStream(StreamView(stream).first(n), list)) << n;
        EXPECT_EQ(1, list.GetCount()) << n;
        EXPECT_EQ(&kept, list.GetHead()) << n;
        std::set<Parcel*> made = Parcel::all();
        made.erase(&kept);
        EXPECT_EQ(n < 18 ? 0u : 1u, made.size()) << n; // the first one ends at byte 18
        for (Parcel* parcel : made)
            delete parcel;
    }
}
