// SPDX-License-Identifier: MIT
#include "vqview/overlay/VertexValues.h"

#include "vqview/model/Model.h"

#include <cmath>
#include <limits>

namespace vqview {

namespace {

constexpr float kUnknown = std::numeric_limits<float>::quiet_NaN();

struct CurvatureSum
{
    double curvature = 0;
    unsigned edges = 0;
};

/// The curvature of the circle that touches the surface at `at` and passes through `other`; exact on a sphere.
double curvatureTowards(const Point3& at, const Point3& normal, const Point3& other)
{
    const double x = double{other.x} - at.x;
    const double y = double{other.y} - at.y;
    const double z = double{other.z} - at.z;
    return -2 * (normal.x * x + normal.y * y + normal.z * z) / (x * x + y * y + z * z);
}

void addEnd(std::vector<CurvatureSum>& sums, const Model& model, std::uint32_t at, std::uint32_t other)
{
    const double curvature = curvatureTowards(model.positions[at], model.normals[at], model.positions[other]);
    if (!std::isfinite(curvature))
        return;
    sums[at].curvature += curvature;
    ++sums[at].edges;
}

void curvaturesOf(const Model& model, std::vector<float>& values)
{
    const std::size_t count = model.positions.size();
    values.assign(count, kUnknown);
    if (model.normals.size() != count)
        return;
    std::vector<CurvatureSum> sums(count);
    for (const auto& [first, second] : model.edges) {
        if (first >= count || second >= count)
            continue;
        addEnd(sums, model, first, second);
        addEnd(sums, model, second, first);
    }
    for (std::size_t i = 0; i < count; ++i)
        if (sums[i].edges > 0)
            values[i] = static_cast<float>(sums[i].curvature / sums[i].edges);
}

} // namespace

void valuesOf(const Model& model, VertexValue value, std::vector<float>& values)
{
    if (value == VertexValue::Curvature)
        return curvaturesOf(model, values);
    values.clear();
    values.reserve(model.positions.size());
    const Point3 centre = model.bounds.centre();
    for (const Point3& point : model.positions)
        values.push_back(value == VertexValue::Height
                             ? point.y
                             : std::hypot(point.x - centre.x, point.y - centre.y, point.z - centre.z));
}

} // namespace vqview
