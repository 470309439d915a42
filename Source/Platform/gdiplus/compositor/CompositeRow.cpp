// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/CompositeRow.h"

#include "Platform/gdiplus/compositor/CompositePixel.h"
#include "Platform/gdiplus/compositor/CoveredColour.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vq::gdiplus {

namespace {

/// Pixels that are looked at together: if they need nothing they are skipped, if they need little they take a short
/// way.
constexpr std::size_t kBlock = 64;

using Block = std::array<Pixel, kBlock>;

/// Two bytes of a pixel, blue and green or red and alpha; may look at memory that holds pixels. Pointers name it in
/// full: a deduced type would lose the attribute.
using Lane [[gnu::may_alias]] = std::uint16_t;

struct SharedBits
{
    Pixel any = 0;
    Pixel all = ~Pixel{0};
};

inline SharedBits sharedBits(const Pixel* pixels, std::size_t count)
{
    SharedBits bits;
    for (std::size_t i = 0; i < count; ++i) {
        bits.any |= pixels[i];
        bits.all &= pixels[i];
    }
    return bits;
}

inline bool isOpaque(const Pixel* pixels, std::size_t count)
{
    return alphaOf(sharedBits(pixels, count).all) == 255;
}

/// `dividedBy255` of two products in 16 bits: the largest value on the way is 65025 + 128 + 254.
constexpr std::uint16_t mixedLane(unsigned destination, unsigned source, unsigned alpha)
{
    const auto raised = static_cast<std::uint16_t>(source * alpha + destination * (255U - alpha) + 128U);
    const auto quotient = static_cast<std::uint16_t>(raised + (raised >> 8));
    return static_cast<std::uint16_t>(quotient >> 8);
}

/// `sourceOver` where every destination alpha is 255: alpha stays, and colours need no division by it.
inline void overOpaque(Pixel* destination, const Pixel* source, std::size_t count)
{
    Block alphas; // of each pixel, once for each of its lanes
    Block colours;
    for (std::size_t i = 0; i < count; ++i) {
        const Pixel alpha = alphaOf(source[i]);
        alphas[i] = alpha | alpha << 16;
        colours[i] = source[i] | kAlphaBits;
    }
    const Lane* a = reinterpret_cast<const Lane*>(alphas.data());
    const Lane* s = reinterpret_cast<const Lane*>(colours.data());
    Lane* d = reinterpret_cast<Lane*>(destination);
    for (std::size_t i = 0; i < 2 * count; ++i) {
        const unsigned low = mixedLane(d[i] & 0xFFU, s[i] & 0xFFU, a[i]);
        const unsigned high = mixedLane(d[i] >> 8U, s[i] >> 8U, a[i]);
        d[i] = static_cast<Lane>(low | high << 8);
    }
}

/// Through signed integers, which processors convert in one step.
constexpr float inFloat(std::uint32_t value)
{
    return static_cast<float>(static_cast<std::int32_t>(value));
}

constexpr std::uint32_t nearest(float value)
{
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(value + 0.5F));
}

/// `mixed` of weights that are products of two bytes or sums of two such, up to 65025 together. Numerators and
/// denominators are whole numbers below 2^24, exact in single precision. A quotient of them differs from a half by 0 or
/// by at least 1 / (2 * 65025), which is more than 2^-17, the most that it is rounded by: so it never crosses or meets
/// a half, and the nearest integer is that of the exact value.
inline Pixel mixedInFloats(Pixel first, float firstWeight, Pixel second, float secondWeight)
{
    const float whole = firstWeight + secondWeight;
    const auto channel = [=](std::uint32_t a, std::uint32_t b) {
        return nearest((inFloat(a) * firstWeight + inFloat(b) * secondWeight) / whole);
    };
    return packed(nearest(whole * (1 / 255.0F)), channel(redOf(first), redOf(second)),
                  channel(greenOf(first), greenOf(second)), channel(blueOf(first), blueOf(second)));
}

/// `sourceOver` over every destination.
inline void overAny(Pixel* destination, const Pixel* source, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const Pixel s = source[i];
        const Pixel d = destination[i];
        const Pixel untouched = alphaOf(s) == 0 ? ~Pixel{0} : 0; // such a source counts as alpha 1: no division by 0
        const float sourceWeight = inFloat(alphaOf(s) - untouched) * 255.0F;
        const float destinationWeight = inFloat(alphaOf(d)) * inFloat(255 - alphaOf(s));
        const Pixel result = mixedInFloats(d, destinationWeight, s, sourceWeight);
        destination[i] = (d & untouched) | (result & ~untouched);
    }
}

/// `sourceCopy` under coverage of any pixels.
inline void copyAny(Pixel* destination, const Pixel* source, const Channel* coverage, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const Pixel s = source[i];
        const Pixel d = destination[i];
        const std::uint32_t covered = coverage[i];
        const std::uint32_t kept = alphaOf(d) * (255 - covered);
        const std::uint32_t added = alphaOf(s) * covered;
        const Pixel nothing = kept + added == 0 ? 1 : 0; // a weight instead of a division by 0; its alpha is 0
        const Pixel result = mixedInFloats(d, inFloat(kept + nothing), s, inFloat(added));
        const Pixel visible = alphaOf(result) == 0 ? 0 : result;
        destination[i] = covered == 0 ? d : visible;
    }
}

/// One pixel and a block of them under each `Blend`.
struct Copy
{
    static Pixel pixel(Pixel, Pixel source) { return sourceCopy(source); }

    static void block(Pixel* destination, const Pixel* source, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            destination[i] = sourceCopy(source[i]);
    }
};

struct Over
{
    static Pixel pixel(Pixel destination, Pixel source) { return overPixel<StoredLight>(destination, source); }

    static void block(Pixel* destination, const Pixel* source, std::size_t count)
    {
        const SharedBits bits = sharedBits(source, count);
        if (alphaOf(bits.any) == 0)
            return;
        if (alphaOf(bits.all) == 255)
            std::copy_n(source, count, destination);
        else if (isOpaque(destination, count))
            overOpaque(destination, source, count);
        else
            overAny(destination, source, count);
    }
};

struct OverInLinearLight
{
    static Pixel pixel(Pixel destination, Pixel source) { return overPixel<LinearLight>(destination, source); }

    static void block(Pixel* destination, const Pixel* source, std::size_t count)
    {
        const SharedBits bits = sharedBits(source, count);
        if (alphaOf(bits.any) == 0)
            return;
        if (alphaOf(bits.all) == 255)
            std::copy_n(source, count, destination);
        else
            for (std::size_t i = 0; i < count; ++i)
                destination[i] = pixel(destination[i], source[i]);
    }
};

/// Rows below this length, most of them at the edges of shapes, are not worth a block.
constexpr std::size_t kShortRow = 6;

/// Calls `block(first pixel, count)` for whole blocks, whose length the compiler knows, and for the rest.
template <typename Function>
inline void forEachBlock(std::size_t count, Function block)
{
    std::size_t first = 0;
    for (; first + kBlock <= count; first += kBlock)
        block(first, kBlock);
    if (first < count)
        block(first, count - first);
}

template <typename Mode>
void compositeRowAs(std::span<Pixel> destination, std::span<const Pixel> source)
{
    if (destination.size() < kShortRow) {
        for (std::size_t i = 0; i < destination.size(); ++i)
            destination[i] = Mode::pixel(destination[i], source[i]);
        return;
    }
    forEachBlock(destination.size(), [=](std::size_t first, std::size_t count) {
        Mode::block(destination.data() + first, source.data() + first, count);
    });
}

/// What is left of `sourceAt(i)` under a row of coverage.
template <typename Mode, typename SourceAt>
void compositeCovered(std::span<Pixel> destination, SourceAt sourceAt, std::span<const Channel> coverage)
{
    if (destination.size() < kShortRow) {
        for (std::size_t i = 0; i < destination.size(); ++i)
            destination[i] = Mode::pixel(destination[i], withCoverage(sourceAt(i), coverage[i]));
        return;
    }
    forEachBlock(destination.size(), [=](std::size_t first, std::size_t count) {
        Block effective;
        for (std::size_t i = 0; i < count; ++i)
            effective[i] = withCoverage(sourceAt(first + i), coverage[first + i]);
        Mode::block(destination.data() + first, effective.data(), count);
    });
}

void copyCoveredBlock(Pixel* destination, const Pixel* source, const Channel* coverage, std::size_t count)
{
    Channel any = 0;
    Channel all = 255;
    for (std::size_t i = 0; i < count; ++i) {
        any |= coverage[i];
        all &= coverage[i];
    }
    if (any == 0)
        return;
    if (all == 255)
        return Copy::block(destination, source, count);
    if (!isOpaque(source, count) || !isOpaque(destination, count))
        return copyAny(destination, source, coverage, count);
    Block effective; // between opaque pixels coverage does what alpha does
    for (std::size_t i = 0; i < count; ++i)
        effective[i] = withCoverage(source[i], coverage[i]);
    overOpaque(destination, effective.data(), count);
}

/// `SourceCopy` under a row of coverage.
template <typename SourceAt>
void copyCovered(std::span<Pixel> destination, SourceAt sourceAt, std::span<const Channel> coverage)
{
    if (destination.size() < kShortRow) {
        for (std::size_t i = 0; i < destination.size(); ++i)
            destination[i] = sourceCopy(destination[i], sourceAt(i), coverage[i]);
        return;
    }
    forEachBlock(destination.size(), [=](std::size_t first, std::size_t count) {
        Block source;
        for (std::size_t i = 0; i < count; ++i)
            source[i] = sourceAt(first + i);
        copyCoveredBlock(destination.data() + first, source.data(), coverage.data() + first, count);
    });
}

/// `SourceCopy` of one colour under one coverage.
void copyRun(std::span<Pixel> destination, Pixel colour, Channel coverage)
{
    if (destination.size() < kShortRow) {
        for (Pixel& pixel : destination)
            pixel = sourceCopy(pixel, colour, coverage);
        return;
    }
    Block source;
    std::array<Channel, kBlock> same;
    std::fill_n(source.begin(), std::min(destination.size(), kBlock), colour);
    std::fill_n(same.begin(), std::min(destination.size(), kBlock), coverage);
    forEachBlock(destination.size(), [&](std::size_t first, std::size_t count) {
        copyCoveredBlock(destination.data() + first, source.data(), same.data(), count);
    });
}

template <typename SourceAt>
void compositeCovered(std::span<Pixel> destination, SourceAt sourceAt, std::span<const Channel> coverage, Blend blend)
{
    switch (blend) {
    case Blend::SourceCopy:
        return copyCovered(destination, sourceAt, coverage);
    case Blend::SourceOver:
        return compositeCovered<Over>(destination, sourceAt, coverage);
    case Blend::SourceOverLinearLight:
        return compositeCovered<OverInLinearLight>(destination, sourceAt, coverage);
    }
}

template <typename Mode>
void compositeRunOnePixelAtATime(std::span<Pixel> destination, Pixel colour)
{
    for (Pixel& pixel : destination)
        pixel = Mode::pixel(pixel, colour);
}

/// Rows up to this length are most often those of glyphs.
constexpr std::size_t kGlyphRow = 32;

/// Most pixels around a glyph's strokes are not covered.
void overGlyphRow(std::span<Pixel> destination, Pixel colour, std::span<const Channel> coverage)
{
    Pixel* pixel = destination.data();
    const Channel* covered = coverage.data();
    std::size_t left = destination.size();
    const auto overPixels = [&](std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            if (covered[i] != 0)
                pixel[i] = overPixel<StoredLight>(pixel[i], withCoverage(colour, covered[i]));
        }
    };
    const CoveredColour four(colour);
    for (; left >= CoveredColour::kPixels; left -= CoveredColour::kPixels) {
        const bool isCovered = CoveredColour::coversAny(covered);
        if (isCovered && CoveredColour::areOpaque(pixel))
            four.overOpaque(pixel, covered);
        else if (isCovered)
            overPixels(CoveredColour::kPixels);
        pixel += CoveredColour::kPixels;
        covered += CoveredColour::kPixels;
    }
    overPixels(left);
}

} // namespace

void compositeRow(std::span<Pixel> destination, std::span<const Pixel> source, Blend blend)
{
    switch (blend) {
    case Blend::SourceCopy:
        return compositeRowAs<Copy>(destination, source);
    case Blend::SourceOver:
        return compositeRowAs<Over>(destination, source);
    case Blend::SourceOverLinearLight:
        return compositeRowAs<OverInLinearLight>(destination, source);
    }
}

void compositeRow(std::span<Pixel> destination, std::span<const Pixel> source, std::span<const Channel> coverage,
                  Blend blend)
{
    compositeCovered(
        destination, [pixels = source.data()](std::size_t i) { return pixels[i]; }, coverage, blend);
}

void compositeColour(std::span<Pixel> destination, Pixel colour, Blend blend)
{
    if (blend == Blend::SourceCopy || alphaOf(colour) == 255)
        std::fill(destination.begin(), destination.end(), sourceCopy(colour));
    else if (alphaOf(colour) == 0)
        return;
    else if (blend == Blend::SourceOver)
        OverColour{colour}(destination);
    else
        compositeRunOnePixelAtATime<OverInLinearLight>(destination, colour);
}

void compositeColour(std::span<Pixel> destination, Pixel colour, std::span<const Channel> coverage, Blend blend)
{
    if (blend == Blend::SourceOver && destination.size() < kGlyphRow)
        return overGlyphRow(destination, colour, coverage);
    compositeCovered(
        destination, [colour](std::size_t) { return colour; }, coverage, blend);
}

void compositeColour(std::span<Pixel> destination, Pixel colour, Channel coverage, Blend blend)
{
    if (blend != Blend::SourceCopy || coverage == 255)
        return compositeColour(destination, coverage == 255 ? colour : withCoverage(colour, coverage), blend);
    copyRun(destination, colour, coverage);
}

void OverColour::operator()(std::span<Pixel> destination) const
{
    if (alphaOf(m_colour) == 255)
        std::ranges::fill(destination, m_colour);
    if (alphaOf(m_colour) % 255 == 0)
        return;
    std::array<Pixel, ColourRun::kPixels> source;
    source.fill(m_colour);
    Pixel* pixel = destination.data();
    std::size_t left = destination.size();
    for (; left >= ColourRun::kPixels; left -= ColourRun::kPixels, pixel += ColourRun::kPixels) {
        switch (ColourRun::look(pixel)) {
        case ColourRun::Below::Opaque:
            m_run.overOpaque(pixel);
            break;
        case ColourRun::Below::Transparent:
            std::ranges::copy(source, pixel);
            break;
        case ColourRun::Below::Mixed:
            overAny(pixel, source.data(), ColourRun::kPixels);
        }
    }
    if (left >= ColourRun::kHalf && ColourRun::isHalfOpaque(pixel)) {
        m_run.overHalfOpaque(pixel);
        left -= ColourRun::kHalf;
        pixel += ColourRun::kHalf;
    }
    compositeRunOnePixelAtATime<Over>({pixel, left}, m_colour);
}

} // namespace vq::gdiplus
