// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <array>

namespace vqview {

/// Brings all attributes of the current OpenGL context and two matrices, model view and projection, back at its end.
/// The matrices' stacks are not used: that of the projection may have no more than two places.
class StateGuard
{
public:
    StateGuard();
    ~StateGuard();
    StateGuard(const StateGuard&) = delete;
    StateGuard& operator=(const StateGuard&) = delete;

private:
    std::array<double, 16> m_modelView, m_projection;
};

/// Sets both matrices; model view is the current one afterwards.
void loadMatrices(const double* modelView, const double* projection);

} // namespace vqview
