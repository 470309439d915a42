// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/BilinearRows.h"

#include "Platform/gdiplus/compositor/CompositingFormulas.h"
#include "Platform/gdiplus/compositor/MixColumnsSse2.h"

#include <algorithm>
#include <array>

namespace vq::gdiplus {

namespace {

/// Through signed integers, which processors convert in one step.
constexpr float inFloat(std::uint32_t value)
{
    return static_cast<float>(static_cast<std::int32_t>(value));
}

/// The nearest integer, halves downwards, also those that are a little too large from rounding.
constexpr std::uint32_t nearest(float value)
{
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(value + 0.4999F));
}

constexpr float inUnits(std::uint16_t fraction)
{
    return static_cast<float>(fraction) * (1.0F / 65536);
}

/// The two source pixels of some columns beside each other.
struct Pairs
{
    std::array<Pixel, kColumnBlock> first;
    std::array<Pixel, kColumnBlock> second;
};

inline void gather(const StripColumns& columns, ConstPixelView image, int y, std::size_t begin, std::size_t count,
                   Pairs& pairs)
{
    const Pixel* row = image.row(y);
    const std::int32_t* index = columns.index.data() + begin;
    if (columns.isInside) {
        for (std::size_t i = 0; i < count; ++i) {
            pairs.first[i] = row[index[i]];
            pairs.second[i] = row[index[i] + 1];
        }
        return;
    }
    const auto pixelAt = [=](int x) { return x >= 0 && x < image.width ? row[x] : 0; };
    for (std::size_t i = 0; i < count; ++i) {
        pairs.first[i] = pixelAt(index[i]);
        pairs.second[i] = pixelAt(index[i] + 1);
    }
}

bool isWithin(int y, ConstPixelView image)
{
    return y >= 0 && y < image.height;
}

} // namespace

StripColumns::StripColumns(const SampleAxis& axis, int begin, int end, StripMemory& memory)
    : isInside(axis.reachAt(begin) == Reach::Inside)
{
    const auto length = static_cast<std::size_t>(end - begin);
    index = memory.take<std::int32_t>(length);
    weight = memory.take<float>(length);
    laneWeight = memory.take<std::uint16_t>(4 * length);
    for (std::size_t i = 0; i < length; ++i) {
        const SamplePosition position = axis.at(begin + static_cast<int>(i));
        index[i] = position.index;
        weight[i] = inUnits(position.fraction);
        for (std::size_t channel = 0; channel < 4; ++channel)
            laneWeight[4 * i + channel] = position.fraction;
    }
}

std::size_t StripColumns::bytesFor(std::size_t count)
{
    return StripMemory::bytesFor<std::int32_t>(count) + StripMemory::bytesFor<float>(count) +
           StripMemory::bytesFor<std::uint16_t>(4 * count);
}

StripRow::StripRow(std::size_t count, StripMemory& memory)
    : m_lanes(memory.take<std::uint16_t>(4 * count)), m_alpha(memory.take<float>(count)),
      m_red(memory.take<float>(count)), m_green(memory.take<float>(count)), m_blue(memory.take<float>(count))
{
}

std::size_t StripRow::bytesFor(std::size_t count)
{
    return StripMemory::bytesFor<std::uint16_t>(4 * count) + 4 * StripMemory::bytesFor<float>(count);
}

void StripRow::fetch(const StripColumns& columns, ConstPixelView image, int y)
{
    if (y == m_y)
        return;
    m_y = y;
    m_hasAmounts = false;
    m_isOpaque = columns.isInside && isWithin(y, image);
    for (std::size_t begin = 0; m_isOpaque && begin < columns.count(); begin += kColumnBlock)
        m_isOpaque = mixColumns(image.row(y), columns.index.data() + begin, columns.laneWeight.data() + 4 * begin,
                                std::min(columns.count() - begin, kColumnBlock), m_lanes.data() + 4 * begin);
}

void StripRow::fetchAmounts(const StripColumns& columns, ConstPixelView image)
{
    if (m_hasAmounts)
        return;
    m_hasAmounts = true;
    if (!isWithin(m_y, image)) {
        for (const std::span<float> amounts : {m_alpha, m_red, m_green, m_blue})
            std::ranges::fill(amounts, 0.0F);
        return;
    }
    Pairs pairs;
    for (std::size_t begin = 0; begin < columns.count(); begin += kColumnBlock) {
        const std::size_t count = std::min(columns.count() - begin, kColumnBlock);
        gather(columns, image, m_y, begin, count, pairs);
        for (std::size_t i = 0; i < count; ++i) {
            const Pixel first = pairs.first[i];
            const Pixel second = pairs.second[i];
            const float weight = columns.weight[begin + i];
            const float firstAlpha = inFloat(alphaOf(first)) * (1 - weight);
            const float secondAlpha = inFloat(alphaOf(second)) * weight;
            const auto amount = [=](std::uint32_t a, std::uint32_t b) {
                return inFloat(a) * firstAlpha + inFloat(b) * secondAlpha;
            };
            m_alpha[begin + i] = firstAlpha + secondAlpha;
            m_red[begin + i] = amount(redOf(first), redOf(second));
            m_green[begin + i] = amount(greenOf(first), greenOf(second));
            m_blue[begin + i] = amount(blueOf(first), blueOf(second));
        }
    }
}

void StripRow::mixOpaque(const StripRow& upper, const StripRow& lower, std::uint16_t weight, std::span<Pixel> result)
{
    auto* bytes = reinterpret_cast<Channel*>(result.data());
    const std::uint16_t* first = upper.m_lanes.data();
    const std::uint16_t* second = lower.m_lanes.data();
    for (std::size_t i = 0; i < 4 * result.size(); ++i)
        bytes[i] = byteOf(mixedLane(first[i], second[i], weight));
}

void StripRow::mixAny(const StripRow& upper, const StripRow& lower, std::uint16_t weight, std::span<Pixel> result)
{
    constexpr float kNoDivisionByZero = 1e-30F; // nothing beside the smallest alpha, 2^-32
    const float lowerShare = inUnits(weight);
    const float upperShare = 1 - lowerShare;
    for (std::size_t i = 0; i < result.size(); ++i) {
        const float alpha = upper.m_alpha[i] * upperShare + lower.m_alpha[i] * lowerShare;
        const float reciprocal = 1 / (alpha + kNoDivisionByZero);
        const auto channel = [u = upperShare * reciprocal, l = lowerShare * reciprocal](float upperAmount,
                                                                                        float lowerAmount) {
            return nearest(upperAmount * u + lowerAmount * l);
        };
        const std::uint32_t wholeAlpha = nearest(alpha);
        const Pixel visible = wholeAlpha == 0 ? 0 : ~Pixel{0};
        result[i] =
            visible & packed(wholeAlpha, channel(upper.m_red[i], lower.m_red[i]),
                             channel(upper.m_green[i], lower.m_green[i]), channel(upper.m_blue[i], lower.m_blue[i]));
    }
}

} // namespace vq::gdiplus
