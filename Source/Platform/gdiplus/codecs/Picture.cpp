// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Picture.h"

namespace vq::gdiplus {

bool isPictureSize(std::int64_t width, std::int64_t height)
{
    return width >= 1 && height >= 1 && width <= kMaxPictureSide && height <= kMaxPictureSide &&
           width * height <= kMaxPicturePixels;
}

std::optional<Picture> allocatePicture(std::int64_t width, std::int64_t height)
{
    if (!isPictureSize(width, height))
        return std::nullopt;

    const auto bytes = static_cast<std::size_t>(width * height) * sizeof(Pixel);
    Picture picture;
    picture.pixels.reset(static_cast<Pixel*>(platform::allocateRaw(bytes)));
    if (!picture.pixels)
        return std::nullopt;
    picture.width = static_cast<int>(width);
    picture.height = static_cast<int>(height);
    return picture;
}

} // namespace vq::gdiplus
