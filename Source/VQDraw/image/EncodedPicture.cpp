// SPDX-License-Identifier: MIT
#include "VQDraw/image/EncodedPicture.h"

#include "vqCommonBase/VQArchive.h"

#include <algorithm>
#include <array>

namespace vq {
namespace {

StreamOwner memoryStream()
{
    IStream* stream = nullptr;
    CreateStreamOnHGlobal(nullptr, TRUE, &stream);
    return StreamOwner(stream);
}

std::size_t sizeOf(IStream& stream)
{
    STATSTG statistics{};
    return stream.Stat(&statistics, STATFLAG_NONAME) == S_OK ? statistics.cbSize.QuadPart : 0;
}

bool append(IStream& stream, std::span<const BYTE> bytes)
{
    ULONG written = 0;
    return stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written) == S_OK && written == bytes.size();
}

BitmapOwner decoded(IStream& stream)
{
    if (stream.Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr) != S_OK)
        return nullptr;
    BitmapOwner bitmap(new Gdiplus::Bitmap(&stream));
    return bitmap && bitmap->GetLastStatus() == Gdiplus::Ok ? std::move(bitmap) : nullptr;
}

/// `read(memory, bytes)` tells whether all of them came. The length is never believed: what is read is read piece by
/// piece, and also where there is no memory left for it, so that the next block can be found.
template <typename Read>
BitmapOwner readCounted(Read read)
{
    constexpr std::size_t kPiece = 64 * 1024;
    std::array<BYTE, 4> length;
    if (!read(length.data(), length.size()))
        return nullptr;
    std::size_t rest =
        length[0] | std::size_t{length[1]} << 8 | std::size_t{length[2]} << 16 | std::size_t{length[3]} << 24;

    const StreamOwner stream = memoryStream();
    bool isKept = stream != nullptr;
    std::array<BYTE, kPiece> piece;
    while (rest > 0) {
        const std::size_t count = std::min(rest, kPiece);
        if (!read(piece.data(), count))
            return nullptr;
        isKept = isKept && append(*stream, std::span(piece).first(count));
        rest -= count;
    }
    return isKept ? decoded(*stream) : nullptr;
}

} // namespace

EncodedPicture::EncodedPicture(Gdiplus::Bitmap* bitmap, const CLSID& encoder) : m_stream(memoryStream())
{
    if (!bitmap || !m_stream || bitmap->Save(m_stream.get(), &encoder, nullptr) != Gdiplus::Ok ||
        GetHGlobalFromStream(m_stream.get(), &m_memory) != S_OK)
        return;
    if (const void* bytes = GlobalLock(m_memory))
        m_bytes = {static_cast<const BYTE*>(bytes), sizeOf(*m_stream)};
}

EncodedPicture::~EncodedPicture()
{
    if (m_bytes.data())
        GlobalUnlock(m_memory);
}

BitmapOwner readPicture(CVQArchive& archive)
{
    return readCounted([&archive](BYTE* memory, std::size_t bytes) {
        archive.Read(memory, static_cast<UINT>(bytes)); // short: throws
        return true;
    });
}

BitmapOwner readPicture(std::FILE* file)
{
    return readCounted([file](BYTE* memory, std::size_t bytes) { return std::fread(memory, 1, bytes, file) == bytes; });
}

} // namespace vq
