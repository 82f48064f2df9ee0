#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

/// Times two ways of doing a thing in turn, so that a noisy machine hits both alike, and prints
/// the medians in milliseconds and their ratio.
inline void printRatio(const char *what, int rounds, const std::function<void()> &ours,
                       const std::function<void()> &plain)
{
    const auto timed = [](const std::function<void()> &work) {
        QElapsedTimer timer;
        timer.start();
        work();
        return double(timer.nsecsElapsed()) / 1e6;
    };
    std::vector<double> a, b;
    for (int round = 0; round < rounds; ++round) {
        a.push_back(timed(ours));
        b.push_back(timed(plain));
    }
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    const double mine = a[a.size() / 2];
    const double bare = b[b.size() / 2];
    std::printf("%-44s %9.3f ms %9.3f ms   %6.2f\n", what, mine, bare, mine / bare);
}

inline void printRatioHeader()
{
    std::printf("%-44s %12s %12s   %6s\n", "", "page", "plain Qt", "ratio");
}
