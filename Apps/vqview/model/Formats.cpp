// SPDX-License-Identifier: MIT
#include "vqview/model/FromBytes.h"
#include "vqview/model/Readers.h"
#include "vqview/model/TextScan.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace vqview {

namespace {

constexpr std::array<std::pair<std::string_view, ScanFormat>, 10> kExtensions{{
    {".obj", ScanFormat::Obj},
    {".off", ScanFormat::Off},
    {".noff", ScanFormat::Off},
    {".coff", ScanFormat::Off},
    {".ply", ScanFormat::Ply},
    {".stl", ScanFormat::Stl},
    {".xyz", ScanFormat::Xyz},
    {".xyzn", ScanFormat::Xyz},
    {".pts", ScanFormat::Xyz},
    {".asc", ScanFormat::Xyz},
}};

constexpr std::size_t kSampleSize = 1 << 16;

bool hasObjVertices(std::string_view text)
{
    Progress unwatched;
    Lines lines(text, unwatched);
    for (std::string_view line; lines.next(line);) {
        float x = 0, y = 0, z = 0;
        Words words(line);
        if (words.next() == "v" && words.numbers(x, y, z))
            return true;
    }
    return false;
}

bool isBinaryStl(std::string_view bytes)
{
    constexpr std::size_t kHeader = 84, kTriangle = 50;
    return bytes.size() > kHeader &&
           bytes.size() == kHeader + kTriangle * std::uint64_t{fromBytes<std::uint32_t>(bytes.data() + 80)};
}

} // namespace

std::string read(ScanFormat format, std::string_view bytes, RawMesh& mesh, Progress& progress)
{
    switch (format) {
    case ScanFormat::Obj:
        return readObj(bytes, mesh, progress);
    case ScanFormat::Off:
        return readOff(bytes, mesh, progress);
    case ScanFormat::Ply:
        return readPly(bytes, mesh, progress);
    case ScanFormat::Stl:
        return readStl(bytes, mesh, progress);
    case ScanFormat::Xyz:
        return readXyz(bytes, mesh, progress);
    }
    return {};
}

std::optional<ScanFormat> formatOfExtension(std::string_view extension)
{
    const auto found = std::ranges::find(kExtensions, extension, &std::pair<std::string_view, ScanFormat>::first);
    return found == kExtensions.end() ? std::nullopt : std::optional(found->second);
}

std::optional<ScanFormat> formatOfContent(std::string_view bytes)
{
    std::string_view sample = bytes.substr(0, kSampleSize);
    if (sample.size() < bytes.size())
        sample = sample.substr(0, sample.rfind(lineEndOf(sample))); // whole lines
    const std::string_view word = Words(sample.substr(0, 80), '\n').next();
    if (word == "ply")
        return ScanFormat::Ply;
    if (isBinaryStl(bytes))
        return ScanFormat::Stl;
    if (sample.find('\0') != std::string_view::npos)
        return std::nullopt;
    if (beginsWith(word, "solid") && sample.find("vertex") != std::string_view::npos)
        return ScanFormat::Stl;
    if (word.ends_with("OFF") && word.size() <= 8)
        return ScanFormat::Off;
    if (isMostlyXyz(sample))
        return ScanFormat::Xyz;
    return hasObjVertices(sample) ? std::optional(ScanFormat::Obj) : std::nullopt;
}

} // namespace vqview
