// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/brushes/GradientShader.h"

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vq::gdiplus {
namespace {

/// Added before digits are cut off. The second term is more than all that amounts are rounded by on the way, 2^-43 for
/// bytes and 2^-35 behind a division by alpha, so that no half is missed.
constexpr double kRounding = 0.5 + 0x1p-34;

/// Amounts at the first pixel of a run, and what each further pixel adds.
struct Progress
{
    Amounts first, step;
};

constexpr int kFixedBits = 54; ///< behind the point; a byte before it leaves a bit for the sign of steps

inline std::uint64_t toFixed(double value)
{
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(value * 0x1p54));
}

/// A larger step leaves the byte with the next pixel: there is none.
inline std::uint64_t stepToFixed(double step)
{
    return toFixed(std::clamp(step, -256.0, 256.0));
}

/// Bytes under one alpha. Steps are rounded by 2^-54 at most, 2^-42 over a row of 4096 pixels.
void shadeBytes(std::span<Pixel> row, const Progress& progress)
{
    const auto alpha = static_cast<Pixel>(progress.first[0]) << 24;
    std::uint64_t red = toFixed(progress.first[1] + kRounding);
    std::uint64_t green = toFixed(progress.first[2] + kRounding);
    std::uint64_t blue = toFixed(progress.first[3] + kRounding);
    const std::uint64_t redStep = stepToFixed(progress.step[1]);
    const std::uint64_t greenStep = stepToFixed(progress.step[2]);
    const std::uint64_t blueStep = stepToFixed(progress.step[3]);
    for (Pixel& pixel : row) {
        const std::uint64_t colours =
            (red >> (kFixedBits - 16) & 0xFF0000) | (green >> (kFixedBits - 8) & 0xFF00) | (blue >> kFixedBits);
        pixel = alpha | static_cast<Pixel>(colours);
        red += redStep;
        green += greenStep;
        blue += blueStep;
    }
}

/// Amounts are at least 0, but for a rounding that `kRounding` covers; through signed integers, which processors
/// convert in one step.
inline std::uint32_t cut(double raised)
{
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(raised));
}

constexpr std::size_t kBlock = 64;

template <typename Number>
using BlockOf = std::array<Number, kBlock>;

/// The nearest integers of the amounts of some pixels; colours divided by alpha, where that is not nearest to 0.
struct WholeAmounts
{
    BlockOf<std::uint32_t> alpha, red, green, blue;
};

/// Of pixels `first` .. `first` + `count` - 1. Two loops, because GCC makes vectors of no loop with a chosen divisor.
void divideByAlpha(WholeAmounts& whole, const Progress& progress, std::size_t first, std::size_t count)
{
    const auto [alpha, red, green, blue] = progress.first;
    const auto [alphaStep, redStep, greenStep, blueStep] = progress.step;
    const int begin = static_cast<int>(first);
    BlockOf<double> divisors;
    for (std::size_t i = 0; i < count; ++i) {
        const double here = alpha + alphaStep * (begin + static_cast<int>(i));
        whole.alpha[i] = cut(here + kRounding);
        divisors[i] = here > 0.25 ? here : 0.25;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const int pixel = begin + static_cast<int>(i);
        const double share = 1 / divisors[i];
        whole.red[i] = cut((red + redStep * pixel) * share + kRounding);
        whole.green[i] = cut((green + greenStep * pixel) * share + kRounding);
        whole.blue[i] = cut((blue + blueStep * pixel) * share + kRounding);
    }
}

/// The same under one alpha, which colours are not multiplied by.
void takeAsTheyAre(WholeAmounts& whole, const Progress& progress, std::size_t first, std::size_t count)
{
    const auto [alpha, red, green, blue] = progress.first;
    const auto [alphaStep, redStep, greenStep, blueStep] = progress.step;
    const int begin = static_cast<int>(first);
    for (std::size_t i = 0; i < count; ++i) {
        const int pixel = begin + static_cast<int>(i);
        whole.alpha[i] = cut(alpha);
        whole.red[i] = cut(red + redStep * pixel + kRounding);
        whole.green[i] = cut(green + greenStep * pixel + kRounding);
        whole.blue[i] = cut(blue + blueStep * pixel + kRounding);
    }
}

/// Any amounts; `byteOf` makes bytes of them. A pixel whose alpha is nearest to 0 has no colour.
template <typename ByteOf>
void shadeAmounts(std::span<Pixel> row, const Progress& progress, bool isMultiplied, ByteOf byteOf)
{
    WholeAmounts whole;
    for (std::size_t first = 0; first < row.size(); first += kBlock) {
        const std::size_t count = std::min(kBlock, row.size() - first);
        (isMultiplied ? divideByAlpha : takeAsTheyAre)(whole, progress, first, count);
        for (std::size_t i = 0; i < count; ++i) {
            const Pixel colour =
                packed(whole.alpha[i], byteOf(whole.red[i]), byteOf(whole.green[i]), byteOf(whole.blue[i]));
            row[first + i] = whole.alpha[i] == 0 ? 0 : colour;
        }
    }
}

/// As std::floor, which the baseline processor has only as a function.
inline double wholeBelow(double value)
{
    if (!(std::abs(value) < 0x1p52))
        return value;
    const auto towardsZero = static_cast<double>(static_cast<std::int64_t>(value));
    return towardsZero > value ? towardsZero - 1 : towardsZero;
}

const GradientPiece& pieceAt(const GradientRamp& ramp, double position)
{
    const auto& pieces = ramp.pieces;
    if (pieces.size() == 1)
        return pieces.front();
    return *std::prev(std::ranges::upper_bound(pieces, position, {}, &GradientPiece::begin));
}

} // namespace

GradientShader::GradientShader(const GradientAxis& axis, const GradientRamp& ramp, Repetition repetition)
    : m_axis(axis), m_ramp(&ramp), m_step(axis.normalX / axis.length), m_isMirrored(repetition == Repetition::Mirrored)
{
}

/// The run that starts with a pixel. `distance` is how far the pixel is from the start of the gradient, through all
/// repetitions: its position times the length.
GradientShader::Run GradientShader::runAt(double distance) const
{
    const double length = m_axis.length;
    const double period = m_isMirrored ? 2 * length : length;
    double rest = distance - wholeBelow(distance / period) * period;
    if (rest < 0)
        rest += period; // the quotient was rounded upwards to a whole number
    if (!(0 <= rest && rest < period))
        rest = 0; // so far away that pixels are finer than numbers

    const bool isBackwards = m_isMirrored && rest >= length;
    const double reached = isBackwards ? period - rest : rest;
    const double perPixel = isBackwards ? -m_axis.normalX : m_axis.normalX;
    const double position = reached / length;
    const GradientPiece& piece = pieceAt(*m_ramp, position);
    Run run{&piece, position, isBackwards ? -m_step : m_step, std::numeric_limits<double>::infinity()};
    // In distances, which are exact more often than positions: the end of a piece is no more part of it, its begin is.
    if (perPixel > 0)
        run.length = -wholeBelow((reached - piece.end * length) / perPixel);
    else if (perPixel < 0)
        run.length = wholeBelow((piece.begin * length - reached) / perPixel) + 1;
    run.length = std::max(run.length, 1.0);
    return run;
}

void GradientShader::shade(std::span<Pixel> row, const Run& run) const
{
    const GradientPiece& piece = *run.piece;
    Progress progress;
    for (std::size_t i = 0; i < progress.first.size(); ++i) {
        progress.first[i] = piece.start[i] + piece.slope[i] * (run.position - piece.begin);
        progress.step[i] = piece.slope[i] * run.step;
    }
    if (m_ramp->isLight)
        shadeAmounts(row, progress, m_ramp->isMultiplied, LinearLight::encode);
    else if (m_ramp->isMultiplied)
        shadeAmounts(row, progress, true, StoredLight::encode);
    else
        shadeBytes(row, progress);
}

void GradientShader::shade(std::span<Pixel> row, int x, int y) const
{
    if (row.empty())
        return;
    const double start = (x - m_axis.originX) * m_axis.normalX + (y - m_axis.originY) * m_axis.normalY;
    if (m_step == 0) {
        shade(row.first(1), runAt(start));
        std::ranges::fill(row, row.front());
        return;
    }
    for (std::size_t done = 0; done < row.size();) {
        const Run run = runAt(start + static_cast<double>(done) * m_axis.normalX);
        const double left = static_cast<double>(row.size() - done);
        const auto length = static_cast<std::size_t>(std::min(run.length, left));
        shade(row.subspan(done, length), run);
        done += length;
    }
}

} // namespace vq::gdiplus
