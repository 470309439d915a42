// SPDX-License-Identifier: MIT
#include "vqview/model/Readers.h"
#include "vqview/model/TextScan.h"

#include <cmath>

namespace vqview {

namespace {

/// Lines without remarks and without those in which nothing else stands.
bool nextContent(Lines& lines, std::string_view& line)
{
    while (lines.next(line)) {
        line = line.substr(0, line.find('#'));
        if (!Words(line).isAtEnd())
            return true;
    }
    return false;
}

struct OffHeader
{
    std::uint64_t vertexCount = 0, faceCount = 0;
    bool hasNormals = false;
};

bool takeCount(Words& words, std::uint64_t& count)
{
    std::string_view word = words.next();
    std::int64_t value = 0;
    if (!takeInteger(word, value) || !word.empty() || value < 0)
        return false;
    count = static_cast<std::uint64_t>(value);
    return true;
}

/// [ST][C][N][4][n]OFF, the letters saying what stands at each vertex beside its coordinates; then the counts, in this
/// line or the next. The word may be missing.
std::string readHeader(Lines& lines, OffHeader& header)
{
    std::string_view line;
    if (!nextContent(lines, line))
        return "it has no header";
    const std::string_view word = Words(line).next();
    if (word.ends_with("OFF")) {
        const std::string_view letters = word.substr(0, word.size() - 3);
        if (letters.find_first_of("4n") != std::string_view::npos)
            return "its points have other than three coordinates";
        header.hasNormals = letters.find('N') != std::string_view::npos;
        line.remove_prefix(static_cast<std::size_t>(word.data() - line.data()) + word.size());
        if (Words(line).isAtEnd() && !nextContent(lines, line))
            return "it has no counts";
        if (Words(line).next() == "BINARY")
            return "its binary form is unknown here";
    }
    Words words(line);
    if (!takeCount(words, header.vertexCount) || !takeCount(words, header.faceCount))
        return inLine(lines.number(), "there are no counts of vertices and faces");
    return {};
}

std::string readVertices(Lines& lines, const OffHeader& header, RawMesh& mesh)
{
    std::string_view line;
    for (std::uint64_t i = 0; i < header.vertexCount; ++i) {
        if (!nextContent(lines, line))
            return "it ends after " + std::to_string(i) + " of " + std::to_string(header.vertexCount) + " vertices";
        Words words(line);
        Point3 point, normal;
        if (!words.numbers(point.x, point.y, point.z))
            return inLine(lines.number(), "a vertex is not three numbers");
        mesh.positions.push_back(point);
        if (!header.hasNormals)
            continue;
        if (!words.numbers(normal.x, normal.y, normal.z))
            return inLine(lines.number(), "a normal is not three numbers");
        mesh.normals.push_back(normal);
    }
    return {};
}

/// A count and as many indices; colours may follow.
bool takeFace(std::string_view line, std::vector<std::uint32_t>& corners)
{
    Words words(line);
    std::uint64_t count = 0, index = 0;
    if (!takeCount(words, count))
        return false;
    corners.clear();
    for (; corners.size() < count; corners.push_back(indexFrom(static_cast<double>(index), 0)))
        if (words.isAtEnd() || !takeCount(words, index))
            return false;
    return true;
}

} // namespace

std::string readOff(std::string_view text, RawMesh& mesh, Progress& progress)
{
    Lines lines(text, progress);
    OffHeader header;
    if (std::string failure = readHeader(lines, header); !failure.empty())
        return failure;
    if (std::string failure = readVertices(lines, header, mesh); !failure.empty())
        return failure;
    std::vector<std::uint32_t> corners;
    std::string_view line;
    for (std::uint64_t i = 0; i < header.faceCount; ++i) {
        if (!nextContent(lines, line))
            return "it ends after " + std::to_string(i) + " of " + std::to_string(header.faceCount) + " faces";
        if (!takeFace(line, corners))
            return inLine(lines.number(), "a face is not a count and as many vertices");
        appendFan(mesh.triangles, corners);
    }
    return {};
}

} // namespace vqview
