// SPDX-License-Identifier: MIT
#include "unit/vqSelection/Scene.h"

namespace vq::test {

namespace {

SVQGLVariables squareView()
{
    SVQGLVariables view{};
    for (const int diagonal : {0, 5, 10, 15})
        view.m_dModelView[diagonal] = 1;
    view.m_iViewport[2] = kSize;
    view.m_iViewport[3] = kSize;
    return view;
}

} // namespace

SVQGLVariables pixelView()
{
    SVQGLVariables view = squareView();
    view.m_dProjection[0] = 2.0 / kSize;
    view.m_dProjection[5] = 2.0 / kSize;
    view.m_dProjection[10] = -2;
    for (const int shift : {12, 13, 14})
        view.m_dProjection[shift] = -1;
    view.m_dProjection[15] = 1;
    return view;
}

SVQGLVariables perspectiveView()
{
    constexpr double kNear = 1;
    constexpr double kFar = 3;
    SVQGLVariables view = squareView();
    view.m_dProjection[0] = kNear;
    view.m_dProjection[5] = kNear;
    view.m_dProjection[10] = -(kFar + kNear) / (kFar - kNear);
    view.m_dProjection[11] = -1;
    view.m_dProjection[14] = -2 * kFar * kNear / (kFar - kNear);
    return view;
}

std::vector<std::uint32_t> selectedOf(const CVQSelectionShape& shape, const ScreenPoints& points,
                                      const SVQSelectionView& view)
{
    CVQSelectionSet set;
    CVQSelection::Select(shape, view, points.points(), VQ_SELECT_REPLACE, set);
    return indicesOf(set);
}

std::vector<std::uint32_t> indicesOf(const CVQSelectionSet& set)
{
    std::vector<std::uint32_t> indices;
    set.GetSelected(indices);
    return indices;
}

CVQSelectionSet setOf(std::size_t size, std::initializer_list<std::size_t> selected)
{
    CVQSelectionSet set(size);
    for (const std::size_t index : selected)
        set.Select(index, true);
    return set;
}

} // namespace vq::test
