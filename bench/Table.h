#pragma once

#include <string>
#include <vector>

/// One measurement of each run; measurements of the same run stand at the same index.
using Samples = std::vector<double>;

/// Each run's (a - part) / b.
Samples Ratios(const Samples& a, const Samples& b, const Samples& part = {});

double Median(Samples samples);
/// "12.3 (12.0-12.9)": the median with the quartiles on both sides.
std::string Spread(const Samples& samples, int digits);
std::string Fixed(double number, int digits);

/// Appends a row to the table of results, in Markdown, and shows it. The file is $KELMORRA_BENCH_TABLE.
struct Row {
    std::string figure, measured, against, ratio, toReach, runs;
};
void Tell(const Row& row);

/// How often each measurement is made: $KELMORRA_BENCH_RUNS, else 15.
int Runs();
