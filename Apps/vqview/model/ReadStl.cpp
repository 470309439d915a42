// SPDX-License-Identifier: MIT
#include "vqview/model/FromBytes.h"
#include "vqview/model/Readers.h"
#include "vqview/model/TextScan.h"

#include <algorithm>

namespace vqview {

namespace {

// A header of 80 bytes and a count; then for each triangle twelve floats, the normal first, and two bytes more.
constexpr std::size_t kCountAt = 80, kHeaderSize = 84, kTriangleSize = 50, kCornersAt = 12;
constexpr std::size_t kReportedTriangles = 1 << 14;

std::uint64_t triangleCount(std::string_view bytes)
{
    return bytes.size() < kHeaderSize ? 0 : fromBytes<std::uint32_t>(bytes.data() + kCountAt);
}

void appendCorners(RawMesh& mesh, std::size_t first)
{
    for (std::size_t i = first + 2; i < mesh.positions.size(); ++i)
        mesh.triangles.push_back(
            {static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(i - 1), static_cast<std::uint32_t>(i)});
}

std::string readBinary(std::string_view bytes, RawMesh& mesh, Progress& progress)
{
    if (bytes.size() < kHeaderSize)
        return "it ends within its header";
    const std::size_t there = (bytes.size() - kHeaderSize) / kTriangleSize;
    const std::uint64_t count = triangleCount(bytes);
    if (count > there)
        return "it ends after " + std::to_string(there) + " of " + std::to_string(count) + " triangles";
    mesh.positions.reserve(3 * count);
    mesh.triangles.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        if (i % kReportedTriangles == 0 && !progress.report(static_cast<double>(i), static_cast<double>(count)))
            return {};
        const char* at = bytes.data() + kHeaderSize + i * kTriangleSize + kCornersAt;
        for (int corner = 0; corner < 3; ++corner, at += 3 * sizeof(float))
            mesh.positions.push_back(
                {fromBytes<float>(at), fromBytes<float>(at + sizeof(float)), fromBytes<float>(at + 2 * sizeof(float))});
        appendCorners(mesh, mesh.positions.size() - 3);
    }
    return {};
}

std::string readText(std::string_view text, RawMesh& mesh, Progress& progress)
{
    Lines lines(text, progress);
    std::size_t loopBegin = 0;
    bool isEnded = false, isInLoop = false;
    for (std::string_view line; lines.next(line);) {
        Words words(line);
        const std::string_view keyword = words.next();
        isEnded = beginsWith(keyword, "endsolid") || (isEnded && keyword.empty());
        if (beginsWith(keyword, "vertex")) {
            Point3& point = mesh.positions.emplace_back();
            if (!words.numbers(point.x, point.y, point.z))
                return inLine(lines.number(), "a vertex is not three numbers");
        } else if (beginsWith(keyword, "outer")) {
            loopBegin = mesh.positions.size();
            isInLoop = true;
        } else if (beginsWith(keyword, "endloop") && isInLoop) {
            appendCorners(mesh, loopBegin);
            isInLoop = false;
        }
    }
    return isEnded ? std::string() : inLine(lines.number(), "it ends before its \"endsolid\"");
}

/// Of a file that begins as text does, with "solid": some programs begin binary ones so, and some add bytes of their
/// own.
bool isBinaryAllTheSame(std::string_view bytes)
{
    const std::uint64_t size = kHeaderSize + kTriangleSize * triangleCount(bytes);
    const bool hasZeroByte = bytes.substr(0, kHeaderSize).find('\0') != std::string_view::npos; // text has none
    return bytes.size() == size || (bytes.size() > size && hasZeroByte);
}

} // namespace

std::string readStl(std::string_view bytes, RawMesh& mesh, Progress& progress)
{
    const std::string_view begin = bytes.substr(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
    return beginsWith(begin, "solid") && !isBinaryAllTheSame(bytes) ? readText(bytes, mesh, progress)
                                                                    : readBinary(bytes, mesh, progress);
}

} // namespace vqview
