// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// One frame of everything that is drawn through Gdiplus: pens, dashes, caps, paths, brushes, pictures and text.

#include "Platform/Platform.h"

#include <ostream>
#include <span>

namespace vq::test {

inline constexpr int kFrameWidth = 320;
inline constexpr int kFrameHeight = 240;

/// A memory device context, for fonts.
class MemoryContext
{
public:
    MemoryContext() : m_handle(CreateCompatibleDC(nullptr)) {}
    ~MemoryContext() { DeleteDC(m_handle); }
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;
    operator HDC() const { return m_handle; }

private:
    HDC m_handle;
};

/// The objects that frames are drawn with. Making them draws nothing but the small picture.
struct SceneObjects
{
    SceneObjects();

    MemoryContext context;
    Gdiplus::Pen thin, wide, fraction, dashes, roundDots, arrow, inset;
    Gdiplus::SolidBrush solid, translucent, ink;
    Gdiplus::HatchBrush hatch;
    Gdiplus::LinearGradientBrush gradient;
    Gdiplus::GraphicsPath roundBox, star;
    LOGFONTW smallDescription, largeDescription;
    Gdiplus::Font smallFont, largeFont;
    Gdiplus::StringFormat centred;
    Gdiplus::Bitmap picture;
};

/// A part of the frame.
struct ScenePart
{
    const char* name; ///< letters and digits
    Gdiplus::Status (*draw)(Gdiplus::Graphics& graphics, const SceneObjects& objects);

    friend void PrintTo(const ScenePart& part, std::ostream* out) { *out << part.name; }
};

std::span<const ScenePart> sceneParts();

/// Draws all parts. @return the first failure.
Gdiplus::Status drawScene(Gdiplus::Graphics& graphics, const SceneObjects& objects);

} // namespace vq::test
