// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// All that a program can ask OpenGL 1.1 about the state of a context.

#include <string>
#include <utility>
#include <vector>

namespace vq::test {

/// Names with their values, always in the same order.
using GLState = std::vector<std::pair<std::string, std::vector<double>>>;

/// Of the current context. Numbers are read back in double precision; pointers to arrays are among them.
GLState currentState();

/// "GL_LIGHTING: 1 -> 0", a line for each name whose value has changed; empty when none has.
std::string changes(const GLState& before, const GLState& after);

/// Sets as many values as there are to others than those that OpenGL begins with and those that drawing sets, and
/// pushes matrices, attributes and client attributes.
void makeStateUnusual();

} // namespace vq::test
