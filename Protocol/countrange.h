#pragma once

#include <limits>

/// A maximum that no count reaches.
constexpr int kAnyCount = std::numeric_limits<int>::max();

/// A minimum and a maximum count, both inclusive.
struct CountRange {
    int min = 0;
    int max = 0;

    bool contains(int count) const { return count >= min && count <= max; }
    friend bool operator==(const CountRange& a, const CountRange& b)
    {
        return a.min == b.min && a.max == b.max;
    }
    friend bool operator!=(const CountRange& a, const CountRange& b) { return !(a == b); }
};
