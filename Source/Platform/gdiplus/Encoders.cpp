// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Encoders.h"

#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/codecs/Bmp.h"
#include "Platform/gdiplus/codecs/Gif.h"
#include "Platform/gdiplus/codecs/Jpeg.h"
#include "Platform/gdiplus/codecs/Png.h"
#include "Platform/gdiplus/codecs/Tiff.h"

#include <algorithm>

namespace vq::gdiplus {
namespace {

using FileOrNothing = std::optional<FileBytes>;
using Gdiplus::EncoderParameters;

FileOrNothing bmp(const PixelStore& store, ConstPixelView pixels, const EncoderParameters*)
{
    return encodeBmp(pixels, store.resolution.x, store.resolution.y);
}

/// A quality among the parameters counts when it is a LONG, as GDI+ asks for.
int quality(const EncoderParameters* parameters)
{
    if (!parameters)
        return kDefaultJpegQuality;
    for (const auto* entry = parameters->Parameter; entry != parameters->Parameter + parameters->Count; ++entry)
        if (entry->Guid == Gdiplus::EncoderQuality && entry->Type == Gdiplus::EncoderParameterValueTypeLong &&
            entry->NumberOfValues >= 1 && entry->Value)
            return std::clamp<int>(*static_cast<const LONG*>(entry->Value), 0, 100);
    return kDefaultJpegQuality;
}

FileOrNothing jpeg(const PixelStore& store, ConstPixelView pixels, const EncoderParameters* parameters)
{
    return encodeJpeg(pixels, quality(parameters), store.resolution.x, store.resolution.y);
}

FileOrNothing gif(const PixelStore&, ConstPixelView pixels, const EncoderParameters*)
{
    return encodeGif(pixels);
}

/// As .NET's tests, run on Windows, say: 32 bits with and without alpha become 32 bits with it.
FileOrNothing tiff(const PixelStore& store, ConstPixelView pixels, const EncoderParameters*)
{
    const bool isRgba = store.layout == Layout::Straight || Gdiplus::GetPixelFormatSize(store.format) == 32;
    return encodeTiff(pixels, isRgba ? TiffSamples::Rgba : TiffSamples::Rgb, store.resolution.x, store.resolution.y);
}

FileOrNothing png(const PixelStore& store, ConstPixelView pixels, const EncoderParameters*)
{
    return encodePng(pixels, store.resolution.x, store.resolution.y);
}

struct Encoder
{
    CLSID id;
    GUID format;
    const wchar_t* name;
    const wchar_t* description;
    const wchar_t* extensions;
    const wchar_t* mimeType;
    /// How such a file begins: `signatureCount` patterns of `signatureSize` bytes, one behind the other.
    const char* patterns;
    const char* masks;
    DWORD signatureCount;
    DWORD signatureSize;
    /// The pixels of a store, made straight, as a file.
    FileOrNothing (*encode)(const PixelStore&, ConstPixelView, const EncoderParameters*);
};

/// {557CF4nn-1A04-11D3-9A73-0000F81EF32E}
constexpr CLSID encoderId(DWORD number)
{
    return {0x557CF400 + number, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
}

constexpr Encoder kEncoders[] = {
    {encoderId(0), Gdiplus::ImageFormatBMP, L"Built-in BMP Codec", L"BMP", L"*.BMP;*.DIB;*.RLE", L"image/bmp", "BM",
     "\xFF\xFF", 1, 2, bmp},
    {encoderId(1), Gdiplus::ImageFormatJPEG, L"Built-in JPEG Codec", L"JPEG", L"*.JPG;*.JPEG;*.JPE;*.JFIF",
     L"image/jpeg", "\xFF\xD8", "\xFF\xFF", 1, 2, jpeg},
    {encoderId(2), Gdiplus::ImageFormatGIF, L"Built-in GIF Codec", L"GIF", L"*.GIF", L"image/gif", "GIF89aGIF87a",
     "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 2, 6, gif},
    {encoderId(5), Gdiplus::ImageFormatTIFF, L"Built-in TIFF Codec", L"TIFF", L"*.TIF;*.TIFF", L"image/tiff", "IIMM",
     "\xFF\xFF\xFF\xFF", 2, 2, tiff},
    {encoderId(6), Gdiplus::ImageFormatPNG, L"Built-in PNG Codec", L"PNG", L"*.PNG", L"image/png", "\x89PNG\r\n\x1A\n",
     "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 1, 8, png},
};

Gdiplus::ImageCodecInfo describe(const Encoder& encoder)
{
    constexpr DWORD kFlags = Gdiplus::ImageCodecFlagsEncoder | Gdiplus::ImageCodecFlagsDecoder |
                             Gdiplus::ImageCodecFlagsSupportBitmap | Gdiplus::ImageCodecFlagsBuiltin;
    Gdiplus::ImageCodecInfo info{};
    info.Clsid = encoder.id;
    info.FormatID = encoder.format;
    info.CodecName = encoder.name;
    info.FormatDescription = encoder.description;
    info.FilenameExtension = encoder.extensions;
    info.MimeType = encoder.mimeType;
    info.Flags = kFlags;
    info.Version = 1;
    info.SigCount = encoder.signatureCount;
    info.SigSize = encoder.signatureSize;
    info.SigPattern = reinterpret_cast<const BYTE*>(encoder.patterns);
    info.SigMask = reinterpret_cast<const BYTE*>(encoder.masks);
    return info;
}

} // namespace

Encoded encode(const PixelStore& store, const CLSID& encoder, const EncoderParameters* parameters)
{
    const auto found = std::ranges::find(kEncoders, encoder, &Encoder::id);
    if (found == std::end(kEncoders))
        return {{}, Gdiplus::UnknownImageFormat};
    auto file = found->encode(store, StraightPixels(store).view(), parameters);
    if (!file)
        return {{}, Gdiplus::GenericError};
    return {std::move(*file), Gdiplus::Ok};
}

} // namespace vq::gdiplus

namespace Gdiplus {

Status GetImageEncodersSize(UINT* numEncoders, UINT* size)
{
    return vq::gdiplus::guarded([&] {
        if (!numEncoders || !size)
            return InvalidParameter;
        *numEncoders = static_cast<UINT>(std::size(vq::gdiplus::kEncoders));
        *size = static_cast<UINT>(std::size(vq::gdiplus::kEncoders) * sizeof(ImageCodecInfo));
        return Ok;
    });
}

Status GetImageEncoders(UINT numEncoders, UINT size, ImageCodecInfo* encoders)
{
    return vq::gdiplus::guarded([&] {
        if (!encoders || numEncoders != std::size(vq::gdiplus::kEncoders) ||
            size != numEncoders * sizeof(ImageCodecInfo))
            return GenericError;
        std::ranges::transform(vq::gdiplus::kEncoders, encoders, vq::gdiplus::describe);
        return Ok;
    });
}

} // namespace Gdiplus
