// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The user's folders, as the desktops of this system agree on them. Internal to the layer.

#include <string>

namespace vq::win32 {

/// What "user-dirs.dirs" names as the folder for documents, or home when it names none or one that is missing.
std::wstring documentsFolder(bool make);

/// $XDG_CONFIG_HOME, or ".config" in the user's home.
std::string configurationFolder();

} // namespace vq::win32
