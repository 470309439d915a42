// SPDX-License-Identifier: MIT
#pragma once

namespace vqview {

/// Whether a popup lies over the window, which then has the mouse and the keys.
bool isPopupOpen();

/// Between the beginning and the end of a popup: Escape closes it.
void closeByEscape();

} // namespace vqview
