// SPDX-License-Identifier: MIT
#include "vqview/view/SceneDrawing.h"

#include "vqview/view/SceneLook.h"
#include "vqview/view/SceneState.h"

#include <algorithm>
#include <utility>

namespace vqview {
namespace {

bool hasNormals(const Model& model)
{
    return !model.normals.empty() && model.normals.size() == model.positions.size();
}

void usePositions(const Model& model)
{
    glEnableClientState(GL_VERTEX_ARRAY);
    glVertexPointer(3, GL_FLOAT, 0, model.positions.data());
}

void useNormals(const Model& model)
{
    glEnableClientState(GL_NORMAL_ARRAY);
    glNormalPointer(GL_FLOAT, 0, model.normals.data());
}

/// A number of indices that does not fit is beyond all scans: 2^31 of them are 8 GB.
template <std::size_t Count>
void emit(GLenum kind, const std::vector<std::array<std::uint32_t, Count>>& indices)
{
    glDrawElements(kind, static_cast<GLsizei>(indices.size() * Count), GL_UNSIGNED_INT, indices.data());
}

void emitPoints(const Model& model)
{
    glDrawArrays(GL_POINTS, 0, static_cast<GLsizei>(model.positions.size()));
}

void emitSurface(const Model& model, const std::vector<CVQColor>& colours)
{
    if (hasNormals(model))
        useNormals(model);
    if (colours.size() == model.positions.size()) {
        glEnableClientState(GL_COLOR_ARRAY);
        glColorPointer(4, GL_UNSIGNED_BYTE, 0, colours.data());
    }
    if (model.isCloud())
        emitPoints(model);
    else
        emit(GL_TRIANGLES, model.triangles);
    glDisableClientState(GL_NORMAL_ARRAY);
    glDisableClientState(GL_COLOR_ARRAY);
}

} // namespace

SceneDrawing::~SceneDrawing()
{
    dropParts();
}

void SceneDrawing::setModel(std::shared_ptr<const Model> model)
{
    dropParts();
    m_model = std::move(model);
    m_selected.clear();
    m_colours.clear();
}

void SceneDrawing::setSelected(const std::vector<std::uint32_t>& indices)
{
    m_selected = indices;
}

void SceneDrawing::setColours(std::vector<CVQColor> colours)
{
    dropParts();
    m_colours = std::move(colours);
}

void SceneDrawing::draw(const SVQGLVariables& view, bool faces, bool edges, bool vertices, float scale)
{
    const SceneState state(view);
    glClear(GL_DEPTH_BUFFER_BIT);
    drawBackground();
    if (!m_model || m_model->positions.empty())
        return;
    if (faces || m_model->isCloud())
        drawSurface(scale);
    glDepthMask(GL_FALSE);
    if (edges && !m_model->edges.empty())
        drawEdges(view, scale);
    if (vertices && !m_model->isCloud())
        drawVertices(view, scale);
    drawSelected(view, scale);
}

void SceneDrawing::readDepth(const SVQGLVariables& view, std::vector<float>& depth) const
{
    const auto [x, y, width, height] = view.m_iViewport;
    depth.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const PlainPixels pixels;
    glReadPixels(x, y, width, height, GL_DEPTH_COMPONENT, GL_FLOAT, depth.data());
}

void SceneDrawing::drawSurface(float scale)
{
    if (hasNormals(*m_model))
        useLights();
    else
        useColour(DPC_PROBEPOINT);
    if (m_colours.size() == m_model->positions.size()) {
        glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
        glEnable(GL_COLOR_MATERIAL);
    }
    glPointSize(pixels(DPS_VERTEX, scale));
    drawPart(Part::Surface);
    glDisable(GL_COLOR_MATERIAL);
}

void SceneDrawing::drawEdges(const SVQGLVariables& view, float scale)
{
    const float width = pixels(DPS_FACEEDGE, scale);
    bringNearer(view, width / 2 + 0.5F);
    glLineWidth(width);
    useColour(DPC_BODYEDGE);
    drawPart(Part::Edges);
}

void SceneDrawing::drawVertices(const SVQGLVariables& view, float scale)
{
    const float size = pixels(DPS_VERTEX, scale);
    bringNearer(view, size / 2);
    glPointSize(size);
    useColour(DPC_BODYEDGE);
    drawPart(Part::Vertices);
}

void SceneDrawing::drawSelected(const SVQGLVariables& view, float scale) const
{
    const auto end = std::ranges::lower_bound(m_selected, m_model->positions.size());
    const float size = pixels(DPS_PICKEDVERTEX, scale);
    bringNearer(view, size / 2);
    glPointSize(size);
    useColour(DPC_SELECTEDENTITY);
    usePositions(*m_model);
    glDrawElements(GL_POINTS, static_cast<GLsizei>(end - m_selected.begin()), GL_UNSIGNED_INT, m_selected.data());
}

/// Of the model's memory a driver makes its own once, when the part is first shown.
void SceneDrawing::drawPart(Part part)
{
    unsigned int& list = m_lists[static_cast<std::size_t>(part)];
    if (list == 0) {
        list = glGenLists(1);
        usePositions(*m_model);
        glNewList(list, GL_COMPILE);
        switch (part) {
        case Part::Surface:
            emitSurface(*m_model, m_colours);
            break;
        case Part::Edges:
            emit(GL_LINES, m_model->edges);
            break;
        default:
            emitPoints(*m_model);
        }
        glEndList();
    }
    glCallList(list);
}

void SceneDrawing::dropParts()
{
    for (unsigned int& list : m_lists) {
        if (list != 0)
            glDeleteLists(list, 1);
        list = 0;
    }
}

} // namespace vqview
