// SPDX-License-Identifier: MIT
// What one call costs that draws next to nothing, beside cairo and a Qt painter: a line of ten pixels, a rectangle of
// ten by ten, a pixel. A thousand calls at a time: milliseconds are microseconds a call.
#include "calls/Calls.h"
#include "support/RatioReporter.h"

#include <VQDraw/VQDraw.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

vq::bench::Calls makeCalls(std::uint32_t alpha)
{
    std::minstd_rand random(1);
    vq::bench::Calls calls;
    for (int i = 0; i < vq::bench::kCalls; ++i) {
        const auto place = [&random] { return 20 + static_cast<int>(random() % (vq::bench::kSize - 40)); };
        const int x = place();
        const int y = place();
        const double angle = 2 * std::numbers::pi * i / vq::bench::kCalls;
        calls.push_back({x, y, x + static_cast<int>(std::lround(10 * std::cos(angle))),
                         y + static_cast<int>(std::lround(10 * std::sin(angle))),
                         alpha << 24 | (static_cast<std::uint32_t>(random()) & 0xFFFFFF)});
    }
    return calls;
}

} // namespace

int main(int argc, char** argv)
{
    CVQDIB::InitializeGDIPlus();
    const vq::bench::Calls opaque = makeCalls(255);
    const vq::bench::Calls translucent = makeCalls(128);
    for (const auto& [calls, kind] : {std::pair(&opaque, "opaque"), std::pair(&translucent, "half")}) {
        vq::bench::addOurs(*calls, kind);
        vq::bench::addCairo(*calls, kind);
        vq::bench::addQt(*calls, kind);
    }
    const int result = runWithRatios(argc, argv);
    CVQDIB::ShutdownGDIPlus();
    return result;
}
