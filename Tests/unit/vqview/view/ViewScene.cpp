// SPDX-License-Identifier: MIT
#include "unit/vqview/view/ViewScene.h"

#include <cmath>
#include <stdexcept>

namespace vqview::test {

namespace {

/// The largest difference of a channel.
double distance(const Colour& a, const Colour& b)
{
    return std::max({std::fabs(a.red - b.red), std::fabs(a.green - b.green), std::fabs(a.blue - b.blue)});
}

} // namespace

Colour preferred(eDrawPropertyColor row)
{
    const float* colour = CVQDrawProperty::GetColor(row);
    return {colour[0] * 255.0, colour[1] * 255.0, colour[2] * 255.0};
}

ViewScene::ViewScene()
{
    CVQDrawProperty::Initialize();
    std::string reason;
    m_context = OffScreenContext::make(kWidth, kHeight, reason);
    if (!m_context)
        throw std::runtime_error("no OpenGL context: " + reason); // which fails the test
    constexpr double kDepth = 1000;
    for (const int diagonal : {0, 5, 10, 15})
        pixelView.m_dModelView[diagonal] = 1;
    pixelView.m_dProjection[0] = 2.0 / kWidth;
    pixelView.m_dProjection[5] = 2.0 / kHeight;
    pixelView.m_dProjection[10] = -1 / kDepth;
    pixelView.m_dProjection[12] = pixelView.m_dProjection[13] = -1;
    pixelView.m_dProjection[15] = 1;
    pixelView.m_iViewport[2] = kWidth;
    pixelView.m_iViewport[3] = kHeight;
    scene = std::make_unique<SceneDrawing>();
}

ViewScene::~ViewScene()
{
    scene.reset();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    CVQDrawProperty::Initialize();
}

void ViewScene::draw(const SVQGLVariables& view, const Parts& parts)
{
    scene->draw(view, parts.faces, parts.edges, parts.vertices, parts.scale);
    readBack();
}

void ViewScene::readBack()
{
    m_context->copyTo(m_picture);
    ASSERT_EQ(m_picture.GetWidth(), kWidth);
}

Colour ViewScene::at(int x, int y)
{
    const ULONG pixel = m_picture.GetColor(x, kHeight - 1 - y);
    return {static_cast<double>(pixel >> 16 & 0xFF), static_cast<double>(pixel >> 8 & 0xFF),
            static_cast<double>(pixel & 0xFF)};
}

testing::AssertionResult ViewScene::shows(int x, int y, const Colour& expected, double tolerance)
{
    const Colour seen = at(x, y);
    if (distance(seen, expected) <= tolerance)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "pixel (" << x << ", " << y << ") is " << testing::PrintToString(seen)
                                       << " instead of " << testing::PrintToString(expected);
}

int ViewScene::count(const Colour& colour, int left, int lower, int right, int upper)
{
    int found = 0;
    for (int y = lower; y < upper; ++y)
        for (int x = left; x < right; ++x)
            found += distance(at(x, y), colour) <= 1 ? 1 : 0;
    return found;
}

std::shared_ptr<Model> makeModel(std::vector<Point3> positions, std::vector<std::array<std::uint32_t, 3>> triangles)
{
    auto model = std::make_shared<Model>();
    model->normals.assign(positions.size(), {0, 0, 1});
    for (const auto& [a, b, c] : triangles)
        for (const auto& [from, to] : {std::pair(a, b), std::pair(b, c), std::pair(c, a)})
            model->edges.push_back({std::min(from, to), std::max(from, to)});
    std::ranges::sort(model->edges);
    model->edges.erase(std::unique(model->edges.begin(), model->edges.end()), model->edges.end());
    model->bounds = boundsOf(positions);
    model->positions = std::move(positions);
    model->triangles = std::move(triangles);
    return model;
}

std::shared_ptr<Model> makeCloud(std::vector<Point3> positions)
{
    auto cloud = makeModel(std::move(positions), {});
    cloud->normals.clear();
    return cloud;
}

std::shared_ptr<Model> makeRectangle(Point3 lowerLeft, Point3 upperRight)
{
    const auto [left, lower, lowerDepth] = lowerLeft;
    const auto [right, upper, upperDepth] = upperRight;
    return makeModel(
        {{left, lower, lowerDepth}, {right, lower, lowerDepth}, {right, upper, upperDepth}, {left, upper, upperDepth}},
        {{0, 1, 2}, {0, 2, 3}});
}

std::shared_ptr<Model> joined(const Model& first, const Model& second)
{
    std::vector<Point3> positions = first.positions;
    positions.insert(positions.end(), second.positions.begin(), second.positions.end());
    auto triangles = first.triangles;
    const auto behind = static_cast<std::uint32_t>(first.positions.size());
    for (const auto& [a, b, c] : second.triangles)
        triangles.push_back({a + behind, b + behind, c + behind});
    return makeModel(std::move(positions), std::move(triangles));
}

void setColour(eDrawPropertyColor row, float red, float green, float blue)
{
    float rgb[]{red, green, blue};
    CVQDrawProperty::SetColorRGB(row, rgb);
}

void setSimpleLight(float red, float green, float blue)
{
    for (int row = DPC_LIGHT0AMBIENT; row <= DPC_LIGHT3SPECULAR; ++row)
        if (row % 4 != DPC_LIGHT0POS)
            setColour(static_cast<eDrawPropertyColor>(row), 0, 0, 0);
    setColour(DPC_LIGHT0DIFFUSE, 1, 1, 1);
    setColour(DPC_LIGHT0POS, 0, 0, 1);
    CVQMaterial material;
    material.m_fDiffuse[0] = red;
    material.m_fDiffuse[1] = green;
    material.m_fDiffuse[2] = blue;
    CVQDrawProperty::SetDPMaterial(DPM_BODY, material);
}

} // namespace vqview::test
