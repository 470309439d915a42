// SPDX-License-Identifier: MIT
#include "CodecLibraries.h"

#include <algorithm>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <memory>
#include <vector>

#include <gif_lib.h>
#include <jpeglib.h>
#include <png.h>
#include <tiffio.h>

namespace vq::test {
namespace {

/// Larger claims are not followed: some of these libraries take memory for them at once.
bool isTried(std::uint64_t width, std::uint64_t height)
{
    return width * height <= 20'000'000;
}

std::optional<AcceptedPicture> png(const std::string& file)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, file.c_str()))
        return std::nullopt;
    if (!isTried(image.width, image.height)) {
        png_image_free(&image);
        return std::nullopt;
    }
    image.format = PNG_FORMAT_BGRA;
    std::vector<png_byte> pixels(PNG_IMAGE_SIZE(image));
    const AcceptedPicture picture{static_cast<int>(image.width), static_cast<int>(image.height)};
    if (!png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr))
        return std::nullopt;
    return picture;
}

struct JpegErrors
{
    jpeg_error_mgr manager; // first: the library knows nothing of the rest
    std::jmp_buf target;
};

[[noreturn]] void leave(j_common_ptr info)
{
    std::longjmp(reinterpret_cast<JpegErrors*>(info->err)->target, 1);
}

bool readJpeg(jpeg_decompress_struct& info, JpegErrors& errors, std::FILE* file)
{
    if (setjmp(errors.target) != 0)
        return false;
    jpeg_stdio_src(&info, file);
    jpeg_read_header(&info, TRUE);
    if (!isTried(info.image_width, info.image_height))
        return false;
    jpeg_start_decompress(&info);
    JSAMPARRAY row = info.mem->alloc_sarray(reinterpret_cast<j_common_ptr>(&info), JPOOL_IMAGE,
                                            info.output_width * static_cast<JDIMENSION>(info.output_components), 1);
    while (info.output_scanline < info.output_height)
        jpeg_read_scanlines(&info, row, 1);
    jpeg_finish_decompress(&info);
    return true;
}

std::optional<AcceptedPicture> jpeg(const std::string& path)
{
    JpegErrors errors;
    jpeg_decompress_struct info;
    info.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = leave;
    errors.manager.emit_message = [](j_common_ptr, int) {};
    jpeg_create_decompress(&info);
    std::FILE* file = std::fopen(path.c_str(), "rb");
    const bool isRead = file && readJpeg(info, errors, file);
    const AcceptedPicture picture{static_cast<int>(info.image_width), static_cast<int>(info.image_height)};
    jpeg_destroy_decompress(&info);
    if (file)
        std::fclose(file);
    return isRead ? std::optional(picture) : std::nullopt;
}

std::optional<AcceptedPicture> gif(const std::string& path)
{
    int error = 0;
    GifFileType* file = DGifOpenFileName(path.c_str(), &error);
    if (!file)
        return std::nullopt;
    std::optional<AcceptedPicture> picture;
    if (isTried(static_cast<std::uint64_t>(file->SWidth), static_cast<std::uint64_t>(file->SHeight)) &&
        DGifSlurp(file) == GIF_OK && file->ImageCount >= 1) {
        const GifImageDesc& first = file->SavedImages[0].ImageDesc;
        picture = {std::max(file->SWidth, first.Left + first.Width), std::max(file->SHeight, first.Top + first.Height),
                   file->ImageCount};
    }
    DGifCloseFile(file, &error);
    return picture;
}

std::optional<AcceptedPicture> tiff(const std::string& path)
{
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    const std::unique_ptr<TIFF, decltype(&TIFFClose)> file(TIFFOpen(path.c_str(), "r"), TIFFClose);
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    if (!file || !TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &width) ||
        !TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &height) || !isTried(width, height))
        return std::nullopt;
    std::vector<std::uint32_t> pixels(std::size_t{width} * height);
    if (!TIFFReadRGBAImage(file.get(), width, height, pixels.data(), 1))
        return std::nullopt;
    return AcceptedPicture{static_cast<int>(width), static_cast<int>(height)};
}

} // namespace

std::optional<AcceptedPicture> acceptedByItsLibrary(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::string start(4, '\0');
    stream.read(start.data(), 4);
    if (start.starts_with("\x89PNG"))
        return png(file);
    if (start.starts_with("\xFF\xD8\xFF"))
        return jpeg(file);
    if (start.starts_with("GIF8"))
        return gif(file);
    if (start.starts_with("II") || start.starts_with("MM"))
        return tiff(file);
    return std::nullopt;
}

} // namespace vq::test
