// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Pictures: read from files and streams, turned, saved.

#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Color.h"
#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/ImageCodecs.h"
#include "Platform/gdiplus/Rect.h"

#include <memory>

namespace vq::gdiplus {
struct PixelStore;
}
namespace vq::platform {
struct PixelTaker;
}

namespace Gdiplus {

/// A picture. One that could not be made is broken: its size is 0 and every call answers `InvalidParameter`.
/// Everything is read at once: no file or stream stays open, so a picture may be saved over the file it came from.
class VQPLATFORM_API Image : public GdiplusBase
{
    friend class Bitmap;
    friend class Graphics;
    friend struct vq::platform::PixelTaker;

public:
    /// A file that is missing or cannot be decoded leaves `OutOfMemory` in the status, as GDI+ does.
    Image(const WCHAR* filename, BOOL useEmbeddedColorManagement = FALSE);
    /// Reads the whole stream from its beginning. What cannot be decoded leaves `InvalidParameter` in the status.
    Image(IStream* stream, BOOL useEmbeddedColorManagement = FALSE);
    virtual ~Image();
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    static Image* FromFile(const WCHAR* filename, BOOL useEmbeddedColorManagement = FALSE);
    static Image* FromStream(IStream* stream, BOOL useEmbeddedColorManagement = FALSE);

    /// A copy with pixels of its own that the caller deletes; null when it fails.
    virtual Image* Clone() const;

    /// Writes beside the file and renames, so that a failure leaves an old file whole. `UnknownImageFormat` for an
    /// unknown encoder, `InvalidParameter` for null pointers, else a failing status when the file cannot be written.
    Status Save(const WCHAR* filename, const CLSID* clsidEncoder, const EncoderParameters* encoderParams = nullptr);
    /// Writes at the stream's position and leaves it behind the last byte.
    Status Save(IStream* stream, const CLSID* clsidEncoder, const EncoderParameters* encoderParams = nullptr);

    ImageType GetType() const;
    UINT GetWidth();
    UINT GetHeight();
    /// Dots per inch; 0 for a broken picture.
    REAL GetHorizontalResolution();
    REAL GetVerticalResolution();
    /// The size in pixels, as GDI+ answers for bitmaps.
    Status GetPhysicalDimension(SizeF* size);
    Status GetBounds(RectF* srcRect, Unit* srcUnit);
    /// The format of the file that the picture was read from; memory bitmaps have one of their own.
    Status GetRawFormat(GUID* format);
    PixelFormat GetPixelFormat();

    /// Turns and flips the pixels. They move to memory of the bitmap's own: memory of the caller stays as it is.
    Status RotateFlip(RotateFlipType rotateFlipType);

    /// The last failure since this was asked before; asking forgets it.
    Status GetLastStatus() const;

private:
    using Pixels = std::shared_ptr<vq::gdiplus::PixelStore>;

    Image(Pixels pixels, Status status);
    Status setStatus(Status status) const;
    template <typename Work>
    Status withPixels(Work work) const;
    template <typename Value, typename Reader>
    Value read(Value fallback, Reader reader) const;

    Pixels m_pixels;
    mutable Status m_lastStatus;
};

} // namespace Gdiplus
