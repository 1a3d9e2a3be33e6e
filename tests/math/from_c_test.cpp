#include <gtest/gtest.h>

extern "C" int callAllFromC(void);

TEST(FromC, EveryFunctionLinksAndAnswers) {
    EXPECT_EQ(callAllFromC(), 22);
}
