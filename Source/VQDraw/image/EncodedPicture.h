// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <cstdio>
#include <memory>
#include <span>

class CVQArchive;

namespace vq {

struct ReleaseStream
{
    void operator()(IStream* stream) const { stream->Release(); }
};
using StreamOwner = std::unique_ptr<IStream, ReleaseStream>;

/// A picture as the bytes of a file, in memory.
class EncodedPicture
{
public:
    /// A null or broken bitmap, and one that the encoder refuses, gives no bytes.
    EncodedPicture(Gdiplus::Bitmap* bitmap, const CLSID& encoder);
    ~EncodedPicture();
    EncodedPicture(const EncodedPicture&) = delete;
    EncodedPicture& operator=(const EncodedPicture&) = delete;

    std::span<const BYTE> bytes() const { return m_bytes; }

private:
    StreamOwner m_stream;
    HGLOBAL m_memory = nullptr; // the stream's, locked
    std::span<const BYTE> m_bytes;
};

using BitmapOwner = std::unique_ptr<Gdiplus::Bitmap>;

/// Reads a length and so many bytes, and decodes them; null when they are no picture. What the archive throws for a
/// short read passes through.
BitmapOwner readPicture(CVQArchive& archive);
/// The same; null when the file ends too early.
BitmapOwner readPicture(std::FILE* file);

} // namespace vq
