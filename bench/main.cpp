// bench [TEXT] [--rounds N]: measures the rows whose group or name contains TEXT. Ends with 0 whatever the
// ratios are, since a busy machine is no fault; 2 for a wrong command line.

#include "harness.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv) {
    std::string filter;
    int rounds = orv::bench::defaultRounds;
    for (int i = 1; i < argc; ++i) {
        if (strcmp(argv[i], "--rounds") == 0 && i + 1 < argc && atoi(argv[i + 1]) > 0)
            rounds = atoi(argv[++i]);
        else if (argv[i][0] != '-' && filter.empty())
            filter = argv[i];
        else {
            fprintf(stderr, "usage: bench [TEXT] [--rounds N]\n");
            return 2;
        }
    }
    orv::bench::Suite suite;
    orv::bench::Rows::addAll(suite);
    suite.run(filter, rounds);
    return 0;
}
