// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Image.h"

#include "Platform/gdiplus/Encoders.h"
#include "Platform/gdiplus/FileAccess.h"
#include "Platform/gdiplus/ImageAccess.h"

#include <utility>

namespace Gdiplus {

using vq::gdiplus::guarded;

Image::Image(const WCHAR* filename, BOOL) : m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] {
        if (!filename)
            return InvalidParameter;
        const auto file = vq::gdiplus::readFile(filename);
        if (!file)
            return OutOfMemory;
        m_pixels = vq::gdiplus::decodedPixels(file->bytes()).pixels;
        return m_pixels ? Ok : OutOfMemory;
    });
}

Image::Image(IStream* stream, BOOL) : m_lastStatus(Ok)
{
    m_lastStatus = guarded([&] {
        const auto file = stream ? vq::gdiplus::readStream(*stream) : std::nullopt;
        if (!file)
            return InvalidParameter;
        auto decoded = vq::gdiplus::decodedPixels(file->bytes());
        m_pixels = std::move(decoded.pixels);
        return decoded.status;
    });
}

Image::Image(Pixels pixels, Status status) : m_pixels(std::move(pixels)), m_lastStatus(status) {}

Image::~Image() = default;

Image* Image::FromFile(const WCHAR* filename, BOOL useEmbeddedColorManagement)
{
    return new Image(filename, useEmbeddedColorManagement);
}

Image* Image::FromStream(IStream* stream, BOOL useEmbeddedColorManagement)
{
    return new Image(stream, useEmbeddedColorManagement);
}

Image* Image::Clone() const
{
    Image* clone = nullptr;
    setStatus(withPixels([&](const vq::gdiplus::PixelStore& pixels) {
        auto copy = vq::gdiplus::clonePixels(pixels);
        if (!copy.pixels)
            return copy.status;
        clone = new Image(std::move(copy.pixels), Ok);
        return clone ? Ok : OutOfMemory;
    }));
    return clone;
}

Status Image::Save(const WCHAR* filename, const CLSID* clsidEncoder, const EncoderParameters* encoderParams)
{
    return setStatus(withPixels([&](const vq::gdiplus::PixelStore& pixels) {
        if (!filename || !clsidEncoder)
            return InvalidParameter;
        const auto encoded = vq::gdiplus::encode(pixels, *clsidEncoder, encoderParams);
        if (encoded.status != Ok)
            return encoded.status;
        return vq::gdiplus::replaceFile(filename, encoded.file.bytes()) ? Ok : GenericError;
    }));
}

Status Image::Save(IStream* stream, const CLSID* clsidEncoder, const EncoderParameters* encoderParams)
{
    return setStatus(withPixels([&](const vq::gdiplus::PixelStore& pixels) {
        if (!stream || !clsidEncoder)
            return InvalidParameter;
        const auto encoded = vq::gdiplus::encode(pixels, *clsidEncoder, encoderParams);
        if (encoded.status != Ok)
            return encoded.status;
        return vq::gdiplus::writeStream(*stream, encoded.file.bytes()) ? Ok : GenericError;
    }));
}

ImageType Image::GetType() const
{
    return read(ImageTypeUnknown, [](const auto&) { return ImageTypeBitmap; });
}

UINT Image::GetWidth()
{
    return read(UINT{0}, [](const auto& pixels) { return static_cast<UINT>(pixels.width); });
}

UINT Image::GetHeight()
{
    return read(UINT{0}, [](const auto& pixels) { return static_cast<UINT>(pixels.height); });
}

REAL Image::GetHorizontalResolution()
{
    return read(REAL{0}, [](const auto& pixels) { return pixels.resolution.x; });
}

REAL Image::GetVerticalResolution()
{
    return read(REAL{0}, [](const auto& pixels) { return pixels.resolution.y; });
}

PixelFormat Image::GetPixelFormat()
{
    return read(PixelFormatUndefined, [](const auto& pixels) { return pixels.format; });
}

Status Image::GetPhysicalDimension(SizeF* size)
{
    return setStatus(withPixels([&](const vq::gdiplus::PixelStore& pixels) {
        if (!size)
            return InvalidParameter;
        *size = SizeF(static_cast<REAL>(pixels.width), static_cast<REAL>(pixels.height));
        return Ok;
    }));
}

Status Image::GetBounds(RectF* srcRect, Unit* srcUnit)
{
    return setStatus(withPixels([&](const vq::gdiplus::PixelStore& pixels) {
        if (!srcRect || !srcUnit)
            return InvalidParameter;
        *srcRect = RectF(0, 0, static_cast<REAL>(pixels.width), static_cast<REAL>(pixels.height));
        *srcUnit = UnitPixel;
        return Ok;
    }));
}

Status Image::GetRawFormat(GUID* format)
{
    return setStatus(withPixels([&](const vq::gdiplus::PixelStore& pixels) {
        if (!format)
            return InvalidParameter;
        *format = pixels.rawFormat;
        return Ok;
    }));
}

Status Image::RotateFlip(RotateFlipType rotateFlipType)
{
    return setStatus(withPixels(
        [&](vq::gdiplus::PixelStore& pixels) { return vq::gdiplus::rotateFlipPixels(pixels, rotateFlipType); }));
}

Status Image::GetLastStatus() const
{
    return std::exchange(m_lastStatus, Ok);
}

Status Image::setStatus(Status status) const
{
    if (status != Ok)
        m_lastStatus = status;
    return status;
}

} // namespace Gdiplus
