// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// PNG files of every kind, written by plain calls of libpng.

#include "unit/Platform/gdiplus/codecs/Support.h"

#include <png.h>

#include <optional>
#include <string>

namespace vq::test {

/// What to write. Samples are packed as in the file: rows of whole bytes, 16-bit samples with the high byte first.
struct PngContent
{
    int width = 1;
    int height = 1;
    int colourType = PNG_COLOR_TYPE_RGB;
    int depth = 8;
    bool interlaced = false;
    std::vector<Bytes> rows{};
    std::vector<png_color> palette{};
    Bytes paletteAlpha{};                            ///< may be shorter than the palette
    std::optional<png_color_16> transparentColour{}; ///< for grey and RGB
    double gamma = 0;                                ///< 0: no such chunk
    int textBytes = 0;                               ///< 0: no such chunk
    int filters = 0;                                 ///< those that the library may choose from; 0: as it likes
    std::size_t chunkBytes = 0;                      ///< the most that a chunk of pixels holds; 0: as it likes
    bool hasResolution = false;
    std::uint32_t resolutionX = 0;
    std::uint32_t resolutionY = 0;
    int resolutionUnit = PNG_RESOLUTION_METER;
};

inline Bytes pngFile(const PngContent& content)
{
    Bytes file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &file,
        [](png_structp writer, png_bytep bytes, std::size_t count) {
            auto* target = static_cast<Bytes*>(png_get_io_ptr(writer));
            target->insert(target->end(), bytes, bytes + count);
        },
        [](png_structp) {});
    png_set_IHDR(png, info, static_cast<png_uint_32>(content.width), static_cast<png_uint_32>(content.height),
                 content.depth, content.colourType, content.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (content.filters != 0)
        png_set_filter(png, PNG_FILTER_TYPE_BASE, content.filters);
    if (content.chunkBytes != 0)
        png_set_compression_buffer_size(png, content.chunkBytes);
    if (!content.palette.empty())
        png_set_PLTE(png, info, content.palette.data(), static_cast<int>(content.palette.size()));
    if (!content.paletteAlpha.empty())
        png_set_tRNS(png, info, content.paletteAlpha.data(), static_cast<int>(content.paletteAlpha.size()), nullptr);
    if (content.transparentColour)
        png_set_tRNS(png, info, nullptr, 0, &*content.transparentColour);
    if (content.gamma != 0)
        png_set_gAMA(png, info, content.gamma);
    if (content.hasResolution)
        png_set_pHYs(png, info, content.resolutionX, content.resolutionY, content.resolutionUnit);

    std::string words(static_cast<std::size_t>(content.textBytes), 'x');
    std::string key = "Comment";
    if (content.textBytes > 0) {
        png_text text{};
        text.compression = PNG_TEXT_COMPRESSION_NONE;
        text.key = key.data();
        text.text = words.data();
        text.text_length = words.size();
        png_set_text(png, info, &text, 1);
    }
    png_write_info(png, info);
    std::vector<png_bytep> rows;
    std::vector<Bytes> samples = content.rows; // the library's interface takes no constant rows
    for (Bytes& row : samples)
        rows.push_back(row.data());
    png_write_image(png, rows.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

} // namespace vq::test
