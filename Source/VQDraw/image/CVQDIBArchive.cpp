// SPDX-License-Identifier: MIT
// Images inside document archives and streams.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/EncodedPicture.h"
#include "VQDraw/image/ImageEncoders.h"
#include "vqCommonBase/VQArchive.h"

#include <array>
#include <iterator>

namespace {

std::array<BYTE, 4> lengthOf(std::span<const BYTE> bytes)
{
    const std::size_t length = bytes.size();
    return {static_cast<BYTE>(length), static_cast<BYTE>(length >> 8), static_cast<BYTE>(length >> 16),
            static_cast<BYTE>(length >> 24)};
}

constexpr const wchar_t* kMimeTypes[] = {L"image/bmp", L"image/jpeg", L"image/gif", L"image/tiff", L"image/png"};
static_assert(std::size(kMimeTypes) == CVQDIB::IFT_END);

} // namespace

bool CVQDIB::ReadFile(CVQArchive* archive)
{
    Gdiplus::Bitmap* read = nullptr;
    if (!ReadFileToBitmap(archive, read))
        return false;
    const vq::BitmapOwner bitmap(read);
    CVQDIB fresh(static_cast<CVQDIB*>(nullptr));
    if (!fresh.Take(*bitmap) &&
        fresh.Create(static_cast<INT>(bitmap->GetWidth()), static_cast<INT>(bitmap->GetHeight())))
        fresh.DrawWhole(*bitmap);
    if (!fresh.m_pGraphics)
        return false;
    ExchangePicture(fresh);
    return true;
}

bool CVQDIB::WriteFile(CVQArchive* archive)
{
    return WriteFileFromBitmap(m_pBitmap, archive);
}

bool CVQDIB::ReadFileToBitmap(CVQArchive* archive, Gdiplus::Bitmap*& bitmap)
{
    bitmap = nullptr;
    if (archive)
        bitmap = vq::readPicture(*archive).release();
    return bitmap != nullptr;
}

bool CVQDIB::ReadFileToBitmap(std::FILE* file, Gdiplus::Bitmap*& bitmap)
{
    bitmap = file ? vq::readPicture(file).release() : nullptr;
    return bitmap != nullptr;
}

bool CVQDIB::WriteFileFromBitmap(Gdiplus::Bitmap* bitmap, CVQArchive* archive)
{
    if (!archive)
        return false;
    const vq::EncodedPicture encoded(bitmap, vq::kPngEncoder);
    const auto bytes = encoded.bytes();
    const auto length = lengthOf(bytes);
    archive->Write(length.data(), static_cast<UINT>(length.size()));
    if (!bytes.empty())
        archive->Write(bytes.data(), static_cast<UINT>(bytes.size()));
    return true; // what came of encoding is not told
}

bool CVQDIB::WriteFileFromBitmap(Gdiplus::Bitmap* bitmap, std::FILE* file, eImageFormatType format, bool writeLength)
{
    CLSID encoder{};
    if (!file || format < IFT_BMP || format >= IFT_END || GetEncoderClsid(kMimeTypes[format], &encoder) < 0)
        return false;
    const vq::EncodedPicture encoded(bitmap, encoder);
    const auto bytes = encoded.bytes();
    if (bytes.empty())
        return true; // what came of encoding is not told
    const auto length = lengthOf(bytes);
    if (writeLength)
        std::fwrite(length.data(), 1, length.size(), file);
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    return true;
}
