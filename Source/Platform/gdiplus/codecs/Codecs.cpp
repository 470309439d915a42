// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Codecs.h"

#include "Platform/gdiplus/codecs/Bmp.h"
#include "Platform/gdiplus/codecs/Gif.h"
#include "Platform/gdiplus/codecs/Jpeg.h"
#include "Platform/gdiplus/codecs/Png.h"
#include "Platform/gdiplus/codecs/Tiff.h"

namespace vq::gdiplus {
namespace {

using Bytes = std::span<const std::uint8_t>;

struct Codec
{
    FileFormat format;
    bool (*recognises)(Bytes file);
    std::optional<Picture> (*decode)(Bytes file);
};

constexpr Codec kCodecs[] = {
    {FileFormat::Bmp, isBmp, decodeBmp},    {FileFormat::Jpeg, isJpeg, decodeJpeg}, {FileFormat::Gif, isGif, decodeGif},
    {FileFormat::Tiff, isTiff, decodeTiff}, {FileFormat::Png, isPng, decodePng},
};

const Codec* codecFor(Bytes file)
{
    for (const Codec& codec : kCodecs)
        if (codec.recognises(file))
            return &codec;
    return nullptr;
}

} // namespace

std::optional<FileFormat> fileFormat(std::span<const std::uint8_t> file)
{
    const Codec* codec = codecFor(file);
    return codec ? std::optional(codec->format) : std::nullopt;
}

std::optional<Picture> decodePicture(std::span<const std::uint8_t> file)
{
    const Codec* codec = codecFor(file);
    return codec ? codec->decode(file) : std::nullopt;
}

} // namespace vq::gdiplus
