#include "Table.h"

#include "support/Setting.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>

namespace {

/// The value that the given part of the sorted samples lies below, interpolated.
double Quantile(const Samples& sorted, double part) {
    const double place = part * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<size_t>(place);
    const size_t above = std::min(below + 1, sorted.size() - 1);
    return std::lerp(sorted.at(below), sorted.at(above), place - static_cast<double>(below));
}

} // namespace

Samples Ratios(const Samples& a, const Samples& b, const Samples& part) {
    Samples ratios;
    for (size_t run = 0; run < a.size(); ++run)
        ratios.push_back((a[run] - (part.empty() ? 0 : part.at(run))) / b.at(run));
    return ratios;
}

std::string Fixed(double number, int digits) {
    char text[64]{};
    std::snprintf(text, sizeof text, "%.*f", digits, number);
    return text;
}

double Median(Samples samples) {
    std::ranges::sort(samples);
    return Quantile(samples, 0.5);
}

std::string Spread(const Samples& samples, int digits) {
    Samples sorted = samples;
    std::ranges::sort(sorted);
    return Fixed(Quantile(sorted, 0.5), digits) + " (" + Fixed(Quantile(sorted, 0.25), digits) + "-" +
           Fixed(Quantile(sorted, 0.75), digits) + ")";
}

void Tell(const Row& row) {
    std::string line;
    for (const std::string& cell : {row.figure, row.measured, row.against, row.ratio, row.toReach, row.runs})
        line += "| " + cell + (cell.empty() ? "" : " ");
    line += "|\n";
    std::ofstream(std::getenv("KELMORRA_BENCH_TABLE"), std::ios::binary | std::ios::app) << line;
    std::fputs(line.c_str(), stdout);
    std::fflush(stdout);
}

int Runs() { return static_cast<int>(Setting("KELMORRA_BENCH_RUNS", 15)); }
