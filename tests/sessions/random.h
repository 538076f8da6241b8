// Random numbers that are the same for the same seed on every system.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace plotvue::sessions {

class Random {
public:
    Random(std::uint32_t seed, std::uint32_t number)
    {
        std::seed_seq both{seed, number};
        engine_.seed(both);
    }

    // From 0 to `limit` - 1. Does not use std::uniform_int_distribution, whose results differ between
    // standard libraries.
    std::size_t below(std::size_t limit) { return engine_() % limit; }
    std::size_t between(std::size_t first, std::size_t last) { return first + below(last - first + 1); }
    bool inPercent(unsigned share) { return below(100) < share; }

    template <typename Item>
    const Item& from(const std::vector<Item>& items)
    {
        return items[below(items.size())];
    }

private:
    std::mt19937 engine_;
};

} // namespace plotvue::sessions
