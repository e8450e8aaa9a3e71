#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

/// Two things measured in turn, so that whatever else the machine does meets both alike.
struct Pairs
{
    std::vector<double> ratios; ///< of each pair: the second one's time to the first one's
    double first = 0;           ///< median time, in seconds
    double second = 0;
};

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/// Runs `first` and `second` `count` times each, in an order that changes with every pair. One more pair before the
/// first is not counted.
template<typename First, typename Second>
Pairs measurePairs(int count, First first, Second second)
{
    const auto timeOf = [](const auto &function) {
        const auto start = std::chrono::steady_clock::now();
        function();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    std::vector<double> firstTimes;
    std::vector<double> secondTimes;
    Pairs pairs;
    for (int i = -1; i < count; ++i) {
        double firstTime = 0;
        double secondTime = 0;
        if (i % 2 == 0) {
            firstTime = timeOf(first);
            secondTime = timeOf(second);
        } else {
            secondTime = timeOf(second);
            firstTime = timeOf(first);
        }
        if (i < 0)
            continue;
        firstTimes.push_back(firstTime);
        secondTimes.push_back(secondTime);
        pairs.ratios.push_back(secondTime / firstTime);
    }
    pairs.first = median(firstTimes);
    pairs.second = median(secondTimes);
    return pairs;
}
