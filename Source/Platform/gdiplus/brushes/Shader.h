// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a brush puts on the pixels of a surface: a value that is made for one call, from a brush and a surface's
/// settings, and that takes no memory.

#include "Platform/gdiplus/compositor/PixelView.h"

#include <span>
#include <type_traits>
#include <variant>

namespace vq::gdiplus {

/// What turns a brush, which lives in world units, into colours of pixels.
struct ShadingSettings
{
    int originX, originY; ///< the rendering origin, in pixels of the device
    double across, down;  ///< pixels per world unit
    bool halfPixelOffset; ///< pixel (i, j) has its centre at (i + 1/2, j + 1/2) and not at (i, j)
};

/// One colour everywhere.
struct SolidShader
{
    Pixel colour;
};

class Shader
{
public:
    Shader(SolidShader solid) : m_kind(solid) {}

    /// Calls `work` with the shader of its own kind: a SolidShader, or one that has
    /// `void shade(std::span<Pixel> row, int x, int y) const`, the colours of the pixels from (x, y) to the right.
    template <typename Work>
    decltype(auto) visit(Work&& work) const
    {
        return std::visit(std::forward<Work>(work), m_kind);
    }

private:
    std::variant<SolidShader> m_kind;
};

template <typename Kind>
inline constexpr bool kIsSolid = std::is_same_v<std::remove_cvref_t<Kind>, SolidShader>;

} // namespace vq::gdiplus
