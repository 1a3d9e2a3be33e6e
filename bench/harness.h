#pragma once

// A small side-by-side benchmark. A row compares a subject with a reference by the ratio of their times,
// measured in one run: rounds of subject and reference alternate, and the ratio printed is the median of the
// rounds' ratios, so that a busy machine disturbs both alike. (Google Benchmark times one thing after the
// other and is not packaged for this cross compiler.)
//
// A file of rows, listed in bench/CMakeLists.txt, registers itself:
//
//     static const orv::bench::Rows rows([](orv::bench::Suite& suite) {
//         suite.add({"lines", "spiral, dash, width 1", 1.10,
//                    [&](int times) { while (times--) drawWithLibrary(); },
//                    [&](int times) { while (times--) drawBare(); }});
//     });
//
// What the lambdas use must outlive the run: capture it by value (a shared_ptr) or keep it static.

#include <functional>
#include <string>
#include <vector>

namespace orv::bench {

// Does its work so many times. The loop stands inside, so that nothing but the work is measured.
using Work = std::function<void(int times)>;

struct Row {
    std::string group; // rows of one group are printed under one heading
    std::string name;
    double aim; // the ratio subject / reference is to be at most this
    Work subject;
    Work reference;
    int mostRounds = 0; // fewer than the run's, for work that takes seconds; 0 is no limit
};

// Many short rounds: a neighbour's burst of work spoils a few of them, not the median.
constexpr int defaultRounds = 61;

class Suite {
public:
    void add(Row row) { rows_.push_back(std::move(row)); }

    // Measures the rows whose group or name contains filter (all when it is empty) and prints the table. Each
    // row takes about rounds * 2 * sampleSeconds. Returns the number of rows beyond their aim.
    int run(const std::string& filter, int rounds = defaultRounds, double sampleSeconds = 0.0025) const;

private:
    std::vector<Row> rows_;
};

// Registers a function that adds rows; main calls all of them.
class Rows {
public:
    explicit Rows(void (*add)(Suite&));
    static void addAll(Suite& suite);
};

// Keeps the compiler from dropping a result that nobody reads.
inline void keep(double value) {
    [[maybe_unused]] static volatile double sink;
    sink = value;
}

} // namespace orv::bench
