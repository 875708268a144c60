#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// A ratio of two benchmarks of one run, with the bound it must keep.
struct Ratio {
    std::string name;
    std::string measured;
    std::string baseline;
    double bound;
};

/// Prints the usual table and after it each ratio: the median over the repetitions of the measured
/// benchmark's time divided by the baseline's.
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    explicit RatioReporter(std::vector<Ratio> ratios) : ratios_(std::move(ratios)) {}
    void ReportRuns(const std::vector<Run>& runs) override;
    /// Prints the ratios; true when all keep their bounds.
    bool Conclude() const;

  private:
    std::vector<Ratio> ratios_;
    std::map<std::string, std::vector<double>> seconds_;
};
