// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Prints one row for each piece of work: our median time, the spread of our runs, and each peer's median with the
/// ratio of ours to it. A benchmark is named `work/size/who`; `who` is "VQDraw" for us. Work that we did not do shows
/// the peers' times alone.
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    using Times = std::vector<double>; // milliseconds, one a repetition

    std::vector<std::string> m_order;
    std::map<std::string, std::map<std::string, Times>> m_works;
};

/// Runs the registered benchmarks and prints the table: the body of a benchmark's main().
int runWithRatios(int argc, char** argv);
