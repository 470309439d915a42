// SPDX-License-Identifier: MIT
// What a host pins to points of its scene: lit spheres and disks, and labels.
#include "overlays/Stage.h"

#include <iterator>

namespace {

/// A camera before the x-y plane, a light over its left shoulder, and a dark room.
void setUpScene(const OffScreenContext& scene)
{
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(24, static_cast<double>(scene.width()) / scene.height(), 1, 100);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    gluLookAt(0, 1.5, 12, 0, 0, 0, 0, 1, 0);

    const GLfloat toLight[]{-0.5F, 0.7F, 0.5F, 0};
    const GLfloat shine[]{0.6F, 0.6F, 0.6F, 1};
    glLightfv(GL_LIGHT0, GL_POSITION, toLight);
    glMaterialfv(GL_FRONT, GL_SPECULAR, shine);
    glMaterialf(GL_FRONT, GL_SHININESS, 40);
    glEnable(GL_LIGHTING);
    glEnable(GL_LIGHT0);
    glEnable(GL_COLOR_MATERIAL);
    glEnable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glClearColor(0.14F, 0.16F, 0.2F, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

using DrawMesh = void(float radius, CVQPoint* centre, bool backToFront);

void place(DrawMesh* draw, float radius, CVQPoint centre, bool backToFront = false)
{
    draw(radius, &centre, backToFront);
}

void drawSpheres()
{
    glColor3f(0.9F, 0.45F, 0.25F);
    place(CVQDrawingAPI::DrawSphereLowRes, 1.2F, {-2.8, 0, 0});
    place(CVQDrawingAPI::DrawSphereMidRes, 1.2F, {0, 0, 0});
    place(CVQDrawingAPI::DrawSphereHighRes, 1.2F, {2.8, 0, 0});
}

/// A small sphere within a translucent one, which is drawn last.
void drawTranslucentPair(double x, bool backToFront)
{
    glColor3f(0.95F, 0.8F, 0.2F);
    place(CVQDrawingAPI::DrawSphereHighRes, 0.6F, {x, 0, 0});
    glColor4f(0.3F, 0.6F, 1, 0.4F);
    place(CVQDrawingAPI::DrawSphereHighRes, 1.6F, {x, 0, 0}, backToFront);
}

void drawTranslucent()
{
    drawTranslucentPair(-2, false);
    drawTranslucentPair(2, true);
}

/// Each turned further away round its upright axis.
void drawDisks()
{
    glColor3f(0.4F, 0.8F, 0.5F);
    for (int i = 0; i < 3; ++i) {
        glPushMatrix();
        glTranslated(2.8 * (i - 1), 0, 0);
        glRotated(30.0 * i, 0, 1, 0);
        CVQDrawingAPI::DrawDiskLowRes(1.2F, nullptr, false);
        glPopMatrix();
    }
}

struct MeshSample
{
    const char* name;
    const char* caption;
    void (*draw)();
};

constexpr MeshSample kSamples[] = {
    {"5-spheres", "<code>DrawSphereLowRes</code>, <code>DrawSphereMidRes</code>, <code>DrawSphereHighRes</code>",
     drawSpheres},
    {"5-translucent", "A translucent sphere around another: as it comes, and from back to front", drawTranslucent},
    {"5-disks", "<code>DrawDiskLowRes</code>, turned by 0, 30 and 60 degrees", drawDisks},
};

/// Points of a scan that are measured, each with its label.
void measure(CVQText& labels)
{
    constexpr float kPlaces[][3]{{-2.4F, 0.9F, 0}, {-0.6F, -0.9F, 1}, {1.2F, 0.8F, -1}, {2.6F, -0.6F, 0.5F}};
    constexpr EVQTextType kTypes[]{VQ_TEXT_LENGTH, VQ_TEXT_ANGLE, VQ_TEXT_PERCENT, VQ_TEXT_AREA};
    glColor3f(0.95F, 0.3F, 0.3F);
    for (std::size_t i = 0; i < std::size(kPlaces); ++i) {
        const auto& [x, y, z] = kPlaces[i];
        place(CVQDrawingAPI::DrawSphereMidRes, 0.25F, CVQPoint(x, y, z));
        labels.Add(kTypes[i], x, y, z, 12.5 * static_cast<double>(i + 1));
    }
    labels.Add(VQ_TEXT_FREE, 0, 0, 0, L"%ls", L"origin");
}

SVQGLVariables currentCamera()
{
    SVQGLVariables camera{};
    glGetDoublev(GL_MODELVIEW_MATRIX, camera.m_dModelView);
    glGetDoublev(GL_PROJECTION_MATRIX, camera.m_dProjection);
    glGetIntegerv(GL_VIEWPORT, camera.m_iViewport);
    return camera;
}

/// The scene is drawn by OpenGL, the labels over it in an image.
bool addLabels(Gallery& gallery, const OffScreenContext& scene)
{
    setUpScene(scene);
    measure(*CVQDrawingAPI::Text());
    SVQGLVariables camera = currentCamera();
    CVQDIB picture(1, 1);
    scene.copyTo(picture);
    picture.SetTextColor(RGB(255, 255, 255), 255);
    picture.EnableTextShadow(true);
    CVQDrawingAPI::Draw(&picture, 0, 0, camera.m_dModelView, camera.m_dProjection, camera.m_iViewport);
    CVQDrawingAPI::Text()->RemoveAll();
    return gallery.add(picture, "6-labels", "<code>CVQText</code>: labels pinned to points of the scene");
}

} // namespace

bool addMeshes(Gallery& gallery, const OffScreenContext& scene)
{
    bool written = true;
    for (const MeshSample& sample : kSamples) {
        setUpScene(scene);
        sample.draw();
        CVQDIB picture(1, 1);
        scene.copyTo(picture);
        written = gallery.add(picture, sample.name, sample.caption) && written;
    }
    return addLabels(gallery, scene) && written;
}
