// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Png.h"
#include "Platform/gdiplus/codecs/PngMemory.h"
#include "Platform/gdiplus/codecs/Resolution.h"

#include <zlib.h>

namespace vq::gdiplus {
namespace {

constexpr png_uint_32 kMaxPngNumber = 0x7FFFFFFF; // what a four-byte field of the format may hold

void writeBytes(png_structp png, png_bytep bytes, std::size_t count)
{
    if (!static_cast<FileBytes*>(png_get_io_ptr(png))->append({bytes, count}))
        png_error(png, "out of memory");
}

void flushNothing(png_structp) {}
void ignoreWarning(png_structp, png_const_charp) {}

/// One picture on its way through libpng.
class Writer
{
public:
    Writer() = default;
    ~Writer() { png_destroy_write_struct(&m_png, &m_info); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    bool write(ConstPixelView pixels, double dpiX, double dpiY, FileBytes& file);

private:
    bool create();
    void describe(const ConstPixelView& pixels, double dpiX, double dpiY);
    void chooseCompression();

    Escape m_escape;
    png_structp m_png = nullptr;
    png_infop m_info = nullptr;
};

bool Writer::create()
{
    m_png = png_create_write_struct_2(PNG_LIBPNG_VER_STRING, &m_escape, png::leave, ignoreWarning, nullptr,
                                      png::allocate, png::release);
    if (!m_png)
        return false;
    m_info = png_create_info_struct(m_png);
    return m_info != nullptr;
}

void Writer::describe(const ConstPixelView& pixels, double dpiX, double dpiY)
{
    png_set_user_limits(m_png, kMaxPngNumber, kMaxPngNumber);
    png_set_IHDR(m_png, m_info, static_cast<png_uint_32>(pixels.width), static_cast<png_uint_32>(pixels.height), 8,
                 PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(m_png, m_info, wholeResolution(dpiX, kInchesPerMetre, kMaxPngNumber),
                 wholeResolution(dpiY, kInchesPerMetre, kMaxPngNumber), PNG_RESOLUTION_METER);
}

/// Differences to the left neighbour, of which deflate packs runs only: an eighth of the time that its default level
/// takes on a photograph. The Up filter is as quick, but its files are up to a fifth larger.
void Writer::chooseCompression()
{
    png_set_filter(m_png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
    png_set_compression_level(m_png, Z_BEST_SPEED);
    png_set_compression_strategy(m_png, Z_RLE);
    png_set_compression_buffer_size(m_png, std::size_t{256} * 1024);
}

bool Writer::write(ConstPixelView pixels, double dpiX, double dpiY, FileBytes& file)
{
    return attempt(m_escape, [&, this] {
        if (!create())
            return false;
        png_set_write_fn(m_png, &file, writeBytes, flushNothing);
        describe(pixels, dpiX, dpiY);
        chooseCompression();
        png_write_info(m_png, m_info);
        png_set_bgr(m_png);
        for (int y = 0; y < pixels.height; ++y)
            png_write_row(m_png, pixels.top + y * pixels.stride);
        png_write_end(m_png, m_info);
        return true;
    });
}

} // namespace

std::optional<FileBytes> encodePng(ConstPixelView pixels, double dpiX, double dpiY)
{
    if (pixels.width < 1 || pixels.height < 1)
        return std::nullopt;
    FileBytes file;
    if (!Writer().write(pixels, dpiX, dpiY, file))
        return std::nullopt;
    return file;
}

} // namespace vq::gdiplus
