// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/session/Input.h"

#include <optional>

namespace vqview {

/// From GLFW's key and scan code. Letters are those that the keyboard's layout puts there. Nothing for keys that the
/// session does not know.
std::optional<Key> keyOf(int key, int scanCode);

} // namespace vqview
