// SPDX-License-Identifier: MIT
#include "vqview/model/PlyValues.h"
#include "vqview/model/Readers.h"

#include <algorithm>
#include <cmath>

namespace vqview {

namespace {

float toFloat(double value)
{
    constexpr double kMost = std::numeric_limits<float>::max();
    return std::abs(value) <= kMost ? static_cast<float>(value)
                                    : std::numeric_limits<float>::quiet_NaN(); // not finite, whichever way
}

/// What is taken over of a vertex; the place behind them takes everything else.
constexpr std::array<std::string_view, 6> kVertexProperties{"x", "y", "z", "nx", "ny", "nz"};

/// Takes over the vertices.
class VertexTaker
{
public:
    VertexTaker(const PlyElement& element, RawMesh& mesh) : m_mesh(mesh)
    {
        std::array<bool, 6> isThere{};
        for (const PlyProperty& property : element.properties) {
            const auto found =
                property.countType ? kVertexProperties.end() : std::ranges::find(kVertexProperties, property.name);
            m_slots.push_back(static_cast<std::size_t>(found - kVertexProperties.begin()));
            if (found != kVertexProperties.end())
                isThere[m_slots.back()] = true;
        }
        m_hasNormals = isThere[3] && isThere[4] && isThere[5];
        m_hasPositions = isThere[0] && isThere[1] && isThere[2];
    }

    bool isComplete() const { return m_hasPositions; }
    void value(std::size_t property, double value) { m_values[m_slots[property]] = value; }
    static void listed(std::size_t, double) {}
    static void listEnd(std::size_t) {}
    void end()
    {
        m_mesh.positions.push_back({toFloat(m_values[0]), toFloat(m_values[1]), toFloat(m_values[2])});
        if (m_hasNormals)
            m_mesh.normals.push_back({toFloat(m_values[3]), toFloat(m_values[4]), toFloat(m_values[5])});
    }

private:
    RawMesh& m_mesh;
    std::vector<std::size_t> m_slots;
    std::array<double, 7> m_values{};
    bool m_hasNormals = false, m_hasPositions = false;
};

/// Takes over faces, or strips of triangles, in which -1 begins a new strip.
class FaceTaker
{
public:
    FaceTaker(const PlyElement& element, RawMesh& mesh) : m_mesh(mesh), m_areStrips(element.name == "tristrips")
    {
        for (const PlyProperty& property : element.properties)
            m_isCorners.push_back(property.countType &&
                                  (property.name == "vertex_indices" || property.name == "vertex_index"));
    }

    static void value(std::size_t, double) {}
    void listed(std::size_t property, double value)
    {
        if (m_isCorners[property])
            m_corners.push_back(indexFrom(value, 0));
    }
    void listEnd(std::size_t property)
    {
        if (!m_isCorners[property])
            return;
        if (m_areStrips)
            appendStrips();
        else
            appendFan(m_mesh.triangles, m_corners);
        m_corners.clear();
    }
    static void end() {}

private:
    void appendStrips()
    {
        std::size_t begin = 0;
        for (std::size_t i = 0; i < m_corners.size(); ++i) {
            if (m_corners[i] == kNoIndex)
                begin = i + 1;
            if (i < begin + 2)
                continue;
            const bool isOdd = (i - begin) % 2 != 0;
            m_mesh.triangles.push_back({m_corners[i - (isOdd ? 1 : 2)], m_corners[i - (isOdd ? 2 : 1)], m_corners[i]});
        }
    }

    RawMesh& m_mesh;
    std::vector<bool> m_isCorners;
    std::vector<std::uint32_t> m_corners;
    bool m_areStrips;
};

/// Takes over nothing.
struct NoTaker
{
    static void value(std::size_t, double) {}
    static void listed(std::size_t, double) {}
    static void listEnd(std::size_t) {}
    static void end() {}
};

template <typename Values, typename Taker>
bool takeRecord(Values& values, const PlyElement& element, Taker& taker)
{
    double value = 0;
    for (std::size_t i = 0; i < element.properties.size(); ++i) {
        const PlyProperty& property = element.properties[i];
        if (!property.countType) {
            if (!values.next(property.type, value))
                return false;
            taker.value(i, value);
            continue;
        }
        double count = 0;
        if (!values.next(*property.countType, count) || !(count >= 0))
            return false;
        for (double k = 0; k < count; ++k) {
            if (!values.next(property.type, value))
                return false;
            taker.listed(i, value);
        }
        taker.listEnd(i);
    }
    taker.end();
    return true;
}

constexpr std::uint64_t kReportedRecords = 1 << 12;

template <typename Values, typename Taker>
std::string takeElement(Values& values, const PlyElement& element, Taker taker, Progress& progress, double size)
{
    if (element.properties.empty()) // as many as the count says, of nothing
        return {};
    for (std::uint64_t i = 0; i < element.count; ++i) {
        if (i % kReportedRecords == 0 && !progress.report(static_cast<double>(values.offset()), size))
            return {};
        if (takeRecord(values, element, taker))
            continue;
        if (values.isShort())
            return "it ends after " + std::to_string(i) + " of " + std::to_string(element.count) + " elements \"" +
                   element.name + "\"";
        return values.place() + ": an element \"" + element.name + "\" is not what the header says";
    }
    return {};
}

template <typename Values>
std::string takeAll(Values values, const PlyHeader& header, double size, RawMesh& mesh, Progress& progress)
{
    std::string failure;
    for (const PlyElement& element : header.elements) {
        if (element.name == "vertex") {
            VertexTaker taker(element, mesh);
            if (!taker.isComplete())
                return "its vertices have no x, y and z";
            failure = takeElement(values, element, std::move(taker), progress, size);
        } else if (element.name == "face" || element.name == "tristrips") {
            failure = takeElement(values, element, FaceTaker(element, mesh), progress, size);
        } else {
            failure = takeElement(values, element, NoTaker(), progress, size);
        }
        if (!failure.empty() || progress.isCancelled())
            break;
    }
    return failure;
}

} // namespace

std::string readPly(std::string_view bytes, RawMesh& mesh, Progress& progress)
{
    PlyHeader header;
    if (std::string failure = readPlyHeader(bytes, header); !failure.empty())
        return failure;
    const auto size = static_cast<double>(bytes.size());
    if (header.encoding == PlyEncoding::Text)
        return takeAll(PlyTextValues(bytes, header.size), header, size, mesh, progress);
    const auto order = header.encoding == PlyEncoding::LittleEndian ? std::endian::little : std::endian::big;
    return takeAll(PlyBinaryValues(bytes, header.size, order), header, size, mesh, progress);
}

} // namespace vqview
