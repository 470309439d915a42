// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What libpng, libjpeg, giflib and libtiff make of a file when they are asked directly.

#include <optional>
#include <string>

namespace vq::test {

struct AcceptedPicture
{
    int width;
    int height;
    int frames = 1;
};

/// The picture in a file that the library for its format decodes without an error; warnings do not count. Of a GIF file
/// the size of the screen, or more where the first frame sticks out.
std::optional<AcceptedPicture> acceptedByItsLibrary(const std::string& file);

} // namespace vq::test
