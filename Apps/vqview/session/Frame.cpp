// SPDX-License-Identifier: MIT
// What a session draws.
#include "vqview/overlay/Labels.h"
#include "vqview/overlay/Markers.h"
#include "vqview/overlay/Notices.h"
#include "vqview/overlay/VertexColours.h"
#include "vqview/overlay/ViewImage.h"
#include "vqview/session/State.h"

#include <cmath>
#include <utility>

namespace vqview {

namespace {

/// Coordinates of OpenGL are the view's pixels while this lives, the origin at its lower left, and colours are blended,
/// as selection shapes expect of their host.
class PixelMatrices
{
public:
    explicit PixelMatrices(const SVQGLVariables& view)
    {
        const auto [x, y, width, height] = view.m_iViewport;
        glPushAttrib(GL_VIEWPORT_BIT | GL_COLOR_BUFFER_BIT | GL_TRANSFORM_BIT);
        glViewport(x, y, width, height);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        glOrtho(0, width, 0, height, -1, 1);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glLoadIdentity();
    }
    PixelMatrices(const PixelMatrices&) = delete;
    PixelMatrices& operator=(const PixelMatrices&) = delete;
    ~PixelMatrices()
    {
        glPopMatrix();
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
        glPopAttrib();
    }
};

constexpr float kMarkerPixels = 6;  // radius of a sphere at a picked point, units
constexpr float kDiskInSpheres = 3; // how much larger the disk along the surface is

} // namespace

void Session::State::drawScene()
{
    if (!scene)
        scene.emplace();
    if (!isSceneOfModel) {
        scene->setModel(model);
        isSceneOfModel = true;
        sceneSelection = 0;
        areColoursShown = false;
    }
    if (sceneSelection != selecting.version()) {
        scene->setSelected(selecting.indices());
        sceneSelection = selecting.version();
    }
    if (areColoursShown != shown.report) {
        areColoursShown = shown.report;
        std::vector<CVQColor> colours;
        if (areColoursShown && model)
            coloursOf(knownValues(), colours);
        scene->setColours(std::move(colours));
    }
    scene->draw(camera.variables(), shown.faces, shown.edges, shown.vertices, scale);
}

float Session::State::markerRadius(const Point3& at) const
{
    // How long some pixels are at that place.
    SVQGLVariables view = camera.variables();
    double x = 0, y = 0, z = 0, beside[3]{};
    gluProject(at.x, at.y, at.z, view.m_dModelView, view.m_dProjection, view.m_iViewport, &x, &y, &z);
    gluUnProject(x + kMarkerPixels * scale, y, z, view.m_dModelView, view.m_dProjection, view.m_iViewport, &beside[0],
                 &beside[1], &beside[2]);
    return static_cast<float>(std::hypot(beside[0] - at.x, beside[1] - at.y, beside[2] - at.z));
}

void Session::State::drawMarks()
{
    if (!model)
        return;
    const SVQGLVariables view = camera.variables();
    if (shown.labels)
        drawBounds(model->bounds, view, scale);
    if (picked.empty())
        return;
    std::vector<Marker> markers;
    addMeasureMarkers(pickedPoints(), markers);
    for (const Marker& marker : markers)
        drawMarkers({&marker, 1}, view, markerRadius(marker.at), scale);
    if (model->normals.size() != model->positions.size())
        return;
    const Point3& normal = model->normals[picked.back()];
    const Point3& at = model->positions[picked.back()];
    const float radius = markerRadius(at);
    const float lift = radius / 2; // over what bends towards it
    const Point3 above{at.x + normal.x * lift, at.y + normal.y * lift, at.z + normal.z * lift};
    const Marker disk{MarkerKind::Disk, above, normal, {}, DPM_REGION_PLANE};
    drawMarkers({&disk, 1}, view, radius * kDiskInSpheres, scale);
}

void Session::State::drawShape()
{
    if (!selecting.isDrawing())
        return;
    SVQGLVariables view = camera.variables();
    const PixelMatrices matrices(view);
    CVQDrawingAPI::DrawDrag(view);
}

ReportContent Session::State::reportContent()
{
    ReportContent content;
    content.title = model->title;
    content.lines = factsOf(*model, selecting.indices().size());
    content.valueName = rowOf(value).name;
    content.unit = rowOf(value).unit;
    content.values = knownValues();
    content.selected = selecting.indices();
    return content;
}

void Session::State::drawOverlay(CVQDIB& image, bool withReport, bool withShape)
{
    if (!model)
        return;
    const SVQGLVariables view = camera.variables();
    if (shown.labels) {
        const std::vector<Point3> points = pickedPoints();
        addLabels({points, model->bounds, selecting.indices().size(), selectedCentre()}, view, scale);
    }
    if (shown.labels || withShape)
        drawLabels(image, view, scale, withShape ? DragShapes::Drawn : DragShapes::LeftOut);
    if (withReport)
        drawReport(image, reportContent(), scale);
}

void Session::draw()
{
    m_state->drawScene();
    m_state->drawMarks();
    m_state->drawShape();
    CVQDIB image(width(), height());
    image.EnableAntialias(true);
    m_state->drawOverlay(image, m_state->shown.report && !m_state->shown.keys, false); // these would lie over it
    drawStatus(image, statusLine(), m_state->scale);
    drawNotice(image, m_state->notice, m_state->scale);
    if (m_state->shown.keys)
        drawKeys(image, m_state->scale);
    drawOver(image, variables());
    m_state->wantsFrame = false;
}

void Session::drawFrameTo(CVQDIB& image)
{
    draw();
    copyFrame(image, variables());
    m_state->wantsFrame = true;
}

void Session::drawTo(CVQDIB& image)
{
    m_state->drawScene();
    m_state->drawMarks();
    m_state->drawShape();
    CVQDIB overlay(width(), height());
    overlay.EnableAntialias(true);
    m_state->drawOverlay(overlay, m_state->shown.report, false);
    drawOver(overlay, variables());
    copyFrame(image, variables());
    m_state->wantsFrame = true;
}

void Session::drawReportTo(CVQDIB& image)
{
    const bool wasShown = std::exchange(m_state->shown.report, true); // the colours that its bar explains
    m_state->drawScene();
    m_state->drawMarks();
    m_state->shown.report = wasShown;
    copyFrame(image, variables());
    image.EnableAntialias(true);
    m_state->drawOverlay(image, true, true);
    m_state->wantsFrame = true;
}

void Session::releaseGraphics()
{
    m_state->scene.reset();
    m_state->isSceneOfModel = false;
    m_state->lookedElsewhere();
}

} // namespace vqview
