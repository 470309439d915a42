// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/brushes/Painter.h"

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>
#include <array>

namespace vq::gdiplus {
namespace {

/// Pixels that are shaded at a time.
constexpr std::size_t kBlock = 256;

Channel alphaChannel(Pixel colour)
{
    return static_cast<Channel>(alphaOf(colour));
}

/// A row of a picture over a row, all of it covered alike.
void compositePicture(std::span<Pixel> destination, std::span<const Pixel> source, Channel coverage, Blend blend)
{
    if (coverage == 255)
        return compositeRow(destination, source, blend);
    std::array<Channel, kBlock> same;
    same.fill(coverage);
    for (std::size_t first = 0; first < source.size(); first += kBlock) {
        const std::size_t count = std::min(kBlock, source.size() - first);
        compositeRow(destination.subspan(first, count), source.subspan(first, count), std::span(same).first(count),
                     blend);
    }
}

} // namespace

/// `solid(run, colour)` for one colour; else `shaded(run, colours, first)` block by block, where `first` is how far the
/// block is from the beginning of the run.
template <typename Solid, typename Shaded>
void Painter::paint(int x, int y, std::size_t length, Solid solid, Shaded shaded) const
{
    const std::span<Pixel> whole = m_canvas.run(x, y, static_cast<int>(length));
    m_shader.visit([&]<typename Kind>(const Kind& shader) {
        if constexpr (kIsSolid<Kind>) {
            onRun(m_canvas, whole, [&](std::span<Pixel> run) { solid(run, shader.colour); });
        } else {
            std::array<Pixel, kBlock> colours;
            for (std::size_t first = 0; first < length; first += kBlock) {
                const std::span<Pixel> row(colours.data(), std::min(kBlock, length - first));
                shader.shade(row, x + static_cast<int>(first), y);
                onRun(m_canvas, whole.subspan(first, row.size()),
                      [&](std::span<Pixel> run) { shaded(run, std::span<const Pixel>(row), first); });
            }
        }
    });
}

Painter::Painter(const Canvas& canvas, const Shader& shader) : m_canvas(canvas), m_shader(shader)
{
    if (canvas.blend != Blend::SourceOver || canvas.alpha != SurfaceAlpha::Stored)
        return;
    shader.visit([&]<typename Kind>(const Kind& kind) {
        if constexpr (kIsSolid<Kind>)
            m_plain.emplace(kind.colour);
    });
}

std::optional<Pixel> Painter::plainColour() const
{
    return m_plain ? std::optional(m_plain->colour()) : std::nullopt;
}

bool Painter::canRepeat() const
{
    if (m_canvas.blend == Blend::SourceCopy)
        return true;
    return m_shader.visit([]<typename Kind>(const Kind& shader) {
        if constexpr (kIsSolid<Kind>)
            return alphaOf(shader.colour) == 255;
        else
            return false;
    });
}

void Painter::anyRun(int x, int y, int length) const
{
    const Blend blend = m_canvas.blend;
    paint(
        x, y, static_cast<std::size_t>(length),
        [=](std::span<Pixel> run, Pixel colour) { compositeColour(run, colour, blend); },
        [=](std::span<Pixel> run, std::span<const Pixel> colours, std::size_t) { compositeRow(run, colours, blend); });
}

void Painter::run(int x, int y, int length, Channel coverage) const
{
    const Blend blend = m_canvas.blend;
    std::array<Channel, kBlock> same;
    paint(
        x, y, static_cast<std::size_t>(length),
        [=](std::span<Pixel> run, Pixel colour) { compositeColour(run, colour, coverage, blend); },
        [&](std::span<Pixel> run, std::span<const Pixel> colours, std::size_t) {
            const auto row = std::span(same).first(run.size());
            std::ranges::fill(row, coverage);
            compositeRow(run, colours, row, blend);
        });
}

void Painter::run(int x, int y, std::span<const Channel> coverage) const
{
    const Blend blend = m_canvas.blend;
    paint(
        x, y, coverage.size(),
        [=](std::span<Pixel> run, Pixel colour) { compositeColour(run, colour, coverage, blend); },
        [=](std::span<Pixel> run, std::span<const Pixel> colours, std::size_t first) {
            compositeRow(run, colours, coverage.subspan(first, run.size()), blend);
        });
}

void Painter::picture(int x, int y, std::span<const Pixel> pixels) const
{
    const Blend blend = m_canvas.blend;
    std::array<Channel, kBlock> alphas;
    paint(
        x, y, pixels.size(),
        [=](std::span<Pixel> run, Pixel colour) { compositePicture(run, pixels, alphaChannel(colour), blend); },
        [&](std::span<Pixel> run, std::span<const Pixel> colours, std::size_t first) {
            const auto coverage = std::span(alphas).first(run.size());
            std::ranges::transform(colours, coverage.begin(), alphaChannel);
            compositeRow(run, pixels.subspan(first, run.size()), coverage, blend);
        });
}

} // namespace vq::gdiplus
