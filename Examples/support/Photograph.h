// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>
#include <memory>

/// A picture file in an image, whose sides are at most `longestSide` pixels: photographs of 12 million pixels would
/// make a page of many megabytes. Null when the file is no picture that can be read, or memory is short.
std::unique_ptr<CVQDIB> loadPhotograph(const std::filesystem::path& file, LONG longestSide);
