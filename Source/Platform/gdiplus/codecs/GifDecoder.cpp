// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Gif.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include <gif_lib.h>

namespace vq::gdiplus {
namespace {

using Bytes = std::span<const std::uint8_t>;

int readBytes(GifFileType* gif, GifByteType* target, int count)
{
    Bytes& rest = *static_cast<Bytes*>(gif->UserData);
    const std::size_t given = std::min(static_cast<std::size_t>(count), rest.size());
    std::copy_n(rest.begin(), given, target);
    rest = rest.subspan(given);
    return static_cast<int>(given);
}

/// Rows of an interlaced frame come in four passes.
struct Pass
{
    int first;
    int step;
};
constexpr Pass kInterlaced[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
constexpr Pass kPlain[] = {{0, 1}};

/// One file on its way through giflib.
class Reader
{
public:
    explicit Reader(Bytes file) : m_rest(file), m_fileBytes(static_cast<std::int64_t>(file.size())) {}
    ~Reader()
    {
        if (m_gif)
            DGifCloseFile(m_gif, nullptr);
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    bool readHeader();
    std::int64_t width() const { return std::max<std::int64_t>(m_gif->SWidth, right()); }
    std::int64_t height() const { return std::max<std::int64_t>(m_gif->SHeight, bottom()); }
    bool claimIsCredible() const { return width() * height() <= kMaxPixelsPerByte * m_fileBytes; }
    bool readPixels(PixelView target);
    PictureFormat format();

private:
    std::int64_t right() const { return std::int64_t{m_gif->Image.Left} + m_gif->Image.Width; }
    std::int64_t bottom() const { return std::int64_t{m_gif->Image.Top} + m_gif->Image.Height; }
    bool coversAll() const
    {
        return m_gif->Image.Left == 0 && m_gif->Image.Top == 0 && right() == width() && bottom() == height();
    }
    bool readExtension();
    bool findFrame();
    std::array<Pixel, 256> palette() const;

    GifFileType* m_gif = nullptr;
    Bytes m_rest;
    std::int64_t m_fileBytes;
    int m_transparentIndex = NO_TRANSPARENT_COLOR;
};

/// Of all extensions only the one that belongs to the next frame says something about pixels.
bool Reader::readExtension()
{
    int kind = 0;
    GifByteType* block = nullptr;
    if (DGifGetExtension(m_gif, &kind, &block) != GIF_OK)
        return false;
    while (block) {
        GraphicsControlBlock control;
        if (kind == GRAPHICS_EXT_FUNC_CODE && DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK)
            m_transparentIndex = control.TransparentColor;
        if (DGifGetExtensionNext(m_gif, &block) != GIF_OK)
            return false;
    }
    return true;
}

/// Goes on to the next frame; false when there is none.
bool Reader::findFrame()
{
    GifRecordType kind = UNDEFINED_RECORD_TYPE;
    while (DGifGetRecordType(m_gif, &kind) == GIF_OK) {
        if (kind == IMAGE_DESC_RECORD_TYPE)
            return true;
        if (kind != EXTENSION_RECORD_TYPE || !readExtension())
            return false;
    }
    return false;
}

bool Reader::readHeader()
{
    int error = 0;
    m_gif = DGifOpen(&m_rest, readBytes, &error);
    return m_gif && findFrame() && DGifGetImageDesc(m_gif) == GIF_OK && m_gif->Image.Width > 0 &&
           m_gif->Image.Height > 0;
}

/// Colours that a file lacks are those that Wine's conformance tests, run on Windows, name.
std::array<Pixel, 256> Reader::palette() const
{
    std::array<Pixel, 256> colours;
    colours.fill(kAlphaBits);
    const ColorMapObject* map = m_gif->Image.ColorMap ? m_gif->Image.ColorMap : m_gif->SColorMap;
    if (map) {
        const std::span stored(map->Colors, static_cast<std::size_t>(map->ColorCount));
        std::ranges::transform(stored, colours.begin(), [](const GifColorType& colour) {
            return kAlphaBits | Pixel{colour.Red} << 16 | Pixel{colour.Green} << 8 | colour.Blue;
        });
    } else {
        colours[1] = 0xFFFFFFFF;
    }
    if (m_transparentIndex != NO_TRANSPARENT_COLOR)
        colours[static_cast<std::size_t>(m_transparentIndex)] &= ~kAlphaBits;
    return colours;
}

bool Reader::readPixels(PixelView target)
{
    const GifImageDesc frame = m_gif->Image;
    const std::array<Pixel, 256> colours = palette();
    const auto width = static_cast<std::size_t>(frame.Width);
    const platform::PixelMemory<GifPixelType> indices(static_cast<GifPixelType*>(platform::allocateRaw(width)));
    if (!indices)
        return false;
    if (!coversAll())
        std::memset(target.top, 0, static_cast<std::size_t>(target.stride) * static_cast<std::size_t>(target.height));
    for (const Pass pass : frame.Interlace ? std::span<const Pass>(kInterlaced) : std::span<const Pass>(kPlain))
        for (int y = pass.first; y < frame.Height; y += pass.step) {
            if (DGifGetLine(m_gif, indices.get(), frame.Width) != GIF_OK)
                return false;
            std::transform(indices.get(), indices.get() + width, target.row(frame.Top + y) + frame.Left,
                           [&](GifPixelType index) { return colours[index]; });
        }
    return true;
}

/// As Wine's conformance tests, run on Windows, say. To be asked when the pixels have been read: a second frame makes
/// an animation.
PictureFormat Reader::format()
{
    const bool isTransparent = m_transparentIndex != NO_TRANSPARENT_COLOR || !coversAll();
    if (findFrame())
        return PictureFormat::Argb32;
    return isTransparent ? PictureFormat::Indexed8Alpha : PictureFormat::Indexed8;
}

} // namespace

bool isGif(std::span<const std::uint8_t> file)
{
    const std::string_view start(reinterpret_cast<const char*>(file.data()), std::min<std::size_t>(file.size(), 6));
    return start == "GIF87a" || start == "GIF89a";
}

std::optional<Picture> decodeGif(std::span<const std::uint8_t> file)
{
    if (!isGif(file))
        return std::nullopt;
    Reader reader(file);
    if (!reader.readHeader() || !reader.claimIsCredible())
        return std::nullopt;

    std::optional<Picture> picture = allocatePicture(reader.width(), reader.height());
    if (!picture || !reader.readPixels(picture->view()))
        return std::nullopt;
    picture->format = reader.format();
    return picture;
}

} // namespace vq::gdiplus
