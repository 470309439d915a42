// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/GlyphRenderer.h"

#include "Platform/gdiplus/text/Contrast.h"
#include "Platform/gdiplus/text/Emboldening.h"

#include <algorithm>
#include <cmath>

#include FT_OUTLINE_H

namespace vq::gdiplus {
namespace {

constexpr FT_Pos kPixel = 64;       // FreeType's 26.6 numbers
constexpr double kFixedOne = 65536; // and its 16.16 ones
constexpr int kBitsPerByte = 8;

FT_Int32 loadFlags(const GlyphStyle& style)
{
    switch (style.rendering) {
    case GlyphRendering::TwoLevel:
        return FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_MONO;
    case GlyphRendering::HintedGrey:
        return FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_NORMAL;
    case GlyphRendering::SmoothGrey:
        break;
    }
    return FT_LOAD_NO_BITMAP | FT_LOAD_NO_HINTING;
}

/// Strokes grow to the right only, as GDI's do; by whole pixels, one at least, where pixels are on or off.
void embolden(FT_Outline& outline, const GlyphStyle& style)
{
    const float pixels = emboldeningOf(style.em);
    const bool whole = style.rendering == GlyphRendering::TwoLevel;
    const float strength = whole ? std::max(1.0F, std::round(pixels)) : pixels;
    FT_Outline_EmboldenXY(&outline, std::lround(strength * static_cast<float>(kPixel)), 0);
}

void slant(FT_Outline& outline)
{
    FT_Matrix matrix{FT_Fixed{1} << 16, static_cast<FT_Fixed>(kSlant * kFixedOne), 0, FT_Fixed{1} << 16};
    FT_Outline_Transform(&outline, &matrix);
}

int floorToPixel(FT_Pos position)
{
    return static_cast<int>(position >> 6);
}
int ceilToPixel(FT_Pos position)
{
    return static_cast<int>((position + kPixel - 1) >> 6);
}

PixelRect boundsOf(const FT_Outline& outline)
{
    FT_BBox box{};
    FT_Outline_Get_CBox(&outline, &box);
    return {floorToPixel(box.xMin), -ceilToPixel(box.yMax), ceilToPixel(box.xMax), -floorToPixel(box.yMin)};
}

GlyphImage imageOf(const PixelRect& box)
{
    GlyphImage image;
    image.left = box.left;
    image.top = box.top;
    image.width = box.right - box.left;
    image.height = box.bottom - box.top;
    image.coverage.resize(static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height));
    return image;
}

FT_Bitmap bitmapOver(std::vector<Channel>& memory, const GlyphImage& image, int pitch, FT_Pixel_Mode mode)
{
    FT_Bitmap bitmap{};
    bitmap.rows = static_cast<unsigned>(image.height);
    bitmap.width = static_cast<unsigned>(image.width);
    bitmap.pitch = pitch;
    bitmap.buffer = memory.data();
    bitmap.num_grays = 256;
    bitmap.pixel_mode = static_cast<unsigned char>(mode);
    return bitmap;
}

void drawTwoLevels(FT_Library library, FT_Outline& outline, GlyphImage& image)
{
    const int pitch = (image.width + kBitsPerByte - 1) / kBitsPerByte;
    std::vector<Channel> bits(static_cast<std::size_t>(pitch) * static_cast<std::size_t>(image.height));
    FT_Bitmap bitmap = bitmapOver(bits, image, pitch, FT_PIXEL_MODE_MONO);
    if (FT_Outline_Get_Bitmap(library, &outline, &bitmap) != 0)
        return;
    auto pixel = image.coverage.begin();
    for (int y = 0; y < image.height; ++y) {
        const Channel* row = bits.data() + static_cast<std::ptrdiff_t>(y) * pitch;
        for (int x = 0; x < image.width; ++x)
            *pixel++ = (row[x / kBitsPerByte] << x % kBitsPerByte & 0x80) != 0 ? 255 : 0;
    }
}

void drawGrey(FT_Library library, FT_Outline& outline, GlyphImage& image, unsigned contrast)
{
    FT_Bitmap bitmap = bitmapOver(image.coverage, image, image.width, FT_PIXEL_MODE_GRAY);
    if (FT_Outline_Get_Bitmap(library, &outline, &bitmap) != 0)
        return;
    const auto& curve = kContrastTables[contrast];
    std::ranges::transform(image.coverage, image.coverage.begin(), [&curve](Channel c) { return curve[c]; });
}

GlyphImage drawOutline(FT_GlyphSlot slot, const GlyphStyle& style, Subpixel subpixel, const PixelRect& region)
{
    FT_Outline& outline = slot->outline;
    if (style.emboldened)
        embolden(outline, style);
    if (style.slanted)
        slant(outline);
    FT_Outline_Translate(&outline, subpixel.x * kPixel / kSubpixels, -subpixel.y * kPixel / kSubpixels);
    const PixelRect box = commonPart(boundsOf(outline), region);
    if (box.empty())
        return {};
    GlyphImage image = imageOf(box);
    FT_Outline_Translate(&outline, -box.left * kPixel, box.bottom * kPixel); // the lowest row becomes row 0
    if (style.rendering == GlyphRendering::TwoLevel)
        drawTwoLevels(slot->library, outline, image);
    else
        drawGrey(slot->library, outline, image, style.contrast);
    return image;
}

/// Layered outlines are put together by FreeType whole; larger ones are drawn in one colour.
constexpr float kLargestLayeredEm = 1024;

/// Fonts of layered outlines come out of FreeType at the right size, fonts of pictures at that of their strike.
GlyphImage drawPicture(FT_Face face, std::uint32_t glyph, const GlyphStyle& style, const PixelRect& region)
{
    const bool layered = FT_IS_SCALABLE(face);
    if (layered && style.em > kLargestLayeredEm)
        return {};
    const FT_GlyphSlot slot = face->glyph;
    const FT_Bitmap& bitmap = slot->bitmap;
    if (FT_Load_Glyph(face, glyph, FT_LOAD_COLOR | FT_LOAD_RENDER) != 0 || bitmap.pixel_mode != FT_PIXEL_MODE_BGRA)
        return {};
    const auto width = static_cast<int>(bitmap.width);
    const auto height = static_cast<int>(bitmap.rows);
    const PictureGlyph picture{bitmap.buffer, bitmap.pitch, width, height, slot->bitmap_left, slot->bitmap_top};
    const double strike = face->size->metrics.y_ppem;
    const double scale = layered || strike == 0 ? 1.0 : static_cast<double>(style.em) / strike;
    return scalePicture(picture, scale, style.rendering == GlyphRendering::TwoLevel, region);
}

} // namespace

GlyphImage renderGlyph(Face& face, std::uint32_t glyph, const GlyphStyle& style, Subpixel subpixel,
                       const PixelRect& region)
{
    const FT_Face sized = face.outlinesAt(style.em);
    if (!sized)
        return {};
    if (style.colour)
        if (GlyphImage image = drawPicture(sized, glyph, style, region); image.width > 0)
            return image;
    if (FT_Load_Glyph(sized, glyph, loadFlags(style)) != 0 || sized->glyph->format != FT_GLYPH_FORMAT_OUTLINE)
        return {};
    return drawOutline(sized->glyph, style, subpixel, region);
}

} // namespace vq::gdiplus
