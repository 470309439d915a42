// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

#include <string>

/// @file
/// Places that the system knows, without a separator at the end; empty when it does not.

namespace vq::platform {

/// Where the program lies that is running.
VQPLATFORM_API std::wstring programFolder();

/// The user's documents, or the user's home where the system has no such folder.
///
/// @param make whether the folder is made when it is missing; otherwise its place may be named although it is
VQPLATFORM_API std::wstring documentsFolder(bool make);

} // namespace vq::platform
