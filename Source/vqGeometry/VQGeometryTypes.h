// SPDX-License-Identifier: MIT
#pragma once

/// What a tolerance check came to.
enum eVQCalcTolResult : int {
    VQ_TOL_FAIL,
    VQ_TOL_PASS,
    VQ_TOL_WARNING,   ///< passed, near the limit
    VQ_TOL_NO_RESULT, ///< could not be checked
    VQ_TOL_IGNORED,   ///< left out on the user's wish
    VQ_TOL_END
};

/// Kinds of entities in the host's geometry database, as far as they have a colour of their own. The numbers are the
/// database's, which has others between them: a value without a name here is valid.
enum eGDBEntityType : int {
    GDB_PLANAR_POINT = 22,
    GDB_PLANAR_VECTOR = 23,
    GDB_PLANAR_CIRCLE = 24,
    GDB_PLANAR_SLOT = 25,
    GDB_PLANAR_RECTANGLE = 26,
    GDB_PLANAR_REGULARPOLYGON = 27,

    GDB_POINT = 29,
    GDB_VECTOR = 30,
    GDB_PLANE = 31,
    GDB_CIRCLE = 32,
    GDB_SLOT = 33,
    GDB_RECTANGLE = 34,
    GDB_REGULARPOLYGON = 35,
    GDB_CYLINDER = 36,
    GDB_CONE = 37,
    GDB_SPHERE = 38,
    GDB_TORUS = 39,
    GDB_COORDINATE = 40,
    GDB_POLYLINE = 41,

    GDB_PROBEPOINT = 56
};
