// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Progress.h"
#include "vqview/model/RawMesh.h"

#include <optional>
#include <string>
#include <string_view>

namespace vqview {

/// Readers of one format each, from memory. They never believe a count: memory grows with what is there. They stop
/// early when `progress` is cancelled.
/// @return what is wrong with the file, as a sentence without its name ("line 7: ..."); empty when nothing is.

/// Wavefront OBJ: v, and f as fans; vn only of a cloud that has as many. All else is passed over.
std::string readObj(std::string_view text, RawMesh& mesh, Progress& progress);

/// A point a line: x y z, then maybe a unit normal, then anything. Blanks, tabs, commas or semicolons between; where
/// there are semicolons, a comma is a decimal point. Lines before the first point that are none are headings.
std::string readXyz(std::string_view text, RawMesh& mesh, Progress& progress);

/// Whether more than half of the lines are points.
bool isMostlyXyz(std::string_view text);

/// Polygon file format: text and both binary forms, properties of any type, faces as fans, triangle strips.
std::string readPly(std::string_view bytes, RawMesh& mesh, Progress& progress);

/// Stereolithography, text or binary. Every triangle has corners of its own.
std::string readStl(std::string_view bytes, RawMesh& mesh, Progress& progress);

/// Object file format, text: also with normals, colours or texture coordinates after the coordinates.
std::string readOff(std::string_view text, RawMesh& mesh, Progress& progress);

enum class ScanFormat { Obj, Off, Ply, Stl, Xyz };

/// What a reader of this format answers.
std::string read(ScanFormat format, std::string_view bytes, RawMesh& mesh, Progress& progress);

/// By an extension with its dot, in lower case.
std::optional<ScanFormat> formatOfExtension(std::string_view extension);

/// By what the file begins with, its size, and for formats without a mark by what its first lines look like.
std::optional<ScanFormat> formatOfContent(std::string_view bytes);

} // namespace vqview
