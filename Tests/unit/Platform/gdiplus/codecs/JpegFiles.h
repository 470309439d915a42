// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// JPEG files of every kind, written and read by plain calls of libjpeg.

#include "unit/Platform/gdiplus/codecs/Support.h"

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace vq::test {

/// What to write: one flat run of samples, as many a pixel as the colour space of the input has.
struct JpegContent
{
    int width = 8;
    int height = 8;
    J_COLOR_SPACE input = JCS_RGB;
    J_COLOR_SPACE stored = JCS_YCbCr;
    Bytes samples{};
    int quality = 100;
    bool halvedChroma = true;
    bool progressive = false;
    bool scanPerCoefficient = false; ///< 130 scans; for grey
    bool adobeMarker = true;         ///< for CMYK and YCCK
    int densityUnit = 0;
    int densityX = 1;
    int densityY = 1;
    Bytes exif{}; ///< content of an APP1 segment
};

inline std::vector<jpeg_scan_info> scanPerCoefficient()
{
    std::vector<jpeg_scan_info> scans;
    const auto add = [&](int first, int last, int high, int low) {
        scans.push_back({.comps_in_scan = 1, .component_index = {0}, .Ss = first, .Se = last, .Ah = high, .Al = low});
    };
    add(0, 0, 0, 1);
    add(0, 0, 1, 0);
    for (int coefficient = 1; coefficient < 64; ++coefficient) {
        add(coefficient, coefficient, 0, 1);
        add(coefficient, coefficient, 1, 0);
    }
    return scans;
}

inline Bytes jpegFile(const JpegContent& content)
{
    jpeg_compress_struct info{};
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &memory, &size);

    info.image_width = static_cast<JDIMENSION>(content.width);
    info.image_height = static_cast<JDIMENSION>(content.height);
    info.in_color_space = content.input;
    info.input_components = content.input == JCS_GRAYSCALE ? 1 : content.input == JCS_CMYK ? 4 : 3;
    jpeg_set_defaults(&info);
    jpeg_set_colorspace(&info, content.stored);
    if (!content.adobeMarker)
        info.write_Adobe_marker = FALSE;
    jpeg_set_quality(&info, content.quality, TRUE);
    if (!content.halvedChroma)
        for (int i = 0; i < info.num_components; ++i)
            info.comp_info[i].h_samp_factor = info.comp_info[i].v_samp_factor = 1;
    const auto scans = scanPerCoefficient();
    if (content.scanPerCoefficient) {
        info.scan_info = scans.data();
        info.num_scans = static_cast<int>(scans.size());
    } else if (content.progressive) {
        jpeg_simple_progression(&info);
    }
    info.density_unit = static_cast<UINT8>(content.densityUnit);
    info.X_density = static_cast<UINT16>(content.densityX);
    info.Y_density = static_cast<UINT16>(content.densityY);

    jpeg_start_compress(&info, TRUE);
    if (!content.exif.empty())
        jpeg_write_marker(&info, JPEG_APP0 + 1, content.exif.data(), static_cast<unsigned>(content.exif.size()));
    Bytes samples = content.samples; // the library's interface takes no constant rows
    const auto rowBytes = static_cast<std::size_t>(content.width * info.input_components);
    for (std::size_t y = 0; y < static_cast<std::size_t>(content.height); ++y) {
        JSAMPROW row = samples.data() + y * rowBytes;
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    Bytes file(memory, memory + size);
    std::free(memory);
    return file;
}

/// The colours of an intact file, as opaque pixels.
inline Pixels pixelsByLibrary(const Bytes& file)
{
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, file.data(), file.size());
    jpeg_read_header(&info, TRUE);
    info.out_color_space = JCS_RGB;
    jpeg_start_decompress(&info);
    Pixels pixels;
    Bytes samples(std::size_t{3} * info.output_width);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = samples.data();
        jpeg_read_scanlines(&info, &row, 1);
        for (std::size_t x = 0; x < info.output_width; ++x)
            pixels.push_back(0xFF000000u | gdiplus::Pixel{row[3 * x]} << 16 | gdiplus::Pixel{row[3 * x + 1]} << 8 |
                             row[3 * x + 2]);
    }
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    return pixels;
}

/// Smooth colours with some detail: what a photograph has.
inline Bytes smoothSamples(int width, int height, int channels)
{
    Bytes samples{};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int channel = 0; channel < channels; ++channel)
                samples.push_back(static_cast<std::uint8_t>((x * 5 + y * (3 + channel) + 40 * channel) % 256));
    return samples;
}

} // namespace vq::test
