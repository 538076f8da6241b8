// A measurement and the reference that it is compared with.
#pragma once

#include <chrono>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace plotvue {

inline constexpr double milliseconds = 1e6, microseconds = 1e3, nanoseconds = 1;

struct Case {
    std::string name;
    std::string unit;
    double nanosecondsAUnit;
    std::function<void()> run;
    std::string referenceName;
    std::function<void()> reference;       // a known cheap operation, in the same unit
    std::function<void()> prepare = [] {}; // runs before each run and is not timed
};

// Prints a line of tab-separated fields: name, unit, reference, the figures of all rounds for the case, and
// those for the reference. Each round times both, each after a run that is not timed and fills the caches.
inline void measure(const Case& timed, int rounds)
{
    const auto once = [&](const std::function<void()>& run) {
        const auto start = std::chrono::steady_clock::now();
        run();
        const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
        return taken.count() / timed.nanosecondsAUnit;
    };
    std::vector<double> figures, ofReference;
    for (int round = 0; round < rounds; ++round) {
        once(timed.reference);
        ofReference.push_back(once(timed.reference));
        timed.prepare();
        once(timed.run);
        timed.prepare();
        figures.push_back(once(timed.run));
    }
    std::cout << timed.name << '\t' << timed.unit << '\t' << timed.referenceName;
    for (const std::vector<double>& all : {figures, ofReference}) {
        std::cout << '\t';
        for (const double figure : all)
            std::cout << figure << ' ';
    }
    std::cout << std::endl;
}

} // namespace plotvue
