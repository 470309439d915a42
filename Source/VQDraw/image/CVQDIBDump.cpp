// SPDX-License-Identifier: MIT
// Windows bitmaps of 32 bits for diagnosis: the pixel buffer as it is, and its alpha channel.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/FileOwner.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <vector>

namespace {

constexpr WORD kWindowsBitmap = 0x4D42; // "BM"

CString withExtension(CString path)
{
    if (path.Right(4).MakeLower() != L".bmp")
        path += L".bmp";
    return path;
}

bool write(std::FILE* file, const void* data, std::size_t bytes)
{
    return std::fwrite(data, 1, bytes, file) == bytes;
}

/// `header` describes the pixels, which `writePixels(file)` writes.
template <typename WritePixels>
bool dump(const CString& path, BITMAPINFOHEADER header, WritePixels writePixels)
{
    BITMAPFILEHEADER fileHeader{};
    fileHeader.bfType = kWindowsBitmap;
    fileHeader.bfSize = header.biSizeImage; // without the headers
    fileHeader.bfOffBits = sizeof fileHeader + sizeof header;
    header.biSizeImage = 0; // as uncompressed bitmaps may have it

    vq::platform::ReplacementFile replacement(withExtension(path));
    vq::FileOwner file(replacement.isReady() ? vq::openFile(replacement.path(), L"wb") : nullptr);
    return file && write(file.get(), &fileHeader, sizeof fileHeader) && write(file.get(), &header, sizeof header) &&
           writePixels(file.get()) && std::fclose(file.release()) == 0 && replacement.commit();
}

} // namespace

bool CVQDIB::DumpToBMP(CString path)
{
    return m_pImageBuffer && dump(path, GetBitmapInfo().bmiHeader, [this](std::FILE* file) {
               return write(file, m_pImageBuffer, static_cast<std::size_t>(m_iByteSize));
           });
}

bool CVQDIB::DumpAlphaToBMP(CString path)
{
    if (!m_pImageBuffer)
        return false;
    return dump(path, GetBitmapInfo().bmiHeader, [this](std::FILE* file) {
        std::vector<ULONG> row(static_cast<std::size_t>(m_iWidth));
        for (LONG y = 0; y < m_iHeight; ++y) {
            std::transform(GetImageBuffer(0, y), GetImageBuffer(0, y) + m_iWidth, row.begin(),
                           [](ULONG pixel) { return vq::alphaAsGrey(pixel) & ~vq::kAlphaBits; });
            if (!write(file, row.data(), row.size() * sizeof(ULONG)))
                return false;
        }
        return true;
    });
}
