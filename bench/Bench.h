#pragma once

#include <QElapsedTimer>
#include <QList>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <type_traits>
#include <vector>

// What the benchmarks share: a road of the desk is run in turns with its floor and becomes one row of bench.sh's table.
// A new road is one line: bench::Compare("load a station", 1.7, [] { … }, [] { … });
namespace bench {

constexpr std::size_t kFewestPairs = 9;
constexpr std::size_t kMostPairs = 400;
constexpr double kQuiet = 0.01; // of the median: the standard error at which a ratio counts as known

// Ends the program when what is measured went wrong: a fast wrong answer is no measure.
inline void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "benchmark: %s\n", what);
    std::exit(2);
}

// `values` is not empty; `part` from 0 to 1.
inline double Quantile(std::vector<double> values, double part)
{
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

inline double Median(const std::vector<double>& values)
{
    return Quantile(values, 0.5);
}

// Milliseconds of a work: those it returns, or else those that it takes.
template <class Work>
double Milliseconds(Work&& work)
{
    QElapsedTimer timer;
    timer.start();
    if constexpr (std::is_void_v<decltype(work())>) {
        work();
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    } else {
        return work();
    }
}

// One row for bench.sh, which tells whether the limit holds. Fields are separated by tabs.
inline void Row(const char* road, double ours, double floor, double ratio, double limit, const char* unit = "ms")
{
    const auto digits = [](double value) { return value >= 100 ? 0 : value >= 1 ? 1 : 3; };
    std::printf("%s\t%.*f %s\t%.*f %s\t%.2f\t%.2f\n", road, digits(ours), ours, unit, digits(floor), floor, unit, ratio,
                limit);
    std::fflush(stdout);
}

// The standard error of the median, as a part of it, by the distance of the quartiles.
inline double Unrest(const std::vector<double>& ratios)
{
    const double deviation = (Quantile(ratios, 0.75) - Quantile(ratios, 0.25)) / 1.35;
    return 1.25 * deviation / std::sqrt(static_cast<double>(ratios.size())) / Median(ratios);
}

// Runs both works in turns, so that both meet the same machine, until their ratio is known or the seconds are over. The
// first pair warms up.
template <class Ours, class Floor>
void Compare(const char* road, double limit, Ours&& ours, Floor&& floor, double seconds = 10)
{
    std::vector<double> times;
    std::vector<double> floors;
    std::vector<double> ratios;
    Milliseconds(ours);
    Milliseconds(floor);
    QElapsedTimer whole;
    whole.start();
    while (ratios.size() < kMostPairs) {
        times.push_back(Milliseconds(ours));
        floors.push_back(Milliseconds(floor));
        ratios.push_back(times.back() / floors.back());
        const bool known = ratios.size() >= kFewestPairs && Unrest(ratios) < kQuiet;
        if (ratios.size() >= 3 && (known || static_cast<double>(whole.elapsed()) > seconds * 1000))
            break;
    }
    Row(road, Median(times), Median(floors), Median(ratios), limit);
}

} // namespace bench
