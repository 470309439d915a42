// SPDX-License-Identifier: MIT
#pragma once

#include "calls/Calls.h"

#include <benchmark/benchmark.h>

#include <ctime>
#include <memory>

namespace vq::bench {

/// A benchmark of `draw(surface, call)` for all calls, on a surface of its own that `make()` gives and
/// `finish(surface)` brings to memory.
template <typename Make, typename Draw, typename Finish>
void addMeasure(const std::string& work, const std::string& who, const Calls& calls, Make make, Draw draw,
                Finish finish)
{
    benchmark::RegisterBenchmark((work + "/" + who).c_str(), [=, &calls](benchmark::State& state) {
        const auto surface = make();
        for (auto _ : state) {
            for (const Call& call : calls)
                draw(*surface, call);
            finish(*surface);
            benchmark::ClobberMemory();
        }
    })->Unit(benchmark::kMillisecond);
}

} // namespace vq::bench
