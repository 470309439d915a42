// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Jpeg.h"
#include "Platform/gdiplus/codecs/JpegErrors.h"
#include "Platform/gdiplus/codecs/Resolution.h"

#include <algorithm>
#include <array>

namespace vq::gdiplus {
namespace {

constexpr UINT16 kMaxDensity = 0xFFFF;
constexpr UINT8 kPerInch = 1;

/// Hands the library's output on. Its own part stands first, as in `jpeg::Errors`.
struct Target
{
    jpeg_destination_mgr manager;
    FileBytes* file;
    std::array<JOCTET, std::size_t{64} * 1024> buffer;
};

void beginBuffer(j_compress_ptr info)
{
    auto* target = reinterpret_cast<Target*>(info->dest);
    target->manager.next_output_byte = target->buffer.data();
    target->manager.free_in_buffer = target->buffer.size();
}

void store(j_compress_ptr info, std::size_t count)
{
    auto* target = reinterpret_cast<Target*>(info->dest);
    if (!target->file->append({target->buffer.data(), count}))
        info->err->error_exit(reinterpret_cast<j_common_ptr>(info));
}

/// The library asks for the whole buffer to be stored, whatever its counter says.
boolean storeFullBuffer(j_compress_ptr info)
{
    store(info, std::tuple_size_v<decltype(Target::buffer)>);
    beginBuffer(info);
    return TRUE;
}

void storeRest(j_compress_ptr info)
{
    store(info, std::tuple_size_v<decltype(Target::buffer)> - info->dest->free_in_buffer);
}

/// One picture on its way through the library.
class Writer
{
public:
    explicit Writer(FileBytes& file)
    {
        m_info.err = &m_errors.manager;
        m_target.manager = {nullptr, 0, beginBuffer, storeFullBuffer, storeRest};
        m_target.file = &file;
    }
    ~Writer() { jpeg_destroy_compress(&m_info); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    bool write(ConstPixelView pixels, int quality, double dpiX, double dpiY);

private:
    void describe(const ConstPixelView& pixels, int quality, double dpiX, double dpiY);

    jpeg::Errors m_errors;
    jpeg_compress_struct m_info{};
    Target m_target;
};

/// The library's own defaults halve the chroma both ways.
void Writer::describe(const ConstPixelView& pixels, int quality, double dpiX, double dpiY)
{
    m_info.image_width = static_cast<JDIMENSION>(pixels.width);
    m_info.image_height = static_cast<JDIMENSION>(pixels.height);
    m_info.input_components = 4;
    m_info.in_color_space = JCS_EXT_BGRX;
    jpeg_set_defaults(&m_info);
    jpeg_set_quality(&m_info, quality, TRUE);
    m_info.density_unit = kPerInch;
    m_info.X_density = static_cast<UINT16>(wholeResolution(dpiX, 1, kMaxDensity));
    m_info.Y_density = static_cast<UINT16>(wholeResolution(dpiY, 1, kMaxDensity));
}

bool Writer::write(ConstPixelView pixels, int quality, double dpiX, double dpiY)
{
    return attempt(m_errors.escape, [&, this] {
        jpeg_create_compress(&m_info);
        m_info.dest = &m_target.manager;
        describe(pixels, quality, dpiX, dpiY);
        jpeg_start_compress(&m_info, TRUE);
        for (int y = 0; y < pixels.height; ++y) {
            // The library's interface knows no constant rows; it only reads them.
            JSAMPROW row = const_cast<JSAMPROW>(pixels.top + y * pixels.stride);
            jpeg_write_scanlines(&m_info, &row, 1);
        }
        jpeg_finish_compress(&m_info);
        return true;
    });
}

} // namespace

std::optional<FileBytes> encodeJpeg(ConstPixelView pixels, int quality, double dpiX, double dpiY)
{
    if (pixels.width < 1 || pixels.height < 1)
        return std::nullopt;
    FileBytes file;
    if (!Writer(file).write(pixels, std::clamp(quality, 1, 100), dpiX, dpiY))
        return std::nullopt;
    return file;
}

} // namespace vq::gdiplus
