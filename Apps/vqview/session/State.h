// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/LoadThread.h"
#include "vqview/model/Model.h"
#include "vqview/overlay/Markers.h"
#include "vqview/overlay/ReportImage.h"
#include "vqview/session/Document.h"
#include "vqview/session/Selecting.h"
#include "vqview/session/Session.h"
#include "vqview/view/Camera.h"
#include "vqview/view/SceneDrawing.h"

#include <optional>

namespace vqview {

/// What a session is made of, for its own files.
struct Session::State
{
    State();

    int width = 1, height = 1;
    float scale = 1;
    Shown shown;
    VertexValue value = VertexValue::Height;

    std::shared_ptr<const Model> model;
    std::filesystem::path modelPath;
    LoadThread loader;
    std::filesystem::path pathOfLoader;
    std::unique_ptr<Document> documentToCome; // its scan is being read, or could not be
    std::vector<float> values;                // of the points; made when needed
    bool areValuesKnown = false;

    Camera camera;
    std::optional<SceneDrawing> scene; // lives in a context
    bool isSceneOfModel = false;
    bool areColoursShown = false;
    std::uint64_t sceneSelection = 0; // the version that the scene shows
    std::vector<float> depth;
    bool isDepthKnown = false; // of the scene as it is looked at

    Selecting selecting;
    Point3 centre; // of what is selected
    std::uint64_t centreVersion = 0;
    bool throughAll = false;
    std::vector<std::uint32_t> picked;
    std::optional<Button> dragging; // a button that turns or pans
    bool dragPans = false;
    CPoint mouse;
    std::optional<Point3> underWheel; // the place of the scene that the wheel goes to; nothing over the background
    bool isWheelKnown = false;        // for where the mouse is, as the scene is looked at
    CPoint wheelAt;
    Modifiers held;

    CVQDIB report{1, 1}; // that of a document, or the last one saved
    CVQTexture texture{256, 256};

    std::string notice;
    std::optional<Clock::time_point> noticeEnd; // set by the first poll after the notice
    bool isNoticeNew = false;
    bool wantsFrame = true;

    void changed() { wantsFrame = true; }
    void lookedElsewhere()
    {
        isDepthKnown = false;
        isWheelKnown = false;
        wantsFrame = true;
    }
    void say(std::string text);
    void showModel(std::shared_ptr<const Model> shownModel);
    const std::vector<float>& knownValues();

    /// @name Drawing
    /// @{
    void drawScene();
    void drawMarks();
    void drawShape();
    /// Labels and report into an image of the frame's size.
    void drawOverlay(CVQDIB& image, bool withReport, bool withShape);
    ReportContent reportContent();
    float markerRadius(const Point3& at) const;
    std::vector<Point3> pickedPoints() const;
    Point3 selectedCentre();
    /// The view with the depth of the scene, which it draws for that when it must.
    SVQSelectionView selectionView();
    /// @}

    bool pick(CPoint at);
    /// The place of the scene that is seen there; nothing where the background is.
    std::optional<Point3> placeAt(CPoint at);
    void zoomTo(double steps, CPoint at);
    /// Paints the outline of the last selection into the texture, the frame as a whole.
    void paintTexture();
    /// Of a document, once its scan is there: report, texture and selection.
    void takeOver(Document& document);
};

} // namespace vqview
