// SPDX-License-Identifier: MIT
#include "calls/Measure.h"

#include <VQDraw/VQDraw.h>

namespace vq::bench {

namespace {

COLORREF colourOf(const Call& call)
{
    return RGB(static_cast<BYTE>(call.argb >> 16), static_cast<BYTE>(call.argb >> 8), static_cast<BYTE>(call.argb));
}

LONG alphaOf(const Call& call)
{
    return static_cast<LONG>(call.argb >> 24);
}

template <typename Draw>
void add(const std::string& work, const Calls& calls, bool smooth, Draw draw)
{
    const auto make = [smooth] {
        auto image = std::make_unique<CVQDIB>(kSize, kSize);
        image->Clear(RGB(255, 255, 255));
        image->EnableAntialias(smooth);
        return image;
    };
    addMeasure(work, "VQDraw", calls, make, draw, [](CVQDIB&) {});
}

} // namespace

void addOurs(const Calls& calls, const std::string& kind)
{
    const auto line = [](CVQDIB& image, const Call& call) {
        image.Line(call.x, call.y, call.toX, call.toY, colourOf(call), alphaOf(call), 1, false);
    };
    add("Line, smooth/" + kind, calls, true, line);
    add("Line, hard/" + kind, calls, false, line);
    add("FillRect/" + kind, calls, true, [](CVQDIB& image, const Call& call) {
        image.FillRect(CRect(call.x, call.y, call.x + 10, call.y + 10), colourOf(call), alphaOf(call));
    });
    add("Pixel/" + kind, calls, true,
        [](CVQDIB& image, const Call& call) { image.Pixel(call.x, call.y, colourOf(call), alphaOf(call)); });
}

} // namespace vq::bench
