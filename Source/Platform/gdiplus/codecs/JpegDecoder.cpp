// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Jpeg.h"
#include "Platform/gdiplus/codecs/JpegErrors.h"
#include "Platform/gdiplus/codecs/Resolution.h"

namespace vq::gdiplus {
namespace {

// Ten scans are usual in a progressive file. Each costs a pass over the whole picture however few bytes it has.
constexpr int kMaxScans = 100;

// The library keeps four components of 16 bits a pixel at most, padded to blocks of 32 x 32: a row of the longest
// picture fills the second figure.
constexpr std::int64_t kWorkingBytesPerPixel = 8;
constexpr std::int64_t kWorkingBytesForPadding = 32 << 20;

void refuseEndlessScans(j_common_ptr info)
{
    if (reinterpret_cast<j_decompress_ptr>(info)->input_scan_number > kMaxScans)
        info->err->error_exit(info);
}

/// One file on its way through the library.
class Reader
{
public:
    explicit Reader(std::span<const std::uint8_t> file) : m_file(file)
    {
        m_info.err = &m_errors.manager;
        m_progress.progress_monitor = refuseEndlessScans;
    }
    ~Reader() { jpeg_destroy_decompress(&m_info); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    bool readHeader();
    std::int64_t width() const { return m_info.image_width; }
    std::int64_t height() const { return m_info.image_height; }
    bool claimIsCredible() const;
    PictureFormat format() const;
    void readResolution(Picture& picture) const;
    bool readPixels(PixelView target);

private:
    bool isFourInks() const { return m_info.out_color_space == JCS_CMYK; }
    bool readRows(const PixelView& target);

    std::span<const std::uint8_t> m_file;
    jpeg::Errors m_errors;
    jpeg_progress_mgr m_progress{};
    jpeg_decompress_struct m_info{};
};

bool Reader::readHeader()
{
    return attempt(m_errors.escape, [this] {
        jpeg_create_decompress(&m_info);
        m_info.progress = &m_progress;
        jpeg_mem_src(&m_info, m_file.data(), m_file.size());
        return jpeg_read_header(&m_info, TRUE) == JPEG_HEADER_OK;
    });
}

bool Reader::claimIsCredible() const
{
    return width() * height() <= kMaxPixelsPerByte * static_cast<std::int64_t>(m_file.size());
}

PictureFormat Reader::format() const
{
    return m_info.jpeg_color_space == JCS_GRAYSCALE ? PictureFormat::Indexed8 : PictureFormat::Rgb24;
}

void Reader::readResolution(Picture& picture) const
{
    constexpr int kPerInch = 1;
    constexpr int kPerCentimetre = 2;
    const int unit = m_info.saw_JFIF_marker ? m_info.density_unit : 0;
    if ((unit != kPerInch && unit != kPerCentimetre) || m_info.X_density == 0 || m_info.Y_density == 0)
        return;
    const double unitsPerInch = unit == kPerInch ? 1.0 : 2.54;
    picture.dpiX = m_info.X_density * unitsPerInch;
    picture.dpiY = m_info.Y_density * unitsPerInch;
}

/// Cyan, magenta, yellow, black to pixels in place. Files with Adobe's marker store inks inverted: 255 is none.
void convertInks(Pixel* row, int width, bool inverted)
{
    const unsigned flip = inverted ? 0x00 : 0xFF;
    for (int x = 0; x < width; ++x) {
        const auto* inks = reinterpret_cast<const std::uint8_t*>(row + x);
        const unsigned black = inks[3] ^ flip;
        const auto light = [&](int ink) { return ((inks[ink] ^ flip) * black + 127) / 255; };
        row[x] = kAlphaBits | light(0) << 16 | light(1) << 8 | light(2);
    }
}

bool Reader::readRows(const PixelView& target)
{
    while (m_info.output_scanline < m_info.output_height) {
        Pixel* row = target.row(static_cast<int>(m_info.output_scanline));
        auto* samples = reinterpret_cast<JSAMPROW>(row);
        if (jpeg_read_scanlines(&m_info, &samples, 1) != 1)
            return false;
        if (isFourInks())
            convertInks(row, target.width, m_info.saw_Adobe_marker);
    }
    return true;
}

bool Reader::readPixels(PixelView target)
{
    return attempt(m_errors.escape, [this, &target] {
        const bool inks = m_info.jpeg_color_space == JCS_CMYK || m_info.jpeg_color_space == JCS_YCCK;
        m_info.out_color_space = inks ? JCS_CMYK : JCS_EXT_BGRA;
        m_info.mem->max_memory_to_use =
            static_cast<long>(width() * height() * kWorkingBytesPerPixel + kWorkingBytesForPadding);
        jpeg_start_decompress(&m_info);
        return readRows(target);
    });
}

} // namespace

bool isJpeg(std::span<const std::uint8_t> file)
{
    return file.size() >= 3 && file[0] == 0xFF && file[1] == 0xD8 && file[2] == 0xFF;
}

std::optional<Picture> decodeJpeg(std::span<const std::uint8_t> file)
{
    if (!isJpeg(file))
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
