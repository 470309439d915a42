// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>
#include <vqSelection/VQSelection.h>

#include <filesystem>
#include <string>

namespace vqview {

/// What a document holds beside the preferences, which it takes from the store and gives back to it.
///
/// On disk, numbers with the low byte first: "VQVD", a version, the scan's path as UTF-8 behind its length, scene
/// colours and sizes, colours of controls, materials, fonts, colours of histograms and of reports, the report image,
/// the texture, the selection.
struct Document
{
    std::string scan; ///< UTF-8; empty when none was shown
    CVQDIB report{1, 1};
    CVQTexture texture{4, 4};
    CVQSelectionSet selection;
};

/// @return empty, or what failed; an old file then stays as it was.
std::string writeDocument(const std::filesystem::path& path, Document& document);

/// @return empty, or what failed; preferences are then what they were, and what `document` holds is of no use.
std::string readDocument(const std::filesystem::path& path, Document& document);
/// The same from any archive; the fault lacks the file's name.
std::string readDocument(CVQArchive& archive, Document& document);

} // namespace vqview
