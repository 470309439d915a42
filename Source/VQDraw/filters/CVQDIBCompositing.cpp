// SPDX-License-Identifier: MIT
// Combining two images channel by channel.
#include "VQDraw/VQDIB.h"

#include "VQDraw/filters/BlendFormulas.h"

namespace {

/// Changes nothing when src has fewer pixels than dst; of a larger src the first ones count.
template <vq::Pixel kept, typename Formula>
void combine(std::span<ULONG> dst, std::span<const ULONG> src, Formula formula)
{
    if (src.size() >= dst.size())
        vq::combineRow<kept>(dst, src.first(dst.size()), formula);
}

/// (level + 1) / 256 as a factor, of which the low 16 bits matter.
std::uint16_t factorOf(LONG level)
{
    return static_cast<std::uint16_t>(static_cast<std::uint32_t>(level) + 1);
}

} // namespace

void CVQDIB::AddDefault(CVQDIB& dst, CVQDIB& src)
{
    combine<0>(dst.Pixels(), src.Pixels(), vq::add);
}

void CVQDIB::SubtractDefault(CVQDIB& dst, CVQDIB& src)
{
    combine<0>(dst.Pixels(), src.Pixels(), vq::subtract);
}

void CVQDIB::MultiplyDefault(CVQDIB& dst, CVQDIB& src)
{
    combine<0>(dst.Pixels(), src.Pixels(), vq::multiply);
}

void CVQDIB::ScreenDefault(CVQDIB& dst, CVQDIB& src)
{
    combine<vq::kAlphaBits>(dst.Pixels(), src.Pixels(), vq::screen);
}

void CVQDIB::DifferenceDefault(CVQDIB& dst, CVQDIB& src)
{
    combine<vq::kAlphaBits>(dst.Pixels(), src.Pixels(), vq::difference);
}

void CVQDIB::LightenDefault(CVQDIB& dst, CVQDIB& src, LONG level)
{
    if (level == 255) // the same without products
        combine<vq::kAlphaBits>(dst.Pixels(), src.Pixels(), vq::lighten);
    else
        combine<vq::kAlphaBits>(dst.Pixels(), src.Pixels(), vq::lightenBy(factorOf(level)));
}

void CVQDIB::DarkenDefault(CVQDIB& dst, CVQDIB& src, LONG level)
{
    if (level == 255) // the same without products
        combine<vq::kAlphaBits>(dst.Pixels(), src.Pixels(), vq::darken);
    else
        combine<vq::kAlphaBits>(dst.Pixels(), src.Pixels(), vq::darkenBy(factorOf(level)));
}

void CVQDIB::Add(CVQDIB& source)
{
    pfAdd(*this, source);
}

void CVQDIB::Add(CVQDIB* source)
{
    if (source)
        Add(*source);
}

void CVQDIB::Add()
{
    Add(*this);
}

void CVQDIB::Subtract(CVQDIB& source)
{
    pfSubtract(*this, source);
}

void CVQDIB::Subtract(CVQDIB* source)
{
    if (source)
        Subtract(*source);
}

void CVQDIB::Multiply(CVQDIB& source)
{
    pfMultiply(*this, source);
}

void CVQDIB::Multiply(CVQDIB* source)
{
    if (source)
        Multiply(*source);
}

void CVQDIB::Multiply()
{
    Multiply(*this);
}

void CVQDIB::Screen(CVQDIB& source)
{
    pfScreen(*this, source);
}

void CVQDIB::Screen(CVQDIB* source)
{
    if (source)
        Screen(*source);
}

void CVQDIB::Lighten(CVQDIB& source, LONG level)
{
    pfLighten(*this, source, level);
}

void CVQDIB::Lighten(CVQDIB* source, LONG level)
{
    if (source)
        Lighten(*source, level);
}

void CVQDIB::Darken(CVQDIB& source, LONG level)
{
    pfDarken(*this, source, level);
}

void CVQDIB::Darken(CVQDIB* source, LONG level)
{
    if (source)
        Darken(*source, level);
}

void CVQDIB::Difference(CVQDIB& source)
{
    pfDifference(*this, source);
}

void CVQDIB::Difference(CVQDIB* source)
{
    if (source)
        Difference(*source);
}
