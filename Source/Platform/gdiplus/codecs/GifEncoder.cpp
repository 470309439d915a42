// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Gif.h"
#include "Platform/gdiplus/codecs/Halftone.h"
#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>

#include <gif_lib.h>

namespace vq::gdiplus {
namespace {

constexpr int kMaxSide = 0xFFFF; // what a field of the format may hold
constexpr int kColourBits = 8;

/// What giflib writes. It looks at the answer of few of its calls.
struct Target
{
    FileBytes file;
    bool isComplete = true;
};

int storeBytes(GifFileType* gif, const GifByteType* bytes, int count)
{
    Target& target = *static_cast<Target*>(gif->UserData);
    target.isComplete = target.isComplete && target.file.append({bytes, static_cast<std::size_t>(count)});
    return target.isComplete ? count : 0;
}

/// One picture on its way through giflib.
class Writer
{
public:
    Writer() = default;
    ~Writer()
    {
        close();
        GifFreeMapObject(m_colours);
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    std::optional<FileBytes> write(ConstPixelView pixels);

private:
    bool open();
    bool describe(const ConstPixelView& pixels);
    bool putTransparency();
    bool putRows(const ConstPixelView& pixels);
    bool close();

    Target m_target;
    GifFileType* m_gif = nullptr;
    ColorMapObject* m_colours = nullptr;
};

bool hasTransparency(const ConstPixelView& pixels)
{
    for (int y = 0; y < pixels.height; ++y)
        if (std::any_of(pixels.row(y), pixels.row(y) + pixels.width, [](Pixel pixel) { return alphaOf(pixel) < 128; }))
            return true;
    return false;
}

bool Writer::open()
{
    int error = 0;
    m_gif = EGifOpen(&m_target, storeBytes, &error);
    m_colours = GifMakeMapObject(1 << kColourBits, nullptr);
    if (!m_gif || !m_colours)
        return false;
    std::ranges::transform(halftonePalette(), m_colours->Colors, [](Pixel colour) {
        return GifColorType{static_cast<GifByteType>(redOf(colour)), static_cast<GifByteType>(greenOf(colour)),
                            static_cast<GifByteType>(blueOf(colour))};
    });
    return true;
}

bool Writer::putTransparency()
{
    GraphicsControlBlock control{};
    control.TransparentColor = kHalftoneTransparent;
    GifByteType block[4];
    const auto length = static_cast<int>(EGifGCBToExtension(&control, block));
    return EGifPutExtension(m_gif, GRAPHICS_EXT_FUNC_CODE, length, block) == GIF_OK;
}

bool Writer::describe(const ConstPixelView& pixels)
{
    const bool transparent = hasTransparency(pixels);
    EGifSetGifVersion(m_gif, transparent); // the older version knows no transparency
    return EGifPutScreenDesc(m_gif, pixels.width, pixels.height, kColourBits, 0, m_colours) == GIF_OK &&
           (!transparent || putTransparency()) &&
           EGifPutImageDesc(m_gif, 0, 0, pixels.width, pixels.height, false, nullptr) == GIF_OK;
}

bool Writer::putRows(const ConstPixelView& pixels)
{
    const auto width = static_cast<std::size_t>(pixels.width);
    const platform::PixelMemory<GifPixelType> indices(static_cast<GifPixelType*>(platform::allocateRaw(width)));
    if (!indices)
        return false;
    for (int y = 0; y < pixels.height; ++y) {
        halftoneRow({pixels.row(y), width}, y, {indices.get(), width});
        if (EGifPutLine(m_gif, indices.get(), pixels.width) != GIF_OK)
            return false;
    }
    return true;
}

bool Writer::close()
{
    if (!m_gif)
        return true;
    const bool closed = EGifCloseFile(m_gif, nullptr) == GIF_OK;
    m_gif = nullptr;
    return closed;
}

std::optional<FileBytes> Writer::write(ConstPixelView pixels)
{
    if (!open() || !describe(pixels) || !putRows(pixels) || !close() || !m_target.isComplete)
        return std::nullopt;
    return std::move(m_target.file);
}

} // namespace

std::optional<FileBytes> encodeGif(ConstPixelView pixels)
{
    if (pixels.width < 1 || pixels.height < 1 || pixels.width > kMaxSide || pixels.height > kMaxSide)
        return std::nullopt;
    return Writer().write(pixels);
}

} // namespace vq::gdiplus
