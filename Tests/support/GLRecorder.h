// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A library of OpenGL entry points that draw nothing and write down their calls. A program that links it before the
/// system's calls these, and so do the libraries that it loads: neither a context nor a display is needed.

#include <array>
#include <ostream>
#include <string>
#include <vector>

namespace vq::test {

struct GLCall
{
    std::string name;
    std::vector<double> arguments; // numbers and enumerators, and the numbers of an array; other pointers are left out

    friend bool operator==(const GLCall&, const GLCall&) = default;
    friend void PrintTo(const GLCall& call, std::ostream* out)
    {
        *out << call.name << "(";
        for (std::size_t i = 0; i < call.arguments.size(); ++i)
            *out << (i == 0 ? "" : ", ") << call.arguments[i];
        *out << ")";
    }
};

using GLCalls = std::vector<GLCall>;

/// A call as a test writes it down.
template <typename... Arguments>
GLCall call(const char* name, Arguments... arguments)
{
    return {name, {static_cast<double>(arguments)...}};
}

/// One list after the other.
template <typename... Lists>
GLCalls inOrder(const Lists&... lists)
{
    GLCalls all;
    (all.insert(all.end(), lists.begin(), lists.end()), ...);
    return all;
}

/// The calls since it was asked last, in their order.
__attribute__((visibility("default"))) GLCalls takeGLCalls();

/// What a call of glDrawElements named of the arrays that glInterleavedArrays laid out: normal, then position.
using GLVertices = std::vector<std::array<float, 6>>;

/// One entry for each such call since it was asked last.
__attribute__((visibility("default"))) std::vector<GLVertices> takeGLVertices();

} // namespace vq::test
