// SPDX-License-Identifier: MIT
#include "house/Rooms.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vq::house {

namespace {

using Pair = std::pair<std::string_view, std::string_view>;

/// Who includes whom; what an arrow leads to over others is allowed as well.
constexpr std::array<Pair, 12> kArrows{{
    {"overlay", "preferences"},
    {"preferences", "draw"},
    {"preferences", "filters"},
    {"texture", "draw"},
    {"texture", "filters"},
    {"draw", "image"},
    {"filters", "image"},
    {"image", "vqMessage"},
    {"image", "vqGeometry"},
    {"vqMessage", "vqCommonBase"},
    {"vqGeometry", "vqCommonBase"},
    {"vqCommonBase", "Platform"},
}};

/// Folders below Source/ and the headers that stand directly in VQDraw/. The first match counts.
constexpr std::array<Pair, 22> kRoomOfPath{{
    {"VQDraw/VQDraw.h", "umbrella"},
    {"VQDraw/Export.h", "image"},
    {"VQDraw/VQDIB.h", "image"},
    {"VQDraw/VQTexture.h", "texture"},
    {"VQDraw/VQDragObject.h", "overlay"},
    {"VQDraw/VQDrawingAPI.h", "overlay"},
    {"VQDraw/VQText.h", "overlay"},
    {"VQDraw/LumpArray.h", "overlay"},
    {"VQDraw/VQDrawProperty.h", "preferences"},
    {"VQDraw/VQDrawPropertyEnumerations.h", "preferences"},
    {"VQDraw/VQFont.h", "preferences"},
    {"VQDraw/image/", "image"},
    {"VQDraw/draw/", "draw"},
    {"VQDraw/filters/", "filters"},
    {"VQDraw/overlay/", "overlay"},
    {"VQDraw/texture/", "texture"},
    {"VQDraw/preferences/", "preferences"},
    {"vqCommonBase/", "vqCommonBase"},
    {"vqGeometry/", "vqGeometry"},
    {"vqMessage/", "vqMessage"},
    {"vqSelection/", "vqSelection"},
    {"Platform/", "Platform"},
}};

constexpr std::string_view kSource = "Source/";

bool isPublic(std::string_view header)
{
    constexpr std::array<std::string_view, 5> kFolders{"VQDraw/", "vqCommonBase/", "vqGeometry/", "vqMessage/",
                                                       "vqSelection/"};
    return header == "Platform/Platform.h" || std::ranges::any_of(kFolders, [&](std::string_view folder) {
               return header.starts_with(folder) && header.find('/', folder.size()) == std::string_view::npos;
           });
}

constexpr std::string_view kSelection = "Source/vqSelection/";

bool isOutside(const SourceFile& file)
{
    return file.isBelow("Apps/") || file.isBelow("Examples/") || file.isBelow(kSelection);
}

/// What vqSelection has of its own, and how it marks what it exports.
bool isOfSelection(const Include& include)
{
    return include.isBelow("vqSelection/") || include.header == "Platform/Export.h";
}

} // namespace

std::string_view roomOf(std::string_view pathBelowSource)
{
    const auto* found =
        std::ranges::find_if(kRoomOfPath, [&](const Pair& row) { return pathBelowSource.starts_with(row.first); });
    return found == kRoomOfPath.end() ? std::string_view() : found->second;
}

bool mayInclude(std::string_view from, std::string_view to)
{
    return from == to || std::ranges::any_of(kArrows, [&](const Pair& arrow) {
               return arrow.first == from && mayInclude(arrow.second, to);
           });
}

Faults arrowFaults(const SourceFile& file)
{
    if (!file.isCpp() || !file.isBelow(kSource) || isOutside(file))
        return {};
    const std::string_view from = roomOf(std::string_view(file.path).substr(kSource.size()));
    if (from.empty())
        return {fault(file, 1, "belongs to no room: give it a row in the table of rooms")};
    Faults faults;
    for (const Include& include : includesOf(file)) {
        if (!include.quoted)
            continue;
        const std::string_view to = roomOf(include.header);
        const bool umbrellaOverAll = from == "umbrella" && to != "vqSelection" && isPublic(include.header);
        if (!umbrellaOverAll && !mayInclude(from, to))
            faults.push_back(fault(file, include.line,
                                   std::string(from) + " must not include " + include.header + " of " +
                                       (to.empty() ? "no room" : std::string(to))));
    }
    return faults;
}

Faults outsiderFaults(const SourceFile& file)
{
    if (!file.isCpp() || !isOutside(file))
        return {};
    Faults faults;
    for (const Include& include : includesOf(file)) {
        const bool ofLibrary = !roomOf(include.header).empty();
        const bool ofItself = file.isBelow(kSelection) && isOfSelection(include);
        if (ofLibrary && !isPublic(include.header) && !ofItself)
            faults.push_back(fault(file, include.line, include.header + " is no public header"));
    }
    return faults;
}

} // namespace vq::house
