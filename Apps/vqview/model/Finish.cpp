// SPDX-License-Identifier: MIT
#include "vqview/model/Finish.h"

#include "vqview/model/JoinCorners.h"
#include "vqview/model/Surface.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace vqview {

namespace {

constexpr double kSteps = 5;

/// In place: what stays moves forward.
void keep(std::vector<Point3>& values, const std::vector<std::uint32_t>& kept)
{
    for (std::size_t i = 0; i < kept.size(); ++i)
        values[i] = values[kept[i]];
    values.resize(kept.size());
}

bool isProper(const Triangle& triangle)
{
    return std::ranges::find(triangle, kNoIndex) == triangle.end() && triangle[0] != triangle[1] &&
           triangle[1] != triangle[2] && triangle[2] != triangle[0];
}

/// @return how many triangles are dropped.
std::size_t takePlaces(std::vector<Triangle>& triangles, const std::vector<std::uint32_t>& place)
{
    for (Triangle& triangle : triangles)
        for (std::uint32_t& corner : triangle)
            corner = corner < place.size() ? place[corner] : kNoIndex;
    return std::erase_if(triangles, [](const Triangle& triangle) { return !isProper(triangle); });
}

void computeSurface(Model& model, Progress& progress)
{
    model.normals = vertexNormals(model.positions, model.triangles);
    if (!progress.report(3, kSteps))
        return;
    model.edges = edgesOf(model.positions.size(), model.triangles);
    progress.report(4, kSteps);
}

} // namespace

FinishedModel finish(RawMesh&& mesh, std::string title, Progress& progress)
{
    if (mesh.positions.size() >= kNoIndex)
        throw std::length_error("more points than indices");
    auto model = std::make_shared<Model>();
    FinishedModel finished;
    if (!progress.report(0, kSteps))
        return finished;
    {
        const JoinedCorners joined = joinCorners(mesh.positions);
        finished.droppedPoints = static_cast<std::size_t>(std::ranges::count(joined.place, kNoIndex));
        finished.droppedTriangles = takePlaces(mesh.triangles, joined.place);
        if (mesh.normals.size() == mesh.positions.size())
            keep(mesh.normals, joined.kept);
        else
            mesh.normals.clear();
        keep(mesh.positions, joined.kept);
    }
    if (!progress.report(2, kSteps))
        return finished;
    model->title = std::move(title);
    model->positions = std::move(mesh.positions);
    model->triangles = std::move(mesh.triangles);
    model->normals = std::move(mesh.normals);
    if (model->isCloud())
        makeUnit(model->normals);
    else
        computeSurface(*model, progress);
    model->bounds = boundsOf(model->positions);
    if (progress.report(kSteps, kSteps))
        finished.model = std::move(model);
    return finished;
}

} // namespace vqview
