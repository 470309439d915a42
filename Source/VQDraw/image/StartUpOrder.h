// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The order in which the library's process-wide objects come into being when it is loaded, for `VQ_START_ORDER`.
/// They are destroyed in reverse order. No other static object of the library has a constructor that runs.

namespace vq {

enum StartUpOrder {
    kModuleObject = 10,
    kDrawingFacade = 20,
    kImageLock = 30,
    kTextureLock = 40,
    kMaterialPalette = 50,
};

} // namespace vq
