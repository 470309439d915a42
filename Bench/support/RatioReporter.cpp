// SPDX-License-Identifier: MIT
#include "support/RatioReporter.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr const char* kUs = "VQDraw";

double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

bool RatioReporter::ReportContext(const Context&)
{
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const std::string name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        const std::string work = name.substr(0, slash);
        if (!m_works.contains(work))
            m_order.push_back(work);
        m_works[work][name.substr(slash + 1)].push_back(run.real_accumulated_time * 1e3 /
                                                        static_cast<double>(run.iterations));
    }
}

void RatioReporter::Finalize()
{
    std::printf("%-36s %9s %15s   peers: median ms (ours / theirs)\n", "work", "ours ms", "min .. max");
    for (const std::string& work : m_order) {
        const auto& times = m_works[work];
        const auto own = times.find(kUs);
        const bool haveOwn = own != times.end();
        std::printf("%-36s ", work.c_str());
        if (haveOwn) {
            const auto [least, most] = std::minmax_element(own->second.begin(), own->second.end());
            std::printf("%9.3f %7.3f ..%6.3f  ", median(own->second), *least, *most);
        } else {
            std::printf("%9s %7s ..%6s  ", "-", "-", "-");
        }
        for (const auto& [who, theirs] : times) {
            if (who == kUs)
                continue;
            std::printf(" %s %.3f", who.c_str(), median(theirs));
            if (haveOwn)
                std::printf(" (%.2f)", median(own->second) / median(theirs));
        }
        std::printf("\n");
    }
}

int runWithRatios(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
