// SPDX-License-Identifier: MIT
#include "vqview/session/State.h"

#include "vqview/overlay/ViewImage.h"
#include "vqview/text/Text.h"

#include <algorithm>
#include <cmath>

namespace vqview {

Session::State::State() : selecting([this] { return selectionView(); }) {}

void Session::State::say(std::string text)
{
    notice = std::move(text);
    isNoticeNew = true;
    noticeEnd.reset();
    changed();
}

void Session::State::showModel(std::shared_ptr<const Model> shownModel)
{
    model = std::move(shownModel);
    selecting.setModel(model);
    picked.clear();
    areValuesKnown = false;
    isSceneOfModel = false;
    texture = CVQTexture(texture.GetWidth(), texture.GetHeight()); // not the one of the scan before
    report.Resize(1, 1);
    if (model)
        camera.fit(model->bounds);
    lookedElsewhere();
}

const std::vector<float>& Session::State::knownValues()
{
    if (!areValuesKnown && model)
        valuesOf(*model, value, values);
    areValuesKnown = true;
    return values;
}

std::vector<Point3> Session::State::pickedPoints() const
{
    std::vector<Point3> points;
    for (const std::uint32_t index : picked)
        points.push_back(model->positions[index]);
    return points;
}

Point3 Session::State::selectedCentre()
{
    if (centreVersion == selecting.version())
        return centre;
    centreVersion = selecting.version();
    double x = 0, y = 0, z = 0;
    for (const std::uint32_t index : selecting.indices()) {
        const Point3& point = model->positions[index];
        x += point.x, y += point.y, z += point.z;
    }
    const double count = std::max<double>(1, static_cast<double>(selecting.indices().size()));
    centre = {static_cast<float>(x / count), static_cast<float>(y / count), static_cast<float>(z / count)};
    return centre;
}

SVQSelectionView Session::State::selectionView()
{
    const SVQGLVariables view = camera.variables();
    if (throughAll)
        return SVQSelectionView::Of(view);
    if (!isDepthKnown) {
        constexpr GLenum kMultisample = 0x809D; // of OpenGL 1.3
        const GLboolean hasSamples = glIsEnabled(kMultisample);
        if (hasSamples)
            glDisable(kMultisample); // one depth a pixel, the same with and without
        drawScene();
        scene->readDepth(view, depth);
        if (hasSamples)
            glEnable(kMultisample);
        isDepthKnown = true;
        changed(); // what was in the frame is gone
    }
    return SVQSelectionView::Of(view, depth.data());
}

std::optional<Point3> Session::State::placeAt(CPoint at)
{
    const bool wasThrough = std::exchange(throughAll, false);
    selectionView();
    throughAll = wasThrough;
    if (at.x < 0 || at.y < 0 || at.x >= width || at.y >= height)
        return std::nullopt;
    const auto row = static_cast<std::size_t>(height - 1 - at.y);
    const double seen = depth[row * static_cast<std::size_t>(width) + static_cast<std::size_t>(at.x)];
    if (!(seen < 1))
        return std::nullopt;
    SVQGLVariables view = camera.variables();
    double x = 0, y = 0, z = 0;
    if (!gluUnProject(at.x + 0.5, height - at.y - 0.5, seen, view.m_dModelView, view.m_dProjection, view.m_iViewport,
                      &x, &y, &z))
        return std::nullopt;
    return Point3{static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
}

void Session::State::zoomTo(double steps, CPoint at)
{
    if (!isWheelKnown || at != wheelAt)
        underWheel = model ? placeAt(at) : std::nullopt;
    wheelAt = at;
    if (underWheel)
        camera.zoom(steps, at.x + 0.5, at.y + 0.5, *underWheel);
    else
        camera.zoom(steps, at.x + 0.5, at.y + 0.5);
    lookedElsewhere();
    isWheelKnown = true; // it stays under the mouse
}

bool Session::State::pick(CPoint at)
{
    const bool wasThrough = std::exchange(throughAll, false); // what is hidden cannot be picked
    const std::int64_t nearest = model ? selecting.pointAt(at) : -1;
    throughAll = wasThrough;
    if (nearest < 0)
        return false;
    picked.push_back(static_cast<std::uint32_t>(nearest));
    changed();
    return true;
}

void Session::State::paintTexture()
{
    const std::vector<CPoint>& outline = selecting.lastOutline();
    if (outline.empty())
        return;
    std::vector<CPoint> corners;
    const auto texel = [](LONG pixel, LONG texels, int pixels) {
        return static_cast<int>(std::int64_t{pixel} * texels / pixels);
    };
    for (const CPoint& corner : outline)
        corners.emplace_back(texel(corner.x, texture.GetWidth(), width), texel(corner.y, texture.GetHeight(), height));
    const CVQColor colour = CVQDrawProperty::GetDPCVQColor(DPC_SELECTEDENTITY);
    const auto count = static_cast<int>(corners.size());
    const LONG painted = colour.GetR() << 16 | colour.GetG() << 8 | colour.GetB();
    texture.ClearRgn(corners.data(), count, painted, 0x80);
    texture.ClearRgnPath(corners.data(), count, 1, painted, 0xFF);
}

void Session::State::takeOver(Document& document)
{
    if (!selecting.setTo(document.selection)) {
        say("The document's selection is of another scan");
        return;
    }
    report = document.report;
    texture = document.texture;
}

} // namespace vqview
