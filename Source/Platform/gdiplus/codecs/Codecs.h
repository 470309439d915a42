// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/Picture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace vq::gdiplus {

/// Which kind of file a picture was read from.
enum class FileFormat { Bmp, Jpeg, Gif, Tiff, Png };

/// What the first bytes say; empty when they are no signature known here.
std::optional<FileFormat> fileFormat(std::span<const std::uint8_t> file);

/// The picture in a file held in memory, whatever its format. Empty when it cannot be decoded in full.
std::optional<Picture> decodePicture(std::span<const std::uint8_t> file);

} // namespace vq::gdiplus
