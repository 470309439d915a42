// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Pictures made of pixels that can be read and written.

#include "Platform/gdiplus/Image.h"

namespace Gdiplus {

class Graphics;

class VQPLATFORM_API Bitmap : public Image
{
    friend class Graphics;

public:
    /// A file that is missing or cannot be decoded leaves `InvalidParameter` in the status.
    Bitmap(const WCHAR* filename, BOOL useEmbeddedColorManagement = FALSE);
    /// Reads the whole stream from its beginning.
    Bitmap(IStream* stream, BOOL useEmbeddedColorManagement = FALSE);
    /// Over memory of the caller, who keeps it alive: drawing, `SetPixel` and locking in the same format go straight to
    /// it. `scan0` is the topmost row; the stride is a multiple of 4 and negative when rows follow upwards. Without
    /// memory (null) the bitmap has its own, all zero.
    Bitmap(INT width, INT height, INT stride, PixelFormat format, BYTE* scan0);
    /// All zero.
    Bitmap(INT width, INT height, PixelFormat format = PixelFormat32bppARGB);
    /// Premultiplied, all zero, with the resolution of `target`.
    Bitmap(INT width, INT height, Graphics* target);
    /// Over the caller's device-independent bitmap, bottom-up unless its height is negative. 32 bits per pixel become
    /// 32bppRGB (alpha reads 255) and 24 become 24bppRGB over the same memory; 1, 4, 8 and 16 are a copy.
    Bitmap(const BITMAPINFO* gdiBitmapInfo, VOID* gdiBitmapData);
    /// A copy; alpha reads 255. The palette is not looked at: all bitmaps here have 32 bits.
    Bitmap(HBITMAP hbm, HPALETTE hpal);

    static Bitmap* FromFile(const WCHAR* filename, BOOL useEmbeddedColorManagement = FALSE);
    static Bitmap* FromStream(IStream* stream, BOOL useEmbeddedColorManagement = FALSE);
    static Bitmap* FromBITMAPINFO(const BITMAPINFO* gdiBitmapInfo, VOID* gdiBitmapData);
    static Bitmap* FromHBITMAP(HBITMAP hbm, HPALETTE hpal);

    Bitmap* Clone() const override;
    /// A part as a bitmap of its own in the format given, which the caller deletes. Null when the part has no area
    /// (`InvalidParameter`) or reaches outside (`OutOfMemory`, as GDI+ answers). Fractions are cut off.
    Bitmap* Clone(const Rect& rect, PixelFormat format) const;
    Bitmap* Clone(INT x, INT y, INT width, INT height, PixelFormat format) const;
    Bitmap* Clone(const RectF& rect, PixelFormat format) const;
    Bitmap* Clone(REAL x, REAL y, REAL width, REAL height, PixelFormat format) const;

    /// Gives access to the pixels of `rect` (null: all) in one of the four formats that a bitmap stores, until
    /// `UnlockBits`. In the bitmap's own format this is its memory, else a copy that `UnlockBits` converts back when
    /// writing was asked for. With `ImageLockModeUserInputBuf` the copy is the caller's memory (`Scan0`, `Stride`).
    /// `InvalidParameter` for a rectangle that has no area or reaches outside, `WrongState` while locked.
    Status LockBits(const Rect* rect, UINT flags, PixelFormat format, BitmapData* lockedBitmapData);
    Status UnlockBits(BitmapData* lockedBitmapData);

    /// `InvalidParameter` outside the bitmap; the colour object then stays as it is.
    Status GetPixel(INT x, INT y, Color* color) const;
    Status SetPixel(INT x, INT y, const Color& color);
    /// Dots per inch, more than 0. The pixels stay.
    Status SetResolution(REAL xdpi, REAL ydpi);

    /// A new 32-bit bottom-up bitmap that the caller deletes: premultiplied colours over `colorBackground`, whose own
    /// alpha is ignored, with the alpha of the picture.
    Status GetHBITMAP(const Color& colorBackground, HBITMAP* hbmReturn) const;

private:
    Bitmap(Pixels pixels, Status status);
    template <typename Make>
    void take(Make make);
    template <typename Make>
    Bitmap* copied(Make make) const;
};

} // namespace Gdiplus
