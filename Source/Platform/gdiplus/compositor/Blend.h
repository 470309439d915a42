// SPDX-License-Identifier: MIT
#pragma once

namespace vq::gdiplus {

/// How a source pixel meets the pixel that is there.
enum class Blend {
    SourceCopy,           ///< colour and alpha replace it; a source of alpha 0 writes 00000000
    SourceOver,           ///< composited on straight alpha, in the bytes as they are
    SourceOverLinearLight ///< composited on straight alpha, in linear light (the sRGB curve)
};

} // namespace vq::gdiplus
