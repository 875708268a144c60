#include "ratios.h"

#include <algorithm>
#include <cstdio>

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs)
        if (run.run_type == Run::RT_Iteration && !run.error_occurred)
            seconds_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                           static_cast<double>(run.iterations));
    ConsoleReporter::ReportRuns(runs);
}

bool RatioReporter::Conclude() const {
    const auto median = [this](const std::string& name) {
        const auto it = seconds_.find(name);
        if (it == seconds_.end() || it->second.empty())
            return 0.0;
        std::vector<double> sorted = it->second;
        std::sort(sorted.begin(), sorted.end());
        return sorted[sorted.size() / 2];
    };
    bool kept = true;
    std::printf("\n%-52s %10s %10s %7s %7s\n", "ratio (medians)", "ms", "bare ms", "ratio", "bound");
    for (const Ratio& ratio : ratios_) {
        const double measured = median(ratio.measured), baseline = median(ratio.baseline);
        if (measured == 0 || baseline == 0)
            continue;  // filtered out on the command line
        const bool in_bound = measured / baseline <= ratio.bound;
        kept = kept && in_bound;
        std::printf("%-52s %10.2f %10.2f %7.2f %7.2f%s\n", ratio.name.c_str(), measured * 1e3, baseline * 1e3,
                    measured / baseline, ratio.bound, in_bound ? "" : "  ABOVE THE BOUND");
    }
    return kept;
}
