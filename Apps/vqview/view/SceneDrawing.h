// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Model.h"

#include <VQDraw/VQDraw.h>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace vqview {

/// Draws a scan by OpenGL 1.1, in the colours, lights, material and sizes of `CVQDrawProperty` as they are at that
/// moment.
///
/// It keeps the scan in display lists of the context in which it first drew: that context has to be current whenever a
/// member is called afterwards, the destructor included.
class SceneDrawing
{
public:
    SceneDrawing() = default;
    ~SceneDrawing();
    SceneDrawing(const SceneDrawing&) = delete;
    SceneDrawing& operator=(const SceneDrawing&) = delete;

    /// Null shows the background only. Nothing of the model is selected.
    void setModel(std::shared_ptr<const Model> model);
    /// Positions of the model, in ascending order; what is beyond its last is not drawn.
    void setSelected(const std::vector<std::uint32_t>& indices);
    /// One colour a position, in which the surface is lit instead of that of `DPM_BODY`; none, or another number of
    /// them: that again.
    void setColours(std::vector<CVQColor> colours);

    /// Draws a frame from the clearing on into the view's viewport; OpenGL's state is afterwards as it was.
    ///
    /// - The background is `DPC_BACKGROUND` at the lower edge, and upwards goes a third of the way to white.
    /// - The lights stand as the viewer does, so that their positions are in the picture's axes. Beside their own
    ///   ambient light there is none. Faces are of `DPM_BODY`, seen from within their diffuse light is that of
    ///   `DPC_BACKFACE_USERDEFINE`; a cloud with normals is lit so as well. What has no normals is in `DPC_PROBEPOINT`.
    /// - Edges and vertices are in `DPC_BODYEDGE`, as wide as `DPS_FACEEDGE` and `DPS_VERTEX`, selected points in
    ///   `DPC_SELECTEDENTITY` as wide as `DPS_PICKEDVERTEX`: pixels times `scale`. Only faces that are drawn hide them,
    ///   and so do the points of a cloud, which are drawn always.
    void draw(const SVQGLVariables& view, bool faces, bool edges, bool vertices, float scale);

    /// How deep each pixel of the last frame's surface lies, 0 near .. 1 far and where there is nothing, rows from the
    /// bottom up, as many as the viewport has; to be called before anything else is drawn. Of what `draw` draws, faces
    /// and the points of a cloud have depth.
    void readDepth(const SVQGLVariables& view, std::vector<float>& depth) const;

private:
    /// What a display list each is kept of.
    enum class Part { Surface, Edges, Vertices, End };

    void drawSurface(float scale);
    void drawEdges(const SVQGLVariables& view, float scale);
    void drawVertices(const SVQGLVariables& view, float scale);
    void drawSelected(const SVQGLVariables& view, float scale) const;
    void drawPart(Part part);
    void dropParts();

    std::shared_ptr<const Model> m_model;
    std::vector<std::uint32_t> m_selected;
    std::vector<CVQColor> m_colours;
    std::array<unsigned int, static_cast<std::size_t>(Part::End)> m_lists{}; ///< 0 is none yet
};

} // namespace vqview
