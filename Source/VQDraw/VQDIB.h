// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "VQDraw/Export.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <span>

class CVQArchive;
namespace vq {
class KeptFont;
}

/// A 32-bit raster image that can be addressed pixel by pixel and drawn on through GDI+ at the same time.
///
/// A pixel is the word `0xAARRGGBB` with straight (not premultiplied) alpha; in memory its bytes are blue, green, red,
/// alpha. Rows run from the top down without padding in one block, aligned to 16 bytes, which is also the pixel store
/// of the image's GDI+ bitmap.
///
/// Colour arguments of type `COLORREF` are `0x00BBGGRR`; a `Gdiplus::Color` is `0xAARRGGBB` as it stands.
///
/// The host starts GDI+ with `InitializeGDIPlus` before it makes images: an image made earlier is empty. On an empty
/// image every operation does nothing, except those that create one (`Resize`, assignment).
///
/// An image is used by one thread at a time. Creating and destroying images is safe from any thread.
///
/// Copying by construction gives a cleared image of the same size, deliberately: pass images by reference, and
/// duplicate content by assignment.
class VQDRAW_API CVQDIB
{
public:
    /// A cleared image. Sizes below 1 become 1. Empty when memory or GDI+ cannot be had; see `Create`.
    CVQDIB(int width, int height);
    /// A cleared image of the size of `other`, whose pixels are not copied, deliberately. An empty one gives 1 x 1.
    CVQDIB(CVQDIB& other);
    /// As the reference form; of a null pointer the image is empty.
    explicit CVQDIB(CVQDIB* other);
    /// The bitmap's pixels, drawn one to one whatever its resolution: pixels of alpha 0 become 0. Of a null or broken
    /// bitmap the image is empty. The bitmap stays the caller's.
    explicit CVQDIB(Gdiplus::Bitmap* bitmap);
    /// A picture by `LoadBMP` with its alpha by `LoadMaskBMP`. Where the first fails, the image is 4 x 4 and cleared.
    CVQDIB(CString imageFile, CString maskFile);
    /// The picture in a file, as `Load` reads it; empty when there is no such file.
    explicit CVQDIB(CString file);
    CVQDIB(CString file, COLORREF colour, LONG alpha);
    ~CVQDIB();

    /// Copies flags, shadow colour, shadow offset and all pixels. Font, print cursor and text colour stay,
    /// deliberately. Of an empty image a cleared 1 x 1 image is made; assignment from itself changes nothing.
    CVQDIB& operator=(const CVQDIB& other);

    /// @name Size
    /// @{
    /// Discards the content and makes a cleared image. @return 1, or 0 and an empty image.
    int Resize(LONG width, LONG height);
    int Resize(const CSize& size);
    /// With `keepContent` the old picture is resampled to the new size by its nearest pixels: column x takes the old
    /// column trunc(x * old width / new width), the product formed by repeated addition in single precision, rows
    /// alike. Without it as `Resize(width, height)`. The last argument is ignored, deliberately.
    /// @return 1 when the image was made anew; 0 when it already had that size (deliberately, although it is intact)
    /// and content was to be kept; 0 and an empty image when it cannot be made.
    int Resize(LONG width, LONG height, bool keepContent, bool);
    int Resize(const CSize& size, bool keepContent, bool);

    LONG GetWidth() const { return m_iWidth; }
    LONG GetHeight() const { return m_iHeight; }
    /// Number of pixels.
    std::int64_t GetSize() const { return m_iPixelCount; }
    std::int64_t GetSizeInByte() const { return m_iByteSize; }
    /// @}

    /// @name Pixels
    /// Coordinates and indices are not checked, except where a member says so.
    /// @{
    ULONG* GetImageBuffer() { return m_pImageBuffer; }
    BYTE* GetByteImageBuffer() { return reinterpret_cast<BYTE*>(m_pImageBuffer); }
    ULONG* GetImageBuffer(LONG x, LONG y) { return m_pImageBuffer + (m_pRowOffset[y] / kPixelBytes + x); }
    BYTE* GetByteImageBuffer(LONG x, LONG y) { return GetByteImageBuffer() + m_pRowOffset[y] + x * kPixelBytes; }
    ULONG& operator()(LONG x, LONG y) { return *GetImageBuffer(x, y); }
    /// Pixel number `i` counted from the top left, row by row.
    ULONG& operator[](std::int64_t i) { return m_pImageBuffer[i]; }

    /// Index of a pixel; rows outside the image continue the count.
    std::int64_t GetOffset(LONG x, LONG y) const;
    /// Offset of a pixel in bytes. The part of the column, x * 4, is computed in 32 bits and wraps round, deliberately.
    std::int64_t GetByteOffset(LONG x, LONG y) const;
    /// As `GetOffset` after a coordinate beyond the image was wrapped round once: by one width or height, not modulo.
    std::int64_t GetClippedOffset(LONG x, LONG y) const;
    std::int64_t GetClippedByteOffset(LONG x, LONG y) const;

    ULONG GetColor(LONG x, LONG y) const { return m_pImageBuffer[GetOffset(x, y)]; }
    /// Byte 0 of the pixel, which is its blue channel, deliberately.
    BYTE GetR(LONG x, LONG y) const { return static_cast<BYTE>(GetColor(x, y)); }
    BYTE GetG(LONG x, LONG y) const { return static_cast<BYTE>(GetColor(x, y) >> 8); }
    /// Byte 2 of the pixel, which is its red channel, deliberately.
    BYTE GetB(LONG x, LONG y) const { return static_cast<BYTE>(GetColor(x, y) >> 16); }
    BYTE GetA(LONG x, LONG y) const { return static_cast<BYTE>(GetColor(x, y) >> 24); }
    /// @}

    /// @name Filling
    /// Rectangles are normalised and cut to the image; both edges belong to them, deliberately: `CRect(0, 0, 10, 10)`
    /// is 11 x 11 pixels.
    /// @{
    void Clear(BYTE r, BYTE g, BYTE b, BYTE a);
    /// Opaque; the top byte of the colour is ignored.
    void Clear(COLORREF colour);
    void Clear(COLORREF colour, BYTE alpha);
    /// The colour's ARGB word as it is.
    void Clear(Gdiplus::Color colour);
    /// Alpha is clamped to 0 .. 255.
    void Clear(CRect rect, COLORREF colour, LONG alpha);

    /// Sets alpha and leaves the colours.
    void ClearAlpha(BYTE alpha);
    /// As above in a rectangle; an alpha above 255 is 255.
    void ClearAlpha(CRect rect, ULONG alpha);
    /// As above in row y; nothing when there is no such row.
    void ClearScanlineAlpha(LONG y, BYTE alpha);

    /// Alpha becomes alpha * (s + 1) / 256, rounded down, of which the low 8 bits are stored: 255 leaves it, 127
    /// halves it, values outside 0 .. 255 wrap round.
    void SaturateAlphaChannel(LONG s);
    /// As above in row y; nothing when there is no such row.
    void SaturateScanlineAlpha(LONG y, LONG s);
    /// @}

    /// @name Geometry and channels
    /// @{
    /// Exchanges the red and the blue byte of every pixel.
    void ExchangeRB();
    /// Mirrors the image top to bottom, in place.
    void FlipVertical();
    /// Turns clockwise first, then flips; width and height change places for quarter turns. Pixels of alpha 0 become
    /// 0, all others are kept exactly. A value that names no turn only clears the former. When memory cannot be had
    /// the image stays as it was.
    void Rotate(Gdiplus::RotateFlipType type);
    /// @}

    /// @name Blocks of pixels
    /// The w x h block at (sx, sy) of another image goes to (dx, dy) of this one, cut to both images. What a negative
    /// source position cuts off shortens the block, which stays at its destination, deliberately; a negative
    /// destination cuts off the block's own left and top. Without sizes the whole source goes. A null or empty source,
    /// and a block of which nothing is left, change nothing. All block transfers in the process exclude each other.
    ///
    /// Source and destination may be one image. Rows are done from the top, each as if its source had been copied aside
    /// first: a block that moves down into itself repeats its first rows, deliberately.
    /// @{
    /// Replaces pixels, alpha included.
    void Copy(CVQDIB& source);
    void Copy(CVQDIB* source);
    void Copy(CVQDIB& source, LONG x, LONG y);
    void Copy(CVQDIB* source, LONG x, LONG y);
    void Copy(CVQDIB& source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h);
    void Copy(CVQDIB* source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h);

    /// Blends by the source's alpha a: a colour becomes (source * a + old * (256 - a)) / 256, rounded down, so an
    /// opaque source stops one step short of its own colour (white over black is 254). Alphas add up to 255 at most.
    void Paste(CVQDIB& source);
    void Paste(CVQDIB* source);
    void Paste(CVQDIB& source, LONG x, LONG y);
    void Paste(CVQDIB* source, LONG x, LONG y);
    void Paste(CVQDIB& source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h);
    void Paste(CVQDIB* source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h);

    /// Draws the whole source through GDI+, scaled into a rectangle or over this whole image, with the interpolation
    /// mode that the graphics has. A null or empty source draws nothing. Afterwards the graphics has its default
    /// compositing quality, after `CopyWithScale` also the mode source-over.
    void CopyWithScale(CVQDIB* source);
    void CopyWithScale(CVQDIB* source, LONG x, LONG y, LONG w, LONG h);
    /// Composites with high quality, which blends in linear light.
    void PasteWithScale(CVQDIB* source);
    void PasteWithScale(CVQDIB* source, LONG x, LONG y, LONG w, LONG h);
    void PasteWithScaleFloat(CVQDIB* source, float x, float y, float w, float h);
    /// @}

    /// @name Blending whole images
    /// A colour becomes (new * weight + old * (256 - weight)) / 256, rounded down; the weight is added to alpha, and a
    /// sum of 256 or more is 255. A weight outside 0 .. 255 goes through the same formula in 32 bits, of which the low
    /// 8 bits are kept; of a negative alpha sum, too. A null image or one of another width or height changes nothing.
    /// @{
    /// Each pixel by the source's alpha.
    void Blend(const CVQDIB& source);
    void Blend(const CVQDIB* source);
    /// All pixels by one weight; the source's alpha does not matter.
    void Blend(const CVQDIB& source, LONG weight);
    void Blend(const CVQDIB* source, LONG weight);
    /// Towards one colour, whose channels are taken as given.
    void Blend(LONG r, LONG g, LONG b, LONG weight);
    /// Only the low 8 bits of the weight count; the bits of the colour's top byte are added to them by OR.
    void Blend(COLORREF colour, LONG weight);
    /// @}

    /// @name Combining whole images
    /// Channel by channel with the pixel of the same number in the other image, which may be this one. A null or empty
    /// source, or one with fewer pixels than this image, changes nothing; of a larger one, or one of another shape, the
    /// first pixels count. Products are divided by 256, not 255: white times white is 254.
    /// @{
    /// Sum of each of the four channels, 255 at most.
    void Add(CVQDIB& source);
    void Add(CVQDIB* source);
    /// Adds the image to itself.
    void Add();
    /// Difference of each of the four channels, 0 at least: an opaque source clears alpha, deliberately.
    void Subtract(CVQDIB& source);
    void Subtract(CVQDIB* source);
    /// Product of each of the four channels.
    void Multiply(CVQDIB& source);
    void Multiply(CVQDIB* source);
    /// Multiplies the image by itself.
    void Multiply();
    /// 255 - (255 - old) * (255 - source) / 256; alpha stays. Black on black is 1.
    void Screen(CVQDIB& source);
    void Screen(CVQDIB* source);
    /// The larger of the old channel and the source's times (level + 1) / 256, of which the low 8 bits count; alpha
    /// stays. 255 takes the source as it is, 0 changes nothing.
    void Lighten(CVQDIB& source, LONG level);
    void Lighten(CVQDIB* source, LONG level);
    /// Where the source's channel is below the old one, both times (level + 1) / 256 of which the low 8 bits count, the
    /// old one moves towards it by (level + 1) / 256 of their distance; alpha stays. 255 gives the smaller of both.
    void Darken(CVQDIB& source, LONG level);
    void Darken(CVQDIB* source, LONG level);
    /// Distance of the two colours, channel by channel; alpha stays.
    void Difference(CVQDIB& source);
    void Difference(CVQDIB* source);
    /// @}

    /// @name Tones
    /// Alpha stays, except where a member says otherwise.
    /// @{
    /// Subtracts `level` from red, green and blue, 0 at least. A negative level brightens and wraps round: the low 8
    /// bits of the sum are kept, and a sum beyond 32 bits is 0.
    void Darken(LONG level);
    void Invert();
    /// Grey of weight 0.587 green, 0.114 blue and 0.299 red, summed in this order in single precision, rounded down.
    void ConvertToGray();
    /// Grey of the plain mean of the three colours, rounded down, in a rectangle that is normalised and cut to the
    /// image; both edges belong to it.
    void ConvertToGray(CRect rect);
    /// Clears the low n bits of all four channels, alpha too; of n the low 3 bits count, so 8 changes nothing.
    void Quantize(LONG n);
    /// Stretches the blue channel to the range 0 .. 255 and makes it the grey of each pixel; green and red are lost,
    /// deliberately. An image of one blue value stays as it is.
    void Equalize();
    /// Leaves the image as it is, deliberately.
    void Emboss();
    /// @}

    /// @name Colours and patterns
    /// @{
    /// Blends `to`, a GDI colour `0x00BBGGRR`, into every opaque pixel whose colour is `from`, which is given as
    /// `0x00RRGGBB`, deliberately. The low 8 bits of alpha are the weight, together with the bits of `to`'s top byte:
    /// 255 stops one step short of the colour. @return 1; 0 when the image is empty.
    int ExchangeColor(const COLORREF& from, const COLORREF& to, LONG alpha);
    /// As above for pairs, in one pass: a pixel is compared as it was before. Pairs that match it blend in their order,
    /// so a colour given twice blends twice. @return 1; 0 when the image is empty or the arrays differ in size.
    int ExchangeColors(const CArray<COLORREF, const COLORREF&>& from, const CArray<COLORREF, const COLORREF&>& to,
                       LONG alpha);
    /// Blends a random pattern of clouds into the image, by halving steps from 256 to 2 pixels; the colour goes into
    /// the first pixel. Colour and weight are taken as given. Only blue feeds the pattern; the image's blue is its
    /// start. Randomness is the C library's `rand()`, which the host seeds: the same seed and image give the same
    /// picture.
    void BuildFractalMap(LONG r, LONG g, LONG b, LONG alpha);
    /// @}

    /// @name Smoothing, edges, blocks
    /// Every pixel is computed from the picture as it was. The cost is linear in the number of pixels. All arguments
    /// are harmless. Where a member needs memory, it throws std::bad_alloc before anything has changed. "Wraps round"
    /// means that beyond an edge the picture goes on at the opposite one.
    /// @{
    /// Each byte, alpha included, becomes the mean, rounded down, of itself and its neighbours at the left, above, and
    /// above left. The picture is taken as one long row, deliberately: at the left of column 0 stands the last pixel of
    /// the row above. The first row, the first pixel of the second row, and green, red and alpha of the last pixel
    /// stay. Needs no memory.
    void Smooth2x2();

    /// Red, green and blue become the mean, rounded down, of the 3 x 3 pixels around; alpha stays, and so does a frame
    /// of one pixel, whatever the arguments. Width or height below 3: nothing happens.
    void Smooth3x3();
    /// As above in the columns x1 .. x2 - 1.
    void Smooth3x3(LONG x1, LONG x2);
    /// As above in the columns x1 .. x2 - 1 and the rows y1 .. y2 - 1.
    void Smooth3x3(LONG x1, LONG y1, LONG x2, LONG y2);
    /// The same of a rectangle's edges, which is not normalised, deliberately: reversed, it is empty.
    void Smooth3x3(CRect rect);

    /// Each channel, alpha included, becomes its mean over the (2 * radius + 1) x (2 * radius + 1) pixels around, which
    /// wrap round as often as needed: the sum times 1 / (2 * radius + 1)^2 in single precision, cut to an integer (so
    /// that a flat picture may lose 1). Up to a radius of 127 the sum is exact; beyond, it is rounded to single
    /// precision once, and radii above 2^27 - 1 count as that. The cost does not grow with the radius: above 127 it is
    /// up to twice, above 1450 a few times that of a small one. Takes memory for 2 * radius + 1 rows, at most for as
    /// many as there are, and for the sums of a row's columns.
    void Smooth(ULONG radius);

    /// Softens a mask's edge from its transparent side: alpha of 0 .. 100 becomes the mean alpha, rounded down, of the
    /// 5 x 5 pixels around (5 x 5 despite the name), which wrap round. Alpha above 100 and all colours stay,
    /// deliberately: the solid side keeps its edge. Width or height below 6: nothing happens.
    void AlphaSmooth3x3();

    /// Red becomes the median of blue over the 3 x 3 pixels around, blue that of red (exchanged, deliberately), green
    /// that of green; alpha stays. A null rectangle is the interior, without the frame of one pixel, which never
    /// changes. Otherwise the rectangle, whose edges both belong to it, is normalised and written back clamped: left
    /// and right to 1 .. width - 2, top to 1 .. height - 2, bottom not above top; a bottom beyond width - 2, of the
    /// width, becomes height - 2, deliberately. A bottom below the interior is written back, but nothing is filtered
    /// there. Width or height below 3: nothing happens, the rectangle stays.
    void Median(CRect* rect);

    /// The edges of one channel as a grey picture: all four channels, alpha included, become 127 where the channel is
    /// flat, more where it stands out from the eight pixels around, which wrap round, less where it lies below them.
    /// @param channel 0 blue, 1 green, 2 red, 3 alpha; its two lowest bits count.
    void Laplacian(LONG channel);

    /// Fills blocks of `size` x `size` pixels, from the top left on, with their top left pixel. Narrower strips at the
    /// right and at the bottom stay, deliberately. Nothing happens below a size of 2, and unless it is smaller than
    /// both width and height. Needs no memory.
    void Mosaic(LONG size);
    /// @}

    /// @name Lines and outlines
    /// Drawn by GDI+ on the image's graphics: smooth while antialiasing is on, cut to the image, blended by alpha. Of
    /// an alpha, and of channels given one by one, the low 8 bits count; the top byte of a colour is ignored. Pens are
    /// in pixels; a negative width is 1, and so is 0. All coordinates are harmless. What GDI+ refuses to draw leaves
    /// its status in the graphics.
    /// @{
    /// With `arrow` the line ends in a head with its tip at (x2, y2).
    void Line(LONG x1, LONG y1, LONG x2, LONG y2, LONG r, LONG g, LONG b, LONG a, LONG width, bool arrow);
    void Line(LONG x1, LONG y1, LONG x2, LONG y2, COLORREF colour, LONG alpha, LONG width, bool arrow);
    void LineH(LONG x1, LONG x2, LONG y, COLORREF colour, LONG alpha);
    void LineV(LONG y1, LONG y2, LONG x, COLORREF colour, LONG alpha);
    /// From edge to edge of the image.
    void LineH(LONG y, COLORREF colour, LONG alpha, float width);
    void LineV(LONG x, COLORREF colour, LONG alpha, float width);

    /// Three pixels on, one off.
    void LineHStipple(LONG x1, LONG x2, LONG y, COLORREF colour, LONG alpha);
    void LineVStipple(LONG y1, LONG y2, LONG x, COLORREF colour, LONG alpha);
    /// From edge to edge of the image.
    void LineHStipple(LONG y, COLORREF colour, LONG alpha);
    void LineVStipple(LONG x, COLORREF colour, LONG alpha);
    /// One pixel on, one off. While antialiasing is on, dashes end in the middle of pixels, so that upright and level
    /// lines of these dots are even lines of half the alpha.
    void LineStipple(LONG x1, LONG y1, LONG x2, LONG y2, COLORREF colour, LONG alpha);
    void LineStipple(LONG x1, LONG y1, LONG x2, LONG y2, LONG r, LONG g, LONG b, LONG a);
    /// Round dots a pixel wide, a pixel apart.
    void LineStipple2(LONG x1, LONG y1, LONG x2, LONG y2, COLORREF colour, LONG alpha);

    /// The rectangle is normalised in place. Its right and bottom edges are drawn on: `CRect(0, 0, 10, 10)` is 11 x 11
    /// pixels. Without width or height nothing is drawn.
    void DrawRect(CRect& rect, COLORREF colour, LONG alpha);
    /// As above, in round dots a pixel wide, a pixel apart, clockwise from the top left.
    void DrawStippleRect(CRect& rect, COLORREF colour, LONG alpha);
    /// Top and left edge in one colour, then bottom and right edge in the other. The rectangle is normalised in place.
    void Draw3DRect(CRect& rect, COLORREF topLeft, COLORREF bottomRight, LONG alpha, LONG width);
    /// Lines along the middle of the outermost pixels.
    void DrawBorder(COLORREF colour, LONG alpha, float width);

    void DrawCircle(LONG cx, LONG cy, LONG radius, COLORREF colour, LONG alpha, LONG width);
    /// Through (px, py), with the radius rounded down to whole pixels and a pen of 1.
    void DrawCircle(LONG cx, LONG cy, LONG px, LONG py, COLORREF colour, LONG alpha);
    /// The ellipse in a rectangle, as it is given. Dashes are two widths long, three apart.
    void DrawCircle(Gdiplus::Rect rect, Gdiplus::Color colour, double width, bool dashed);
    /// In a rectangle that is normalised.
    void DrawCircle(CRect rect, COLORREF colour, BYTE alpha, double width, bool dashed);

    /// The rectangle is normalised. `corner` is the diameter of the round corners: 0 gives plain ones, below 0 nothing
    /// is drawn.
    void DrawRoundRect(CRect rect, int corner, int width, COLORREF colour, BYTE alpha);
    /// The closed polygon of `count` points. Nothing below three.
    void DrawRgn(CPoint* points, int count, int width, COLORREF colour, LONG alpha);
    /// As above, but what it covers takes colour and alpha exactly, instead of being blended. An alpha of 0 clears.
    void ClearRgnPath(CPoint* points, int count, int width, COLORREF colour, LONG alpha);

    /// Blends one pixel, without GDI+: a colour becomes (new * a + old * (256 - a)) / 256, rounded down, so 255 stops
    /// one step short of the colour. Alphas add up to 255 at most. Outside the image nothing happens. The low 8 bits of
    /// every channel count.
    void Pixel(int x, int y, LONG r, LONG g, LONG b, LONG a);
    void Pixel(int x, int y, COLORREF colour, LONG alpha);
    /// @}

    /// @name Filled shapes
    /// As lines and outlines. Rectangles are normalised where nothing else is said; their right and bottom edges lie
    /// outside.
    /// @{
    /// With hard edges whatever the antialiasing, deliberately.
    void FillRect(CRect rect, COLORREF colour, LONG alpha);
    void FillRect(CRect rect, Gdiplus::LinearGradientBrush& brush);
    /// The pattern's lines, which lie on a grid of the image's, over what is there. The rectangle is not normalised,
    /// deliberately: reversed, it is empty.
    void FillHatchRect(CRect rect, COLORREF colour, LONG alpha, Gdiplus::HatchStyle style);

    /// The ellipse in a rectangle, as it is given.
    void FillCircle(Gdiplus::Rect rect, Gdiplus::Color colour);
    void FillCircle(CRect rect, COLORREF colour, BYTE alpha);
    /// Opaque, with an outline of 1.
    void DrawFilledCircle(CRect rect, COLORREF outline, COLORREF fill);

    /// Corners as in `DrawRoundRect`.
    void FillRoundRect(CRect rect, int corner, COLORREF colour, BYTE alpha);
    void DrawFilledRoundRect(CRect rect, int corner, int width, COLORREF fill, BYTE fillAlpha, COLORREF outline,
                             BYTE outlineAlpha);
    /// The first colour up to 80 % of the way from p1 to p2, then a ramp to the second one; beyond both ends it
    /// repeats. The rectangle's corners are plain whatever `corner` says, deliberately. Nothing when p1 is p2.
    void FillGradientRoundRect(CRect rect, int corner, Gdiplus::PointF p1, Gdiplus::PointF p2, COLORREF c1, COLORREF c2,
                               BYTE a1, BYTE a2);

    /// The polygon of `count` points; parts covered twice stay open. Nothing below three points.
    void FillRgn(CPoint* points, int count, COLORREF colour, LONG alpha);
    /// As above, but what it covers takes colour and alpha exactly, instead of being blended. An alpha of 0 clears.
    void ClearRgn(CPoint* points, int count, COLORREF colour, LONG alpha);
    /// @}

    /// @name Selections
    /// @{
    /// A rectangle between two opposite corners: width and height as labels in the image's font and text colour, where
    /// there is room for them, then the fill over the labels, deliberately, then guides across the whole image if
    /// wanted, a dashed outline, and ticks at the corners, all white.
    void DrawSelection(CPoint& p1, CPoint& p2, COLORREF colour, LONG alpha, bool guides);
    /// Draws nothing and stands in no slot, deliberately.
    static void LineHSSE2(CVQDIB* image, LONG x1, LONG x2, LONG y, COLORREF colour, LONG alpha);
    /// @}

    /// @name GDI+ for the process
    /// @{
    /// Starts GDI+. The host calls it once before it makes images; the library never does.
    /// @return 1 when GDI+ runs (also when it was running already), else 0.
    static int InitializeGDIPlus();
    /// Stops GDI+, also at unloading the library, and is harmless when GDI+ was never started. @return always 1.
    static int ShutdownGDIPlus();
    /// @}

    /// @name Drawing surfaces
    /// @{
    /// Smooth edges for what GDI+ draws; on for a new image.
    void EnableAntialias(bool on);
    bool IsEnableAntialias() const;
    /// The bitmap over the image's own pixels, not a copy; owned by the image, null when it is empty.
    Gdiplus::Bitmap* GetBitmap() { return m_pBitmap; }
    /// The drawing surface on that bitmap; owned by the image, null when it is empty.
    Gdiplus::Graphics* GetGraphics() { return m_pGraphics; }

    /// A new GDI bitmap of the picture over opaque black, which the caller deletes. Its bytes hold the picture
    /// premultiplied, with its alpha. Null for an empty image.
    HBITMAP GetBitmapHandle();
    /// Describes the pixel buffer: 32 bits, top-down rows (negative height), uncompressed.
    BITMAPINFO GetBitmapInfo() const;
    /// @}

    /// @name Text settings
    /// They live as long as the object, also while it is empty. A fresh image has the system's `DEFAULT_GUI_FONT`,
    /// opaque white text and no shadow; the shadow's colour is automatic, its offset (1, 1).
    /// @{
    /// The font of a stock object, as `DEFAULT_GUI_FONT`. What is no font changes nothing.
    void SetFont(int stockObject);
    void SetTextFont(LOGFONTW& font);
    /// A null or empty font changes nothing.
    void SetTextFont(CFont* font);
    LOGFONTW GetFont() const { return m_LogFont; }
    /// The font's `lfHeight` as it is: a negative one is the em's in pixels, a positive one that of the cell.
    void SetFontSize(LONG size) { m_LogFont.lfHeight = size; }
    LONG GetFontSize() const { return m_LogFont.lfHeight; }
    void SetBoldFont(bool bold) { m_LogFont.lfWeight = bold ? FW_BOLD : FW_NORMAL; }
    bool IsBoldFont() const { return m_LogFont.lfWeight > FW_NORMAL; }
    void SetItalicFont(bool italic) { m_LogFont.lfItalic = italic; }
    bool IsItalicFont() const { return m_LogFont.lfItalic != 0; }

    /// An alpha of 255 is stored as 254, deliberately: GDI+ draws opaque text of some hints through GDI, which leaves
    /// alpha 0 in a picture that has alpha.
    void SetTextColor(COLORREF colour, BYTE alpha);
    /// With alpha 255, and so 254. The last two arguments are ignored, deliberately.
    void SetTextColor(COLORREF colour, ULONG, ULONG);
    /// Without its alpha; 0 while GDI+ does not run.
    COLORREF GetTextColor() const;

    void EnableTextShadow(bool on);
    /// Also ends the automatic choice of the shadow's colour, which is white under text of a luminance below 61 (of
    /// 240) and black under lighter text.
    void SetTextColorShadow(COLORREF colour);
    void SetTextShadowOffset(LONG x, LONG y);

    /// Move the cursor of `print`.
    void GotoX(int x) { m_iPrintX = x; }
    void GotoXY(int x, int y);

    static void GetRenderingHint(Gdiplus::TextRenderingHint& hint);
    /// Sets how text is rendered, for every image from its next text operation on. Not guarded: set at start-up, or by
    /// the thread that draws. @return the value before.
    static Gdiplus::TextRenderingHint SetRenderingHint(Gdiplus::TextRenderingHint hint);
    /// @}

    /// @name Text
    /// Any script that an installed font covers. A null or empty text draws nothing and measures (0, 0). What GDI+
    /// refuses leaves its status in the graphics. To draw in the same font again makes no font anew.
    /// @{
    /// One string, whose layout begins at (x, y): the ink begins a sixth of an em further right. With the rendering
    /// hint AntiAlias it is drawn a second time at alpha 128, deliberately: smoothed text would look thin.
    void TextOutW(LONG x, LONG y, CString& text);
    void TextOutW(LONG x, LONG y, const wchar_t* text);

    /// Lays a text out in a rectangle, both of whose edges belong to it: (0, 0, 99, 19) is 100 x 20 pixels. Lines break
    /// at line feeds and, where they do not fit, between words; all is clipped to the rectangle. A null rectangle draws
    /// nothing.
    /// @param format bits: 1 lines centred, 2 at the right (also together with 1); 4 the block of lines in the middle,
    /// 8 at the bottom (also together with 4); 32 no breaks but line feeds. Others are ignored. With the rendering hint
    /// AntiAliasGridFit bit 4 centres in whole pixels and wins over 8.
    void DrawTextW(const CString& text, RECT* rect, UINT format);
    /// Line by line, downwards from the top of the rectangle, each as high as it measures; lines that do not fit into
    /// the width are cut by their height. Empty lines are left out. The first is moved by (1, 2), deliberately, and the
    /// others stand under it. The rectangle's bottom does not count.
    /// @param colours one for each line, an opaque background behind it, of which 0 is none; or none at all. Fewer
    /// colours than lines throw `CInvalidArgException*`, with the lines before drawn.
    void DrawTextW(const CString& text, RECT* rect, UINT format, const CArray<COLORREF, const COLORREF&>& colours);

    /// A label in a box with round corners, which is as large as the text and the margins, from (x, y) on.
    /// The outline is opaque, and the low 8 bits of `borderAlpha` are its width in pixels, deliberately.
    /// @return the box; (0, 0, 0, 0), with nothing drawn, for an empty text or image.
    CRect TextBox(LONG x, LONG y, const wchar_t* text, COLORREF fillColour, LONG fillAlpha, COLORREF borderColour,
                  LONG borderAlpha, LONG marginX, LONG marginY);

    /// Writes at the cursor, by the rules of `CString::Format`, and moves the cursor behind the text; when that ends in
    /// a line feed, back to where it stood, deliberately, and down by the height of a space. An empty result moves
    /// nothing.
    void print(const wchar_t* format, ...);

    /// The room that a text takes, in pixels, rounded down: a sixth of an em on either side and an eighth of one below
    /// are part of it, spaces at the end are not.
    CSize GetTextSize(CString& text) const;
    CSize GetTextSize(const wchar_t* text) const;
    /// In that font. Costs a look-up for the font that was measured in before.
    static CSize GetTextSize(const LOGFONTW& font, const CString& text);
    static CSize GetTextSize(const LOGFONTW& font, const wchar_t* text);
    static CSize GetTextSize(const CFont& font, const CString& text);
    static CSize GetTextSize(const CFont& font, const wchar_t* text);
    /// @}

    /// @name Device contexts
    /// Showing writes pixels as they are, without blending with what is there, one to one whatever the device's
    /// resolution. Opaque pixels are exact on every system. A null context shows nothing.
    /// @{
    void Update(CDC* target);
    void Update(const CDC& target);
    void Update(HDC target);
    /// With the top left at (x, y).
    void Update(CDC* target, int x, int y);
    void Update(const CDC& target, int x, int y);
    void Update(HDC target, int x, int y);
    /// The w x h part that starts at (sx, sy).
    void Update(CDC* target, int x, int y, int sx, int sy, int w, int h);
    void Update(const CDC& target, int x, int y, int sx, int sy, int w, int h);
    void Update(HDC target, int x, int y, int sx, int sy, int w, int h);

    /// Copies the w x h block at (sx, sy) of a device context to (dx, dy). Red, green and blue arrive; pixels that
    /// change get alpha 255.
    void Copy(HDC source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h);

    /// For diagnosis: shows the image on the screen, or where there is none on the memory that stands for it.
    void DumpToDesktop(int x, int y);
    /// For diagnosis: shows the alpha channel on the screen as an opaque grey picture.
    void DumpAlphaToDesktop(LONG x, LONG y);
    /// @}

    /// @name Files
    /// A path may use `\\` or `/` to separate its parts. What is written is written beside and renamed: a failure
    /// leaves an old file whole. Files are read whole or not at all: one that is damaged, cut off or lies about its
    /// size takes no more memory than it has bytes to show for.
    /// @{

    /// The formats of `WriteFileFromBitmap`.
    enum eImageFormatType : int { IFT_BMP, IFT_JPEG, IFT_GIF, IFT_TIFF, IFT_PNG, IFT_END };

    /// Takes the picture in a file of any format that GDI+ reads, one to one whatever its resolution: of an animation
    /// or a file of several pages the first picture. Pixels of alpha 0 become 0. @return whether the file exists: one
    /// that cannot be read, or is too large for memory, gives true and a cleared image of 1 x 1, deliberately. False
    /// leaves the image as it was.
    bool Load(CString path);
    /// As above, with the picture drawn over a background: `alpha` modulo 256, the top byte of the colour ignored.
    /// Partly transparent pixels are blended in linear light. @return 1 when the file exists, else 0.
    int Load(CString path, COLORREF colour, LONG alpha);

    /// Writes the format that the last four characters of the path say, in letters of either size: ".bmp" (32 bits),
    /// ".jpg" (quality 100, alpha dropped), ".gif", "tiff", ".png". To any other path ".png" is appended, also to one
    /// in ".tif", deliberately. @return false for an empty path only: whether a file could be written is not told. An
    /// empty image writes none.
    bool Save(CString path);

    /// Finds GDI+'s encoder for a MIME type, which is compared letter by letter. @return its index among the encoders;
    /// -1, and `*clsid` is left alone, when there is none, an argument is null, or memory cannot be had.
    static int GetEncoderClsid(const wchar_t* mimeType, CLSID* clsid);

    /// Takes the picture of an uncompressed Windows bitmap of 24 bits a pixel, rows from the bottom up; alpha is 255.
    /// @return false, and the image stays as it was, for anything else: another depth, rows from the top down, a header
    /// or rows cut off.
    bool LoadBMP(CString path);
    /// Sets alpha from the red of such a file, plus 64 and 255 at most, deliberately: black gives 64, never 0. Colours
    /// stay. A mask of another size counts where both overlap, top left on top left. @return as `LoadBMP`.
    bool LoadMaskBMP(CString path);

    /// Takes the bitmap with this number from the library's resources, those in the user's language first, or else from
    /// the program's. @return false when there is none.
    bool LoadBitmapW(UINT resourceId, bool resize);
    /// Takes the pixels of a bitmap, opaque, into the top left corner of the image, which first gets the bitmap's size
    /// if `resize` is set. The bitmap must not be selected into a device context. @return false for null, or an object
    /// without a bitmap.
    bool LoadBitmapW(CBitmap* bitmap, bool resize);

    /// For diagnosis: writes the pixel buffer as a Windows bitmap of 32 bits with rows from the top. ".bmp" is appended
    /// to a path that does not end so. The header's `bfSize` counts the pixels only, deliberately. @return whether all
    /// was written; false, without a file, for an empty image.
    bool DumpToBMP(CString path);
    /// The same with alpha as a grey picture, whose fourth byte is 0.
    bool DumpAlphaToBMP(CString path);
    /// @}

    /// @name Pictures in archives and streams
    /// A picture is stored as a length of four bytes, the lowest first, and that many bytes of an encoded file. An
    /// archive that ends too early throws its `CArchiveException*`; a stream then gives false. Memory grows with what
    /// arrives. A block whose picture cannot be decoded is passed over in full.
    /// @{
    /// Takes a picture of any format, drawn onto a cleared image. @return false, and the image stays as it was, when
    /// there is none, it cannot be decoded, or memory cannot be had.
    bool ReadFile(CVQArchive* archive);
    /// Stores the image as PNG; an empty image, and one that cannot be encoded, as a length of 0. @return false for a
    /// null archive only: whether it could be encoded is not told, deliberately.
    bool WriteFile(CVQArchive* archive);

    /// @param[out] bitmap the caller's to delete; null unless true is returned.
    static bool ReadFileToBitmap(CVQArchive* archive, Gdiplus::Bitmap*& bitmap);
    static bool ReadFileToBitmap(std::FILE* file, Gdiplus::Bitmap*& bitmap);
    /// As `WriteFile`; of a null bitmap a length of 0.
    static bool WriteFileFromBitmap(Gdiplus::Bitmap* bitmap, CVQArchive* archive);
    /// Writes any of the five formats by the encoder's own settings, with the length before it if asked for. Nothing is
    /// written of a bitmap that cannot be encoded, which is not told, deliberately; a stream that takes less than all
    /// says so by `ferror`. @return false, and nothing is written, for a format that is none of them, one that GDI+ has
    /// no encoder for, or a null stream.
    static bool WriteFileFromBitmap(Gdiplus::Bitmap* bitmap, std::FILE* file, eImageFormatType format,
                                    bool writeLength);
    /// @}

    /// @name Dispatch
    /// Routines are called through these slots. Both switches store the same portable routines, deliberately: no
    /// result depends on the processor. To be called at start-up, before other threads use images.
    /// @{
    static void EnableSIMD();
    static void DisableSIMD();

    using CopyRoutine = void(CVQDIB& dst, CVQDIB& src, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h);
    using PasteRoutine = void(CVQDIB* dst, CVQDIB* src, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h);
    using ImageRoutine = void(CVQDIB& image);
    using LevelRoutine = void(CVQDIB& image, LONG level);
    using PairRoutine = void(CVQDIB& dst, CVQDIB& src);
    using PairLevelRoutine = void(CVQDIB& dst, CVQDIB& src, LONG level);
    using CircleRoutine = void(CVQDIB* image, LONG cx, LONG cy, LONG px, LONG py, COLORREF colour, LONG alpha);

    static CopyRoutine* pfCopy;
    static PasteRoutine* pfPaste;
    static LevelRoutine* pfQuantize;
    static ImageRoutine* pfConvertToGray;
    static ImageRoutine* pfEqualize;
    static PairRoutine* pfMultiply;
    static PairLevelRoutine* pfLighten;
    static PairLevelRoutine* pfDarken;
    static PairRoutine* pfDifference;
    static ImageRoutine* pfInvert;
    static PairRoutine* pfScreen;
    static PairRoutine* pfAdd;
    static PairRoutine* pfSubtract;
    static ImageRoutine* pfEmboss;
    /// The selection of the circle around (cx, cy) through (px, py), its radius rounded down to whole pixels: filled in
    /// the colour, with a dashed outline, a radius and a square handle at both of its ends in white of an alpha higher
    /// by 32, 255 at most. A null image is harmless.
    static CircleRoutine* DrawCircleSelection;
    /// @}

protected:
    /// Gives every member its first value, without releasing anything: for constructors.
    void Initialize();
    /// Makes a cleared image after releasing the old one. Sizes below 1 become 1.
    /// @return 1; or 0 and an empty image when the pixel count or the bytes of a row exceed 2^31 - 1, memory cannot be
    /// had, or GDI+ refuses.
    int Create(int width, int height);
    /// Releases pixels, bitmap and graphics. Font, colours, flags and cursor are kept.
    void Destroy();
    /// Applies text rendering hint and smoothing to the graphics.
    void InitializeGraphics();

    /// Draw the shadow of a text nine times, at every offset of at most one pixel around the shadow's offset, in its
    /// colour at alpha 32: soft edges, densest under the glyphs.
    void DropTextShadow(const Gdiplus::Font& font, Gdiplus::PointF origin, const wchar_t* text);
    void DropTextShadow(const Gdiplus::Font& font, Gdiplus::RectF layout, const Gdiplus::StringFormat& format,
                        const wchar_t* text);

    /// Serialises creation and destruction of images and the use of shared GDI+ state in the whole process.
    static CCriticalSection _critSect;
    /// 0 unless GDI+ was started by `InitializeGDIPlus`.
    static ULONG_PTR m_gdiplusToken;
    static Gdiplus::TextRenderingHint m_RenderingHint;

private:
    friend struct VQTestAccess;

    static constexpr std::int64_t kPixelBytes = 4;

    int Allocate(int width, int height, void* (*allocator)(std::size_t) noexcept);
    bool Adopt(ULONG* pixels, LONG width, LONG height);
    ULONG* Detach();
    void ExchangePicture(CVQDIB& other);
    void DrawWhole(Gdiplus::Bitmap& picture);
    bool Take(Gdiplus::Bitmap& picture);
    void CreateOrBlank(Gdiplus::Bitmap& picture);
    std::int64_t RowOffset(LONG y) const;
    bool HasRow(LONG y) const { return y >= 0 && y < m_iHeight; }
    CRect ClipInclusive(CRect rect) const;

    static int RectangularRegionClip(CVQDIB& dst, LONG& dx, LONG& dy, CVQDIB& src, LONG& sx, LONG& sy, LONG& w,
                                     LONG& h);
    std::span<ULONG> Pixels() const { return {m_pImageBuffer, static_cast<std::size_t>(m_iPixelCount)}; }
    bool HasSizeOf(const CVQDIB& other) const;
    Gdiplus::Rect Reachable(const CRect& rect) const;
    void AddRoundRect(Gdiplus::GraphicsPath& path, CRect rect, int corner) const;
    void DrawSizeLabels(const CRect& selection);
    void DrawCornerTicks(const CRect& selection);
    const Gdiplus::Font* TextFont() const;
    COLORREF ShadowColour() const;
    void FillLine(const CRect& line, COLORREF colour);
    Gdiplus::SolidBrush* TextBrush();
    void DrawString(const Gdiplus::Font* font, const Gdiplus::RectF& layout, const Gdiplus::StringFormat* format,
                    const wchar_t* text);
    void DropShadow(const Gdiplus::Font* font, const Gdiplus::RectF& layout, const Gdiplus::StringFormat* format,
                    const wchar_t* text);
    /// Lets go of what is kept for measuring, before GDI+ ends.
    static void ReleaseMeasuring();

    int ExchangePairs(const COLORREF* from, const COLORREF* to, std::size_t count, LONG alpha);

    // The portable routines do the work; those named after a processor call them, so that no result depends on it.
    // `MultiplySSE3` does nothing and stands in no slot.
    static CopyRoutine CopyDefault, CopySSE2;
    static PasteRoutine PasteDefault, PasteSSE2;
    static LevelRoutine QuantizeDefault, QuantizeSSE2;
    static ImageRoutine ConvertToGrayDefault, ConvertToGraySSE2, ConvertToGraySSSE3;
    static ImageRoutine EqualizeDefault, EqualizeSSE2;
    static PairRoutine MultiplyDefault, MultiplySSE2, MultiplySSE3;
    static PairLevelRoutine LightenDefault, LightenSSE2;
    static PairLevelRoutine DarkenDefault, DarkenSSE2;
    static PairRoutine DifferenceDefault, DifferenceSSE2;
    static ImageRoutine InvertDefault, InvertSSE2;
    static PairRoutine ScreenDefault, ScreenSSE2;
    static PairRoutine AddDefault, AddSSE2;
    static PairRoutine SubtractDefault, SubtractSSE2;
    static ImageRoutine EmbossDefault, EmbossSSE2;
    static CircleRoutine DrawCircleSelectionDefault, DrawCircleSelectionSSE2;

    ULONG* m_pImageBuffer;
    Gdiplus::Bitmap* m_pBitmap;
    Gdiplus::Graphics* m_pGraphics;
    Gdiplus::SolidBrush* m_pTextBrush; // null only while GDI+ has not been started
    std::int64_t* m_pRowOffset;        // in bytes, one a row
    std::int64_t m_iPixelCount;
    std::int64_t m_iByteSize;
    LONG m_iWidth;
    LONG m_iHeight;
    int m_iPrintX;
    int m_iPrintY;
    int m_iShadowX;
    int m_iShadowY;
    LOGFONTW m_LogFont;
    COLORREF m_uiShadowColor;
    ULONG m_uiSpare;
    ULONG m_uiFlags;
    mutable vq::KeptFont* m_pKeptFont; // null until text is drawn or measured
};
