// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a brush puts on the pixels of a surface: a value that is made for one call, from a brush and a surface's
/// settings, and that takes no memory.

#include "Platform/gdiplus/brushes/GradientShader.h"
#include "Platform/gdiplus/brushes/HatchShader.h"
#include "Platform/gdiplus/brushes/ShadingSettings.h"
#include "Platform/gdiplus/compositor/PixelView.h"

#include <span>
#include <type_traits>
#include <variant>

namespace vq::gdiplus {

/// One colour everywhere.
struct SolidShader
{
    Pixel colour;
};

class Shader
{
public:
    Shader(SolidShader solid) : m_kind(solid) {}
    Shader(const HatchShader& hatch) : m_kind(hatch) {}
    Shader(const GradientShader& gradient) : m_kind(gradient) {}

    /// Calls `work` with the shader of its own kind: a SolidShader, or one that has
    /// `void shade(std::span<Pixel> row, int x, int y) const`, the colours of the pixels from (x, y) to the right.
    template <typename Work>
    decltype(auto) visit(Work&& work) const
    {
        return std::visit(std::forward<Work>(work), m_kind);
    }

    /// Null unless the brush is of one colour.
    const SolidShader* solid() const { return std::get_if<SolidShader>(&m_kind); }

private:
    std::variant<SolidShader, HatchShader, GradientShader> m_kind;
};

template <typename Kind>
inline constexpr bool kIsSolid = std::is_same_v<std::remove_cvref_t<Kind>, SolidShader>;

} // namespace vq::gdiplus
