// SPDX-License-Identifier: MIT
#pragma once

namespace vq::test {

/// How many vertices were handed to the OpenGL of this program since it was asked last.
int takeSceneVertices();

} // namespace vq::test
