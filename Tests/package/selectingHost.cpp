// SPDX-License-Identifier: MIT
// A host that selects points of a scene, and knows nothing but the installed package. Its exit status is 0 when the
// library did its work.
#include <VQDraw/vqSelection/VQSelection.h>

int main()
{
    SVQGLVariables view{};
    for (const int diagonal : {0, 5, 10, 15})
        view.m_dModelView[diagonal] = view.m_dProjection[diagonal] = 1; // x and y from -1 to 1 over the viewport
    view.m_iViewport[2] = view.m_iViewport[3] = 100;
    const float points[] = {0, 0, 0, 0.9F, 0.9F, 0};
    CVQSelectionSet set;
    const std::size_t changed = CVQSelection::Select(CVQSelectionShape::Box(40, 40, 60, 60), SVQSelectionView::Of(view),
                                                     {points, 2}, VQ_SELECT_REPLACE, set);
    return changed == 1 && set.IsSelected(0) && !set.IsSelected(1) ? 0 : 1;
}
