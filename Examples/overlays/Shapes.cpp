// SPDX-License-Identifier: MIT
// What a user sees while he selects: each shape at the left in an image, at the right over a scene.
#include "overlays/Stage.h"

#include <array>

namespace {

/// Bits of a selection mode, as a host hands them to the facade.
enum Mode : unsigned int { kNone = 0, kBox = 0x80, kLine = 0x100, kCircle = 0x200, kClicks = 0x400, kLasso = 0x800 };

constexpr int kViewId = 1;

struct Sample
{
    const char* name;
    const char* caption;
    Mode mode;
    void (*select)(const Stage& stage); ///< what the mouse does
};

template <typename Shape>
void drag(Shape* shape, CPoint from, CPoint to)
{
    shape->Start(from);
    shape->Drag(to);
}

void dragBand(const Stage& stage)
{
    CVQDragLine* const line = CVQDrawingAPI::DragLine();
    drag(line, stage.at(0.2, 0.75), stage.at(0.8, 0.3));
    line->SetWidth(stage.height() / 10);
}

/// A heart, drawn in one go with the button down.
void drawLasso(const Stage& stage)
{
    // clang-format off
    constexpr std::array<std::array<double, 2>, 19> kWay{{
        {0.50, 0.34}, {0.46, 0.26}, {0.40, 0.21}, {0.34, 0.21}, {0.28, 0.26}, {0.25, 0.35}, {0.26, 0.46}, {0.31, 0.58},
        {0.39, 0.71}, {0.50, 0.85}, {0.61, 0.71}, {0.69, 0.58}, {0.74, 0.46}, {0.75, 0.35}, {0.72, 0.26}, {0.66, 0.21},
        {0.60, 0.21}, {0.54, 0.26}, {0.51, 0.32}}};
    // clang-format on
    CVQDragPolygon* const polygon = CVQDrawingAPI::DragPolygon();
    CPoint point = stage.at(kWay[0][0], kWay[0][1]);
    polygon->Start(point);
    for (const auto& [x, y] : kWay) {
        point = stage.at(x, y);
        polygon->Drag(point);
    }
}

/// The first of four corners, one a click, and then the mouse on its way.
void click(const Stage& stage, std::size_t clicks)
{
    constexpr std::array<std::array<double, 2>, 4> kCorners{{{0.2, 0.3}, {0.6, 0.15}, {0.85, 0.5}, {0.6, 0.85}}};
    CVQDragPolygon* const polygon = CVQDrawingAPI::DragPolygon();
    for (std::size_t i = 0; i < clicks; ++i) {
        CPoint corner = stage.at(kCorners[i][0], kCorners[i][1]);
        polygon->AddPoint(corner);
    }
    CPoint mouse = stage.at(0.3, 0.75);
    polygon->SetEnd(mouse);
}

// clang-format off
constexpr Sample kSamples[] = {
    {"1-box", "<code>CVQDragBox</code> in the colour of the preferences", kBox, [](const Stage& stage) {
        CVQDrawingAPI::UpdateSelectionColor();
        drag(CVQDrawingAPI::DragBox(), stage.at(0.2, 0.2), stage.at(0.75, 0.8)); }},
    {"1-boxback", "from the lower right to the upper left, alpha 255", kBox, [](const Stage& stage) {
        CVQDrawingAPI::DragBox()->SetColor(255, 220, 0, 255);
        drag(CVQDrawingAPI::DragBox(), stage.at(0.75, 0.8), stage.at(0.2, 0.2)); }},
    {"1-boxfaint", "alpha 60, which fills with 15", kBox, [](const Stage& stage) {
        CVQDrawingAPI::DragBox()->SetAlpha(60);
        drag(CVQDrawingAPI::DragBox(), stage.at(0.2, 0.2), stage.at(0.75, 0.8)); }},
    {"1-boxscaled", "on a display of scale 2: wider lines over the scene", kBox, [](const Stage& stage) {
        CVQDisplayAPI::SetScaleFactor(2);
        drag(CVQDrawingAPI::DragBox(), stage.at(0.2, 0.2), stage.at(0.75, 0.8)); }},
    {"2-circle", "<code>CVQDragCircle</code>", kCircle, [](const Stage& stage) {
        drag(CVQDrawingAPI::DragCircle(), stage.at(0.5, 0.5), stage.at(0.7, 0.25)); }},
    {"2-circlelimited", "a drag beyond the largest radius is refused: it stays as it was", kCircle,
     [](const Stage& stage) {
        CVQDragCircle* const circle = CVQDrawingAPI::DragCircle();
        circle->SetColor(80, 200, 255);
        drag(circle, stage.at(0.5, 0.5), stage.at(0.6, 0.5));
        CPoint beyond = stage.at(0.95, 0.5);
        circle->Drag(beyond, 0, stage.width() * 0.2); }},
    {"3-line", "<code>CVQDragLine</code>, plain", kLine, [](const Stage& stage) {
        drag(CVQDrawingAPI::DragLine(), stage.at(0.2, 0.75), stage.at(0.8, 0.3)); }},
    {"3-band", "with a width: a band over the scene, plain in an image", kLine, dragBand},
    {"4-lasso", "<code>CVQDragPolygon</code>, drawn in one go; dots in an image only", kLasso, drawLasso},
    {"4-clicks1", "drawn by clicks: the first one, and the mouse on its way", kClicks, [](const Stage& stage) { click(stage, 1); }},
    {"4-clicks2", "two clicks: still open, and on the way to the mouse", kClicks, [](const Stage& stage) { click(stage, 2); }},
    {"4-clicks4", "four clicks: closed through the mouse over the scene, without it in an image", kClicks,
     [](const Stage& stage) { click(stage, 4); }},
};
// clang-format on

/// All shapes as they are at start-up.
void resetShapes()
{
    const auto reset = [](auto* shape) {
        shape->Reset();
        shape->SetColor(255, 255, 255, 200);
    };
    reset(CVQDrawingAPI::DragBox());
    reset(CVQDrawingAPI::DragCircle());
    reset(CVQDrawingAPI::DragLine());
    reset(CVQDrawingAPI::DragPolygon());
    CVQDisplayAPI::SetScaleFactor(1);
}

/// A camera for which model coordinates are window pixels, from the lower left.
SVQGLVariables windowCamera(int width, int height)
{
    SVQGLVariables camera{};
    for (const int diagonal : {0, 5, 10, 15})
        camera.m_dModelView[diagonal] = camera.m_dProjection[diagonal] = 1;
    camera.m_dProjection[0] = 2.0 / width;
    camera.m_dProjection[5] = 2.0 / height;
    camera.m_dProjection[12] = camera.m_dProjection[13] = -1;
    camera.m_iViewport[2] = width;
    camera.m_iViewport[3] = height;
    return camera;
}

/// The backdrop, by OpenGL.
void paint(CVQDIB& backdrop)
{
    CVQDIB bytes(backdrop);
    bytes = backdrop;
    bytes.ExchangeRB(); // red first
    bytes.FlipVertical();
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glDisable(GL_BLEND);
    glRasterPos2i(-1, -1);
    glDrawPixels(bytes.GetWidth(), bytes.GetHeight(), GL_RGBA, GL_UNSIGNED_BYTE, bytes.GetImageBuffer());
}

void drawOverScene(const Stage& stage, SVQGLVariables& camera)
{
    paint(stage.backdrop);
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(camera.m_dProjection);
    glMatrixMode(GL_MODELVIEW);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    CVQDrawingAPI::DrawDrag(camera);
}

bool addSample(const Stage& stage, const Sample& sample)
{
    constexpr int kGap = 8;
    resetShapes();
    CVQDrawingAPI::SetDragObject(sample.mode, kViewId);
    sample.select(stage);
    SVQGLVariables camera = windowCamera(stage.width(), stage.height());

    CVQDIB picture(stage.scene ? 2 * stage.width() + kGap : stage.width(), stage.height());
    CVQDIB half(stage.backdrop);
    half = stage.backdrop;
    CVQDrawingAPI::Draw(&half, 0, 0, camera.m_dModelView, camera.m_dProjection, camera.m_iViewport);
    picture.Copy(half);
    if (stage.scene) {
        drawOverScene(stage, camera);
        stage.scene->copyTo(half);
        picture.Copy(half, stage.width() + kGap, 0);
    }
    return stage.gallery.add(picture, sample.name, sample.caption);
}

} // namespace

bool addShapes(const Stage& stage)
{
    bool written = true;
    for (const Sample& sample : kSamples)
        written = addSample(stage, sample) && written;
    resetShapes();
    CVQDrawingAPI::SetDragObject(kNone, kViewId);
    return written;
}
