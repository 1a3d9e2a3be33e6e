#include "harness.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace orv::bench {

namespace {

using Clock = std::chrono::steady_clock;

double secondsFor(const Work& work, int times) {
    const auto start = Clock::now();
    work(times);
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// How many times fill a sample; also the warm-up.
int timesFor(const Work& work, double sampleSeconds) {
    constexpr int most = 1 << 28;
    for (int times = 1;; times *= 2) {
        const double seconds = secondsFor(work, times);
        if (seconds >= sampleSeconds || times >= most)
            return times;
        if (seconds > sampleSeconds / 64)
            return std::max(times, static_cast<int>(times * (sampleSeconds / seconds)));
    }
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Result {
    double subject, reference, ratio; // seconds for one time; medians
};

Result measure(const Row& row, int rounds, double sampleSeconds) {
    const int subjectTimes = timesFor(row.subject, sampleSeconds);
    const int referenceTimes = timesFor(row.reference, sampleSeconds);
    std::vector<double> subjects, references, ratios;
    for (int round = 0; round < rounds; ++round) {
        double subject = 0, reference = 0;
        for (int turn = 0; turn < 2; ++turn) {
            const bool subjectsTurn = (round + turn) % 2 == 0; // neither is always the first
            if (subjectsTurn)
                subject = secondsFor(row.subject, subjectTimes) / subjectTimes;
            else
                reference = secondsFor(row.reference, referenceTimes) / referenceTimes;
        }
        subjects.push_back(subject);
        references.push_back(reference);
        ratios.push_back(subject / reference);
    }
    return {median(subjects), median(references), median(ratios)};
}

std::string timeText(double seconds) {
    static const struct {
        double unit;
        const char* name;
    } units[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
    const auto* unit = units;
    while (seconds < unit->unit && unit->unit > 1e-9)
        ++unit;
    char text[32];
    snprintf(text, sizeof text, "%.3g %s", seconds / unit->unit, unit->name);
    return text;
}

std::vector<void (*)(Suite&)>& registered() {
    static std::vector<void (*)(Suite&)> list;
    return list;
}

} // namespace

int Suite::run(const std::string& filter, int rounds, double sampleSeconds) const {
    int measured = 0, beyond = 0;
    std::string group;
    for (const Row& row : rows_) {
        if ((row.group + " " + row.name).find(filter) == std::string::npos)
            continue;
        if (row.group != group || measured == 0) {
            group = row.group;
            printf("\n%-46s %10s %10s %7s %6s\n", group.c_str(), "subject", "reference", "ratio", "aim");
        }
        const int rowRounds = row.mostRounds > 0 ? std::min(row.mostRounds, rounds) : rounds;
        const Result r = measure(row, rowRounds, sampleSeconds);
        const bool isBeyond = r.ratio > row.aim;
        printf("  %-44s %10s %10s %7.3f %6.2f%s\n", row.name.c_str(), timeText(r.subject).c_str(),
               timeText(r.reference).c_str(), r.ratio, row.aim, isBeyond ? "  BEYOND" : "");
        fflush(stdout);
        ++measured;
        beyond += isBeyond;
    }
    printf("\n%d of %d rows within their aim\n", measured - beyond, measured);
    return beyond;
}

Rows::Rows(void (*add)(Suite&)) {
    registered().push_back(add);
}

void Rows::addAll(Suite& suite) {
    for (auto add : registered())
        add(suite);
}

} // namespace orv::bench
