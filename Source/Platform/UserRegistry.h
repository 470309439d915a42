// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"
#include "Platform/System.h"

#include <optional>
#include <string>
#include <variant>

/// @file
/// The user's registry: values by section and key.

namespace vq::platform {

using RegistryValue = std::variant<DWORD, std::wstring>;

/// The profile file that stands for a registry where the system has none; empty where it has one.
///
/// @param make whether the folders on the way to it are made
VQPLATFORM_API std::wstring userRegistryFile(bool make);

/// From "Software\VQDraw\<section>" of the current user. Without a value when there is none, when it is neither number
/// nor text, and where the system has no registry.
VQPLATFORM_API std::optional<RegistryValue> userRegistryValue(LPCWSTR section, LPCWSTR key);
/// False when the system refuses, or has no registry.
[[nodiscard]] VQPLATFORM_API bool setUserRegistryValue(LPCWSTR section, LPCWSTR key, const RegistryValue& value);

} // namespace vq::platform
