// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Png.h"
#include "Platform/gdiplus/codecs/PngChunks.h"
#include "Platform/gdiplus/codecs/PngMemory.h"
#include "Platform/gdiplus/codecs/PngRows.h"
#include "Platform/gdiplus/codecs/Resolution.h"

#include <cstring>
#include <string_view>

namespace vq::gdiplus {
namespace {

constexpr std::size_t kSignatureLength = 8;

// Deflate spends two bits at least on a match of 258 bytes, the longest there is.
constexpr std::int64_t kMaxInflation = std::int64_t{4} * 258;

using Bytes = std::span<const std::uint8_t>;

void readBytes(png_structp png, png_bytep target, std::size_t count)
{
    Bytes& rest = *static_cast<Bytes*>(png_get_io_ptr(png));
    if (count > rest.size())
        png_error(png, "end of file");
    std::memcpy(target, rest.data(), count);
    rest = rest.subspan(count);
}

/// A wrong checksum over the pixels is no error to libpng, but comes as a warning in zlib's words.
void refuseDamagedPixels(png_structp png, png_const_charp warning)
{
    if (std::string_view(warning).find("incorrect data check") != std::string_view::npos)
        png_error(png, warning);
}

/// One file on its way through libpng.
class Reader
{
public:
    explicit Reader(Bytes file) : m_file(file), m_rest(file), m_fileBytes(static_cast<std::int64_t>(file.size())) {}
    ~Reader() { png_destroy_read_struct(&m_png, &m_info, nullptr); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    bool readHeader();
    bool claimIsCredible() const;
    std::int64_t width() const { return png_get_image_width(m_png, m_info); }
    std::int64_t height() const { return png_get_image_height(m_png, m_info); }
    PictureFormat format() const;
    void readResolution(Picture& picture) const;
    bool readPixels(PixelView target);

private:
    bool create();
    void limit();
    bool readQuickly(PixelView target) const;
    void convertToBgra();

    Escape m_escape;
    png_structp m_png = nullptr;
    png_infop m_info = nullptr;
    Bytes m_file;
    Bytes m_rest;
    std::int64_t m_fileBytes;
};

bool Reader::create()
{
    m_png = png_create_read_struct_2(PNG_LIBPNG_VER_STRING, &m_escape, png::leave, refuseDamagedPixels, nullptr,
                                     png::allocate, png::release);
    if (!m_png)
        return false;
    m_info = png_create_info_struct(m_png);
    return m_info != nullptr;
}

/// Chunks that say nothing about pixels or resolution are passed over unread, however long: no profile or text is ever
/// inflated. Checksums of chunks are not looked at: Wine's conformance tests, run on Windows, load files where they are
/// wrong. The one over the pixels, deflate's own, is.
void Reader::limit()
{
    static constexpr png_byte kResolution[] = "pHYs";
    png_set_keep_unknown_chunks(m_png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_set_keep_unknown_chunks(m_png, PNG_HANDLE_CHUNK_AS_DEFAULT, kResolution, 1);
    png_set_crc_action(m_png, PNG_CRC_QUIET_USE, PNG_CRC_QUIET_USE);
    png_set_user_limits(m_png, kMaxPictureSide, kMaxPictureSide);
    png_set_chunk_malloc_max(m_png, static_cast<png_alloc_size_t>(m_fileBytes));
    png_set_chunk_cache_max(m_png, 1);
}

bool Reader::readHeader()
{
    return attempt(m_escape, [this] {
        if (!create())
            return false;
        limit();
        png_set_read_fn(m_png, &m_rest, readBytes);
        png_read_info(m_png, m_info);
        return true;
    });
}

bool Reader::claimIsCredible() const
{
    const std::int64_t bitsPerPixel = std::int64_t{png_get_bit_depth(m_png, m_info)} * png_get_channels(m_png, m_info);
    return width() * height() * bitsPerPixel / 8 <= kMaxInflation * m_fileBytes; // sides are limited: no overflow
}

/// The formats that Wine's conformance tests, run on Windows, list for each colour type and depth: any transparency,
/// grey of more than one bit and depths that GDI+ has no format for come as 32 bits.
PictureFormat Reader::format() const
{
    if (png_get_valid(m_png, m_info, PNG_INFO_tRNS))
        return PictureFormat::Argb32;
    const int depth = png_get_bit_depth(m_png, m_info);
    switch (png_get_color_type(m_png, m_info)) {
    case PNG_COLOR_TYPE_RGB:
        return depth == 8 ? PictureFormat::Rgb24 : PictureFormat::Argb32;
    case PNG_COLOR_TYPE_GRAY:
        return depth == 1 ? PictureFormat::Indexed1 : PictureFormat::Argb32;
    case PNG_COLOR_TYPE_PALETTE:
        switch (depth) {
        case 1:
            return PictureFormat::Indexed1;
        case 4:
            return PictureFormat::Indexed4;
        case 8:
            return PictureFormat::Indexed8;
        default:
            return PictureFormat::Argb32;
        }
    default:
        return PictureFormat::Argb32;
    }
}

void Reader::readResolution(Picture& picture) const
{
    png_uint_32 x = 0;
    png_uint_32 y = 0;
    int unit = PNG_RESOLUTION_UNKNOWN;
    if (!png_get_pHYs(m_png, m_info, &x, &y, &unit) || unit != PNG_RESOLUTION_METER)
        return;
    picture.dpiX = dpiFromPixelsPerMetre(x);
    picture.dpiY = dpiFromPixelsPerMetre(y);
}

void Reader::convertToBgra()
{
    png_set_expand(m_png); // palettes to colours, small greys to 8 bits, transparent colours to alpha
    png_set_scale_16(m_png);
    png_set_gray_to_rgb(m_png);
    png_set_bgr(m_png);
    png_set_add_alpha(m_png, 0xFF, PNG_FILLER_AFTER);
}

/// Nearly every file is of this kind. Whatever is unusual in one is left to libpng, which has the last word.
bool Reader::readQuickly(PixelView target) const
{
    const int type = png_get_color_type(m_png, m_info);
    const bool isColour = type == PNG_COLOR_TYPE_RGB || type == PNG_COLOR_TYPE_RGB_ALPHA;
    if (!isColour || png_get_bit_depth(m_png, m_info) != 8 || png_get_valid(m_png, m_info, PNG_INFO_tRNS) ||
        png_get_interlace_type(m_png, m_info) != PNG_INTERLACE_NONE)
        return false;
    // The header has been read up to the content of the first chunk of pixels.
    const std::size_t begin = m_file.size() - m_rest.size() - std::tuple_size_v<png::ChunkStart>;
    const auto samples = type == PNG_COLOR_TYPE_RGB ? png::Samples::Rgb : png::Samples::Rgba;
    return png::readPlainPixels(m_file.subspan(begin), samples, target);
}

bool Reader::readPixels(PixelView target)
{
    if (readQuickly(target))
        return true;
    return attempt(m_escape, [this, &target] {
        convertToBgra();
        const int passes = png_set_interlace_handling(m_png);
        png_read_update_info(m_png, m_info);
        if (png_get_rowbytes(m_png, m_info) != static_cast<std::size_t>(target.width) * sizeof(Pixel))
            return false;
        for (int pass = 0; pass < passes; ++pass)
            for (int y = 0; y < target.height; ++y)
                png_read_row(m_png, target.top + y * target.stride, nullptr);
        png_read_end(m_png, nullptr);
        return true;
    });
}

} // namespace

bool isPng(std::span<const std::uint8_t> file)
{
    return file.size() >= kSignatureLength && png_sig_cmp(file.data(), 0, kSignatureLength) == 0;
}

std::optional<Picture> decodePng(std::span<const std::uint8_t> file)
{
    if (!isPng(file))
        return std::nullopt;
    Reader reader(file);
    if (!reader.readHeader() || !reader.claimIsCredible())
        return std::nullopt;

    std::optional<Picture> picture = allocatePicture(reader.width(), reader.height());
    if (!picture)
        return std::nullopt;
    picture->format = reader.format();
    reader.readResolution(*picture);
    if (!reader.readPixels(picture->view()))
        return std::nullopt;
    return picture;
}

} // namespace vq::gdiplus
