// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a Graphics is made of: a surface, settings, and the device context it may have handed out.

#include "Platform/gdiplus/Canvas.h"
#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/PixelStore.h"
#include "Platform/gdiplus/brushes/Shader.h"
#include "Platform/win32/BlankContext.h"

#include <memory>
#include <optional>
#include <utility>

namespace vq::gdiplus {

/// Pixels per unit at a resolution in dots per inch; 1 for world units, pixels and those of the display.
float pixelsPer(Gdiplus::Unit unit, float dotsPerInch);

/// Fresh values are GDI+'s.
struct GraphicsSettings
{
    Gdiplus::CompositingMode compositingMode = Gdiplus::CompositingModeSourceOver;
    Gdiplus::CompositingQuality compositingQuality = Gdiplus::CompositingQualityDefault;
    Gdiplus::InterpolationMode interpolationMode = Gdiplus::InterpolationModeBilinear;
    Gdiplus::PixelOffsetMode pixelOffsetMode = Gdiplus::PixelOffsetModeDefault;
    Gdiplus::SmoothingMode smoothingMode = Gdiplus::SmoothingModeNone;
    Gdiplus::TextRenderingHint textRenderingHint = Gdiplus::TextRenderingHintSystemDefault;
    UINT textContrast = 4;
    Gdiplus::Point renderingOrigin;
    Gdiplus::Unit pageUnit = Gdiplus::UnitDisplay;
    Gdiplus::REAL pageScale = 1;

    bool hasHalfPixelOffset() const
    {
        return pixelOffsetMode == Gdiplus::PixelOffsetModeHalf ||
               pixelOffsetMode == Gdiplus::PixelOffsetModeHighQuality;
    }
    bool isSmooth() const { return smoothingMode >= Gdiplus::SmoothingModeAntiAlias; }
    Blend blend() const;
};

/// A device context over a picture that can only be written to. It is prepared with one colour; what has another colour
/// afterwards was drawn. Memory is taken when something is drawn or read, and kept for the next time: most borrowers
/// only make a font.
class BorrowedContext
{
public:
    BorrowedContext();

    /// Null when memory for the context itself cannot be had.
    HDC open(int width, int height);
    /// Ends the context and copies what was drawn, opaque. `OutOfMemory` when something could not be drawn or read for
    /// want of memory; the rest is copied.
    Gdiplus::Status close(PixelStore& target);

private:
    win32::BlankContext m_context;
};

struct DrawingMemory;
class GraphicsState;

/// The surface as a canvas, for one call. Premultiplied and 24-bit pixels are drawn on as straight ones, in a copy.
class OpenCanvas
{
public:
    OpenCanvas(const GraphicsState& state, Blend blend);

    /// Whether there is anything to draw on.
    explicit operator bool() const { return m_canvas.has_value(); }
    /// Why there is nothing: Ok for a surface without pixels.
    Gdiplus::Status status() const { return m_status; }
    const Canvas& operator*() const { return *m_canvas; }
    /// Converts a copy back. Pixels that did not change keep every bit.
    void commit() const;

private:
    const GraphicsState& m_state;
    std::optional<Canvas> m_canvas;
    Pixels m_copy;
    Gdiplus::Status m_status = Gdiplus::Ok;
};

class GraphicsState
{
public:
    explicit GraphicsState(Pixels image);
    explicit GraphicsState(HDC context);
    ~GraphicsState();
    GraphicsState(const GraphicsState&) = delete;
    GraphicsState& operator=(const GraphicsState&) = delete;

    GraphicsSettings settings;

    /// A context that was handed out makes every call fail.
    bool isBusy() const { return m_lent != nullptr; }
    HDC lend();
    /// `InvalidParameter`, and nothing happens, when `context` is not the one handed out.
    Gdiplus::Status takeBack(HDC context);

    Resolution resolution() const;
    /// Pixels per world unit across and down.
    Resolution pageFactors() const;
    ShadingSettings shading() const;

    /// Made when a shape is first drawn.
    DrawingMemory& memory();

    /// Whether a view may show some of the surface's own pixels.
    bool overlaps(ConstPixelView view) const;

    /// Runs a renderer on the surface, with the blend given. A surface without pixels takes everything and shows
    /// nothing. The renderer is given a Canvas and answers a status.
    template <typename Renderer>
    Gdiplus::Status draw(Blend blend, Renderer&& renderer) const
    {
        OpenCanvas canvas(*this, blend);
        if (!canvas)
            return canvas.status();
        const Gdiplus::Status status = renderer(*canvas);
        if (status == Gdiplus::Ok)
            canvas.commit();
        return status;
    }
    template <typename Renderer>
    Gdiplus::Status draw(Renderer&& renderer) const
    {
        return draw(settings.blend(), std::forward<Renderer>(renderer));
    }

private:
    friend class OpenCanvas;

    Pixels m_image; ///< empty for a device context
    HDC m_context = nullptr;
    HDC m_lent = nullptr;
    BorrowedContext m_borrowed;
    std::unique_ptr<DrawingMemory> m_memory;
};

} // namespace vq::gdiplus
