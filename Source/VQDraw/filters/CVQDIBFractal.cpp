// SPDX-License-Identifier: MIT
// Random clouds by displaced midpoints.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/BlendRows.h"

#include <cstdlib>

namespace {

constexpr LONG kFirstStep = 256;
constexpr LONG kLastStep = 2;

/// One draw around a height; the range shrinks with the step.
int drawAround(int height, LONG step)
{
    const int range = 8 * static_cast<int>(step) + 20;
    return std::rand() % range - range / 2 + height;
}

/// A height of random distance from `height`. Each test has a draw of its own, deliberately; the third one is used as
/// it comes and may leave 0 .. 255.
int displaced(int height, LONG step)
{
    if (drawAround(height, step) < 0)
        return 0;
    if (drawAround(height, step) >= 256)
        return 255;
    return drawAround(height, step);
}

int blueAt(const CVQDIB& image, LONG x, LONG y)
{
    return static_cast<int>(image.GetColor(x % image.GetWidth(), y % image.GetHeight()) & 0xFF);
}

/// Coordinates beyond the image are wrapped round once; what is still outside is skipped.
void blendAt(CVQDIB& image, LONG x, LONG y, const vq::Tint& tint)
{
    x = x >= image.GetWidth() ? x - image.GetWidth() : x;
    y = y >= image.GetHeight() ? y - image.GetHeight() : y;
    if (x >= image.GetWidth() || y >= image.GetHeight())
        return;
    ULONG& pixel = image(x, y);
    pixel = vq::tinted(pixel, tint);
}

/// Blends a colour into the middle of the upper edge, the centre and the middle of the left edge of a square.
void displaceMiddles(CVQDIB& image, LONG x, LONG y, LONG step, LONG weight)
{
    const int corner = blueAt(image, x, y);
    const int right = blueAt(image, x + step, y);
    const int below = blueAt(image, x, y + step);
    const int opposite = blueAt(image, x + step, y + step);
    vq::Tint tint{};
    tint.red = displaced((corner + right) / 2, step); // the order of these three decides which draw goes where
    tint.green = displaced((corner + right + below + opposite) / 4, step);
    tint.blue = displaced((corner + below) / 2, step);
    tint.weight = weight;
    const LONG half = step / 2;
    blendAt(image, x + half, y, tint);
    blendAt(image, x + half, y + half, tint);
    blendAt(image, x, y + half, tint);
}

} // namespace

void CVQDIB::BuildFractalMap(LONG r, LONG g, LONG b, LONG alpha)
{
    if (!m_pImageBuffer)
        return;
    blendAt(*this, 0, 0, {r, g, b, alpha});
    for (LONG step = kFirstStep; step >= kLastStep; step /= 2) {
        for (LONG y = 0; y < m_iHeight; y += step) {
            for (LONG x = 0; x < m_iWidth; x += step)
                displaceMiddles(*this, x, y, step, alpha);
        }
    }
}
