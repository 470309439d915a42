// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Compares routines of the image class with their references, bit for bit, and shrinks what differs.

#include "Trial.h"
#include "VQDraw/VQDIB.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace vq::reference {

using Results = std::vector<Number>; // what a routine tells besides pixels: a return value, a rectangle

/// One call of a routine of the library.
struct Call
{
    CVQDIB& image;
    CVQDIB& source;
    const Arguments& argument;
    Results& results;
};

/// The same call of its reference.
struct Model
{
    Picture& image;
    const Picture& source;
    const Arguments& argument;
    Results& results;
};

/// A way in: a public member, a dispatch slot, or a routine that stands behind one.
struct Way
{
    std::string name;
    std::function<void(Call&)> run;
};

struct Operation
{
    std::string name; // letters and digits
    std::function<void(Model&)> reference;
    std::vector<Way> ways;
    std::vector<Chooser> arguments;
    bool readsSource = false;
    std::vector<Content> contents{kContents.begin(), kContents.end()};

    friend std::ostream& operator<<(std::ostream& out, const Operation& operation) { return out << operation.name; }
};

/// Size, contents and arguments of a random trial, for the sizes given.
Trial randomTrial(const Operation& operation, std::uint32_t seed, Number width, Number height);

/// What differs, or nothing: the way in, and the first pixel, result or guard that is wrong.
std::string fault(const Operation& operation, const Trial& trial);

/// A smaller trial that still differs; the smallest that one step cannot make smaller.
Trial shrunk(const Operation& operation, Trial trial);

/// Runs the trial. A failure shows it and the smallest one like it.
testing::AssertionResult agrees(const Operation& operation, const Trial& trial);

/// How many random pictures an operation is compared on: 200, or what the environment variable VQDRAW_TEST_ROUNDS says.
Number rounds();

} // namespace vq::reference
