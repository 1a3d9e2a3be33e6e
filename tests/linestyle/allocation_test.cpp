// Drawing a piece must not cost a trip to the heap.

#include <afx.h>

#include <orvfc/linestyle/OrvGraphic.h>

#include <gtest/gtest.h>

#include "stroke_recorder.h"

#include <new>
#include <stdlib.h>

namespace {

size_t allocations = 0;

} // namespace

void* operator new(size_t size) {
    ++allocations;
    if (void* block = malloc(size))
        return block;
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    free(block);
}

void operator delete(void* block, size_t) noexcept {
    free(block);
}

namespace {

template <class Dash>
void expectNoAllocation(int pieces) {
    Dash dash(reinterpret_cast<HDC>(1));
    COrvDrawCurve curve(&dash);
    orv::test::recordStrokes = false;
    orv::test::strokeCount = 0;
    const size_t before = allocations;
    curve.LineTo(100000, 3);
    EXPECT_EQ(before, allocations);
    EXPECT_GE(orv::test::strokeCount, size_t(pieces));
    orv::test::recordStrokes = true;
}

TEST(Walk, TakesNothingFromTheHeap) {
    expectNoAllocation<COrvDrawDashDash>(8000);
    expectNoAllocation<COrvDrawDashDotDot>(8000);
    expectNoAllocation<COrvDrawDashRailway>(7000);
}

} // namespace
