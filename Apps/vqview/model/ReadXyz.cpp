// SPDX-License-Identifier: MIT
#include "vqview/model/Readers.h"
#include "vqview/model/TextScan.h"

#include <algorithm>
#include <cmath>

namespace vqview {

namespace {

constexpr std::size_t kMostHeadings = 20;
constexpr float kLeastUnit = 0.98F, kMostUnit = 1.02F; ///< a unit normal's length, written with three digits or more

bool isRemark(std::string_view line)
{
    const std::string_view word = Words(line).next();
    return word.empty() || word.front() == '#' || word.front() == '%' || word.starts_with("//");
}

bool hasLengthOf(const Point3& direction, float least, float most)
{
    const float length = std::hypot(direction.x, direction.y, direction.z);
    return length >= least && length <= most;
}

/// What stands in the columns after the coordinates is a normal only if it is one, or 0, in every line.
class NormalColumns
{
public:
    explicit NormalColumns(std::vector<Point3>& normals) : m_normals(normals) {}

    void take(Words& words)
    {
        Point3 normal;
        if (!m_areNormals)
            return;
        if (words.numbers(normal.x, normal.y, normal.z) &&
            (hasLengthOf(normal, kLeastUnit, kMostUnit) || normal == Point3{}))
            m_normals.push_back(normal);
        else
            giveUp();
    }

    /// Only zeros are black colours.
    void finish()
    {
        if (std::ranges::all_of(m_normals, [](const Point3& normal) { return normal == Point3{}; }))
            giveUp();
    }

private:
    void giveUp()
    {
        m_areNormals = false;
        m_normals = {};
    }

    std::vector<Point3>& m_normals;
    bool m_areNormals = true;
};

/// The words of a line; commas are decimal points where semicolons part, as spreadsheets of many countries write it.
Words wordsOf(std::string_view line, std::string& changed)
{
    if (line.find(';') == std::string_view::npos)
        return Words(line, ',');
    changed = line;
    std::ranges::replace(changed, ',', '.');
    return Words(changed, ';');
}

} // namespace

std::string readXyz(std::string_view text, RawMesh& mesh, Progress& progress)
{
    Lines lines(text, progress);
    NormalColumns normals(mesh.normals);
    std::string changed;
    std::size_t headings = 0;
    for (std::string_view line; lines.next(line);) {
        if (isRemark(line))
            continue;
        Words words = wordsOf(line, changed);
        Point3 point;
        if (words.numbers(point.x, point.y, point.z)) {
            mesh.positions.push_back(point);
            normals.take(words);
        } else if (!mesh.positions.empty() || ++headings > kMostHeadings) {
            return inLine(lines.number(), "a point is not three numbers");
        }
    }
    normals.finish();
    return {};
}

bool isMostlyXyz(std::string_view text)
{
    Progress unwatched;
    Lines lines(text, unwatched);
    std::string changed;
    std::size_t points = 0;
    for (std::string_view line; lines.next(line);) {
        Point3 point;
        points += wordsOf(line, changed).numbers(point.x, point.y, point.z) ? 1 : 0;
    }
    return 2 * points > lines.number();
}

} // namespace vqview
