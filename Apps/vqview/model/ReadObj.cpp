// SPDX-License-Identifier: MIT
#include "vqview/model/Readers.h"
#include "vqview/model/TextScan.h"

namespace vqview {

namespace {

/// Corners are v, v/vt, v//vn or v/vt/vn; only v counts. Below 0 it counts back from the position last read.
bool takeCorners(Words& words, std::size_t positionCount, std::vector<std::uint32_t>& corners)
{
    corners.clear();
    while (!words.isAtEnd()) {
        std::string_view word = words.next();
        std::int64_t index = 0;
        if (word.starts_with('#'))
            return true;
        if (!takeInteger(word, index) || !(word.empty() || word.starts_with('/')))
            return false;
        const double first = index < 0 ? -static_cast<double>(positionCount) : 1;
        corners.push_back(indexFrom(static_cast<double>(index), first));
    }
    return true;
}

bool takePoint(Words& words, std::vector<Point3>& points)
{
    Point3 point;
    if (!words.numbers(point.x, point.y, point.z))
        return false;
    points.push_back(point);
    return true;
}

} // namespace

std::string readObj(std::string_view text, RawMesh& mesh, Progress& progress)
{
    Lines lines(text, progress);
    std::vector<std::uint32_t> corners;
    for (std::string_view line; lines.nextJoined(line);) {
        Words words(line);
        const std::string_view keyword = words.next();
        if (keyword == "v" && !takePoint(words, mesh.positions))
            return inLine(lines.number(), "a vertex is not three numbers");
        if (keyword == "vn" && !takePoint(words, mesh.normals))
            return inLine(lines.number(), "a normal is not three numbers");
        if (keyword != "f")
            continue;
        if (!takeCorners(words, mesh.positions.size(), corners))
            return inLine(lines.number(), "a face has a corner that is no number");
        appendFan(mesh.triangles, corners);
    }
    return {};
}

} // namespace vqview
