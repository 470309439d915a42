// SPDX-License-Identifier: MIT
#include "vqview/overlay/StateGuard.h"

namespace vqview {

StateGuard::StateGuard()
{
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glPushClientAttrib(static_cast<GLbitfield>(GL_CLIENT_ALL_ATTRIB_BITS));
    glGetDoublev(GL_MODELVIEW_MATRIX, m_modelView.data());
    glGetDoublev(GL_PROJECTION_MATRIX, m_projection.data());
}

StateGuard::~StateGuard()
{
    loadMatrices(m_modelView.data(), m_projection.data());
    glPopClientAttrib();
    glPopAttrib();
}

void loadMatrices(const double* modelView, const double* projection)
{
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(projection);
    glMatrixMode(GL_MODELVIEW);
    glLoadMatrixd(modelView);
}

} // namespace vqview
