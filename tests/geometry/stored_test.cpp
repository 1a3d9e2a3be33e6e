#include <orvfc/geometry/Extend.h>
#include <orvfc/geometry/FourPointRect.h>
#include <orvfc/geometry/planentity.h>

#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "printing.h"

namespace {

template <class T>
std::vector<BYTE> stored(T value) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    value.Serialize(ar);
    ar.Close();
    std::vector<BYTE> bytes(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

template <class T>
void load(T& value, std::vector<BYTE> bytes) {
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    value.Serialize(ar);
    ar.Close();
}

std::vector<BYTE> doubles(std::initializer_list<double> values) {
    std::vector<BYTE> bytes(values.size() * sizeof(double));
    memcpy(bytes.data(), values.begin(), bytes.size());
    return bytes;
}

// Bytes as laid down, back again, and untouched when the stream ends early.
template <class T>
void roundTrip(const T& value, const std::vector<BYTE>& expected) {
    EXPECT_EQ(stored(value), expected);
    T loaded;
    load(loaded, expected);
    EXPECT_EQ(stored(loaded), expected);
    for (size_t length = 0; length < expected.size(); ++length) {
        T kept(value);
        bool threw = false;
        try {
            load(kept, std::vector<BYTE>(length, 0x3F));
        } catch (CArchiveException* e) {
            threw = true;
            e->Delete();
        }
        EXPECT_TRUE(threw) << length;
        EXPECT_EQ(stored(kept), expected) << length;
    }
}

TEST(Stored, AsDoublesInTheOrderOfTheFields) {
    roundTrip(CPosition(1.5, -2), doubles({1.5, -2}));
    roundTrip(CDouSize(3.25, 4), doubles({3.25, 4}));
    roundTrip(CDouRect(1, 2, 3, 4), doubles({1, 2, 3, 4}));
    roundTrip(CFPDRect(1, 2, 3, 4, 0.5), doubles({1, 2, 3, 4, 0.5}));
}

TEST(Stored, WholeUnitsWithADoubleAngle) {
    std::vector<BYTE> expected{1, 0, 0, 0, 0xFE, 0xFF, 0xFF, 0xFF, 3, 0, 0, 0, 4, 1, 0, 0};
    const std::vector<BYTE> angle = doubles({0.5});
    expected.insert(expected.end(), angle.begin(), angle.end());
    roundTrip(CFPRect(1, -2, 3, 260, 0.5), expected);
}

template <class T>
std::string dumped(const T& value) {
    CMemFile file;
    CDumpContext dc(&file);
    value.Dump(dc);
    std::string text(static_cast<size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(text.data(), static_cast<UINT>(text.size()));
    return text;
}

TEST(Stored, DumpsTellEveryDigit) {
    EXPECT_EQ(dumped(CPosition(0.1, 1e7 + 0.25)), "CPosition (0.10000000000000001, 10000000.25)");
    EXPECT_EQ(dumped(CDouSize(1, -2)), "CDouSize (1, -2)");
    EXPECT_EQ(dumped(CDouRect(1, 2, 3, 4)), "CDouRect (1, 2, 3, 4)");
    EXPECT_EQ(dumped(CFPDRect(1, 2, 3, 4, 0.1)), "CFPDRect (1, 2, 3, 4) turned by 0.10000000000000001");
    EXPECT_EQ(dumped(CFPRect(1, 2, 3, -4, 0.5)), "CFPRect (1, 2, 3, -4) turned by 0.5");
    EXPECT_EQ(dumped(CExtend(2.5)), "CExtend 2.5, class-wide decimals 5");
}

} // namespace
