// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Resolution.h"
#include "Platform/gdiplus/codecs/Tiff.h"
#include "Platform/gdiplus/codecs/TiffMemory.h"
#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>
#include <utility>

namespace vq::gdiplus {
namespace {

constexpr std::int64_t kStripBytes = 64 * 1024; // LZW forgets its table after 4096 codes anyway

/// One picture on its way through libtiff.
class Writer
{
public:
    explicit Writer(TiffSamples samples) : m_samples(samples == TiffSamples::Rgba ? 4 : 3) {}

    std::optional<FileBytes> write(ConstPixelView pixels, double dpiX, double dpiY);

private:
    bool describe(const ConstPixelView& pixels, double dpiX, double dpiY);
    bool writeRows(const ConstPixelView& pixels);
    void pack(std::span<const Pixel> row, std::uint8_t* stored) const;

    int m_samples;
    tiff::Target m_target;
    tiff::Handle m_file;
};

/// Differences to the left neighbour make LZW files smaller and are read everywhere.
bool Writer::describe(const ConstPixelView& pixels, double dpiX, double dpiY)
{
    TIFF* file = m_file.get();
    const std::int64_t rowBytes = std::int64_t{m_samples} * pixels.width;
    const std::int64_t rowsPerStrip = std::clamp<std::int64_t>(kStripBytes / rowBytes, 1, pixels.height);
    const std::uint16_t straightAlpha[] = {EXTRASAMPLE_UNASSALPHA};
    return TIFFSetField(file, TIFFTAG_IMAGEWIDTH, pixels.width) &&
           TIFFSetField(file, TIFFTAG_IMAGELENGTH, pixels.height) && TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, 8) &&
           TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, m_samples) &&
           (m_samples == 3 || TIFFSetField(file, TIFFTAG_EXTRASAMPLES, 1, straightAlpha)) &&
           TIFFSetField(file, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB) &&
           TIFFSetField(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) &&
           TIFFSetField(file, TIFFTAG_COMPRESSION, COMPRESSION_LZW) &&
           TIFFSetField(file, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL) &&
           TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, static_cast<std::uint32_t>(rowsPerStrip)) &&
           TIFFSetField(file, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH) &&
           TIFFSetField(file, TIFFTAG_XRESOLUTION, usableResolution(dpiX)) &&
           TIFFSetField(file, TIFFTAG_YRESOLUTION, usableResolution(dpiY));
}

void Writer::pack(std::span<const Pixel> row, std::uint8_t* stored) const
{
    for (const Pixel pixel : row) {
        stored[0] = static_cast<std::uint8_t>(redOf(pixel));
        stored[1] = static_cast<std::uint8_t>(greenOf(pixel));
        stored[2] = static_cast<std::uint8_t>(blueOf(pixel));
        if (m_samples == 4)
            stored[3] = static_cast<std::uint8_t>(alphaOf(pixel));
        stored += m_samples;
    }
}

bool Writer::writeRows(const ConstPixelView& pixels)
{
    const auto width = static_cast<std::size_t>(pixels.width);
    const platform::PixelMemory<std::uint8_t> stored(
        static_cast<std::uint8_t*>(platform::allocateRaw(width * static_cast<std::size_t>(m_samples))));
    if (!stored)
        return false;
    for (int y = 0; y < pixels.height; ++y) {
        pack({pixels.row(y), width}, stored.get());
        if (TIFFWriteScanline(m_file.get(), stored.get(), static_cast<std::uint32_t>(y), 0) != 1)
            return false;
    }
    return true;
}

std::optional<FileBytes> Writer::write(ConstPixelView pixels, double dpiX, double dpiY)
{
    m_file = tiff::create(m_target);
    if (!m_file || !describe(pixels, dpiX, dpiY) || !writeRows(pixels) || !TIFFWriteDirectory(m_file.get()))
        return std::nullopt;
    m_file.reset();
    if (m_target.sawError)
        return std::nullopt;
    return std::move(m_target.bytes);
}

} // namespace

std::optional<FileBytes> encodeTiff(ConstPixelView pixels, TiffSamples samples, double dpiX, double dpiY)
{
    if (pixels.width < 1 || pixels.height < 1)
        return std::nullopt;
    return Writer(samples).write(pixels, dpiX, dpiY);
}

} // namespace vq::gdiplus
