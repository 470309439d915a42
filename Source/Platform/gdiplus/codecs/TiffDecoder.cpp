// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Resolution.h"
#include "Platform/gdiplus/codecs/Tiff.h"
#include "Platform/gdiplus/codecs/TiffMemory.h"
#include "Platform/gdiplus/codecs/TiffSamples.h"
#include "Platform/gdiplus/compositor/Premultiply.h"
#include "Platform/gdiplus/compositor/RotateFlip.h"

#include <algorithm>
#include <utility>

namespace vq::gdiplus {
namespace {

using Bytes = std::span<const std::uint8_t>;
using tiff::Layout;

// Decoded bytes that one byte of a file may stand for. LZW comes to 2731 (12 bits for 4096 bytes), deflate to 1032. A
// blank row of a fax takes a bit, so that a page of nothing at all comes to its width: 4961 for A3 at 300 dots per
// inch.
constexpr std::int64_t kMaxExpansion = 5000;

// Strips and tiles may share bytes of the file, but not so that a small file becomes endless work.
constexpr std::uint64_t kMaxSharing = 16;

// For a file of few bytes: tables of the decoders, and those of a million strips.
constexpr std::int64_t kLeastWorkingBytes = std::int64_t{16} << 20;

/// One file on its way through libtiff.
class Reader
{
public:
    explicit Reader(Bytes file) : m_fileBytes(static_cast<std::int64_t>(file.size())) { m_source.bytes = file; }

    bool readHeader();
    bool claimIsCredible() const;
    const Layout& layout() const { return *m_layout; }
    void readResolution(Picture& picture) const;
    bool readPixels(PixelView target);

private:
    bool readBlocks(PixelView target);
    bool readBlock(int plane, std::int64_t left, std::int64_t top, std::uint8_t* block, PixelView target);
    bool decodeBlock(int plane, std::int64_t left, std::int64_t top, std::int64_t rows, std::uint8_t* block);
    bool readConverted(PixelView target);

    std::int64_t m_fileBytes;
    tiff::Source m_source;
    tiff::Handle m_file;
    std::optional<Layout> m_layout;
};

bool Reader::readHeader()
{
    const std::int64_t most = kMaxPicturePixels * std::int64_t{sizeof(Pixel)};
    m_file = tiff::open(m_source, std::clamp(m_fileBytes * kMaxExpansion, kLeastWorkingBytes, most));
    if (m_file)
        m_layout = tiff::readLayout(m_file.get());
    return m_layout.has_value();
}

bool Reader::claimIsCredible() const
{
    if (m_layout->blockBytes > kMaxExpansion * m_fileBytes / m_layout->blocks)
        return false;
    std::uint64_t used = 0;
    for (std::int64_t block = 0; block < m_layout->blocks; ++block) {
        const std::uint64_t bytes = TIFFGetStrileByteCount(m_file.get(), static_cast<std::uint32_t>(block));
        if (bytes > kMaxSharing * m_source.bytes.size() - used)
            return false;
        used += bytes;
    }
    return true;
}

void Reader::readResolution(Picture& picture) const
{
    std::uint16_t unit = RESUNIT_NONE;
    float x = 0;
    float y = 0;
    if (!TIFFGetFieldDefaulted(m_file.get(), TIFFTAG_RESOLUTIONUNIT, &unit) || unit == RESUNIT_NONE ||
        !TIFFGetField(m_file.get(), TIFFTAG_XRESOLUTION, &x) || !TIFFGetField(m_file.get(), TIFFTAG_YRESOLUTION, &y) ||
        !(x > 0) || !(y > 0)) // a missing one is 0 when there is the other
        return;
    const double unitsPerInch = unit == RESUNIT_CENTIMETER ? 2.54 : 1.0;
    picture.dpiX = usableResolution(x * unitsPerInch);
    picture.dpiY = usableResolution(y * unitsPerInch);
}

/// Into `block`, whose rows are all there at the bottom of the picture too; the last strip has as many as it needs.
bool Reader::decodeBlock(int plane, std::int64_t left, std::int64_t top, std::int64_t rows, std::uint8_t* block)
{
    const auto x = static_cast<std::uint32_t>(left);
    const auto y = static_cast<std::uint32_t>(top);
    const auto sample = static_cast<std::uint16_t>(plane);
    if (m_layout->tiled) {
        const std::uint32_t tile = TIFFComputeTile(m_file.get(), x, y, 0, sample);
        return TIFFReadEncodedTile(m_file.get(), tile, block, m_layout->blockBytes) == m_layout->blockBytes;
    }
    const std::uint32_t strip = TIFFComputeStrip(m_file.get(), y, sample);
    return TIFFReadEncodedStrip(m_file.get(), strip, block, m_layout->blockBytes) >= rows * tiff::rowBytes(*m_layout);
}

bool Reader::readBlock(int plane, std::int64_t left, std::int64_t top, std::uint8_t* block, PixelView target)
{
    const std::int64_t rows = std::min(m_layout->blockHeight, m_layout->height - top);
    const std::int64_t columns = std::min(m_layout->blockWidth, m_layout->width - left);
    if (!decodeBlock(plane, left, top, rows, block))
        return false;
    for (std::int64_t y = 0; y < rows; ++y)
        tiff::addRow(*m_layout, plane, block + y * tiff::rowBytes(*m_layout),
                     {target.row(static_cast<int>(top + y)) + left, static_cast<std::size_t>(columns)});
    return true;
}

bool Reader::readBlocks(PixelView target)
{
    if (tiff::rowBytes(*m_layout) * m_layout->blockHeight > m_layout->blockBytes)
        return false;
    const platform::PixelMemory<std::uint8_t> block(
        static_cast<std::uint8_t*>(platform::allocateZeroed(static_cast<std::size_t>(m_layout->blockBytes))));
    if (!block)
        return false;
    tiff::prepare(*m_layout, target);
    for (int plane = 0; plane < tiff::planesToRead(*m_layout); ++plane)
        for (std::int64_t top = 0; top < m_layout->height; top += m_layout->blockHeight)
            for (std::int64_t left = 0; left < m_layout->width; left += m_layout->blockWidth)
                if (!readBlock(plane, left, top, block.get(), target))
                    return false;
    if (m_layout->alpha == tiff::Alpha::Premultiplied)
        for (int y = 0; y < target.height; ++y)
            std::transform(target.row(y), target.row(y) + target.width, target.row(y), straight);
    return true;
}

/// The library's own way to RGB. It would carry the orientation out by halves; rows are to come as they are stored.
bool Reader::readConverted(PixelView target)
{
    char message[1024] = {};
    TIFFRGBAImage image{};
    if (!TIFFRGBAImageOK(m_file.get(), message) || !TIFFRGBAImageBegin(&image, m_file.get(), 1, message))
        return false;
    image.req_orientation = image.orientation;
    std::fill_n(target.row(0), static_cast<std::size_t>(target.width) * static_cast<std::size_t>(target.height), 0);
    const bool isRead = TIFFRGBAImageGet(&image, target.row(0), static_cast<std::uint32_t>(target.width),
                                         static_cast<std::uint32_t>(target.height));
    TIFFRGBAImageEnd(&image);
    for (int y = 0; y < target.height; ++y)
        std::transform(target.row(y), target.row(y) + target.width, target.row(y), [](std::uint32_t pixel) {
            return packed(255, TIFFGetR(pixel), TIFFGetG(pixel), TIFFGetB(pixel));
        });
    return isRead;
}

bool Reader::readPixels(PixelView target)
{
    const bool isRead = m_layout->colours == tiff::Colours::Converted ? readConverted(target) : readBlocks(target);
    return isRead && !m_source.sawError;
}

/// Where row 0 and column 0 are says which turn brings them to the top and the left. (What GDI+ does could only be seen
/// on Windows: TIFF files of other orientations are rare.)
const Turn& turnOf(int orientation)
{
    constexpr std::array<std::size_t, 9> kTurnOf{0, 0, 4, 2, 6, 5, 1, 7, 3}; // by tag, 1 .. 8
    return kTurns[kTurnOf[static_cast<std::size_t>(std::clamp(orientation, 0, 8))]];
}

std::optional<Picture> oriented(Picture picture, int orientation)
{
    const Turn& turn = turnOf(orientation);
    if (&turn == &kTurns[0])
        return picture;
    const bool sideways = turn.transposes;
    std::optional<Picture> turned =
        allocatePicture(sideways ? picture.height : picture.width, sideways ? picture.width : picture.height);
    if (!turned)
        return std::nullopt;
    rotateFlip(picture.view(), turned->view(), turn);
    turned->format = picture.format;
    turned->dpiX = sideways ? picture.dpiY : picture.dpiX;
    turned->dpiY = sideways ? picture.dpiX : picture.dpiY;
    return turned;
}

} // namespace

bool isTiff(std::span<const std::uint8_t> file)
{
    constexpr std::uint8_t kSignatures[][4] = {{'I', 'I', 42, 0}, {'M', 'M', 0, 42}};
    return file.size() >= 4 && std::ranges::any_of(kSignatures, [&](const auto& signature) {
               return std::ranges::equal(signature, file.first(4));
           });
}

std::optional<Picture> decodeTiff(std::span<const std::uint8_t> file)
{
    if (!isTiff(file))
        return std::nullopt;
    Reader reader(file);
    if (!reader.readHeader() || !reader.claimIsCredible())
        return std::nullopt;

    const Layout& layout = reader.layout();
    std::optional<Picture> picture = allocatePicture(layout.width, layout.height);
    if (!picture)
        return std::nullopt;
    picture->format = tiff::formatOf(layout);
    reader.readResolution(*picture);
    if (!reader.readPixels(picture->view()))
        return std::nullopt;
    return oriented(std::move(*picture), layout.orientation);
}

} // namespace vq::gdiplus
