// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// How this toolchain marks what a shared library exports, and in which order it initialises statics.

#if defined(_WIN32)
#define VQ_EXPORT __declspec(dllexport)
#define VQ_IMPORT __declspec(dllimport)
#else
#define VQ_EXPORT __attribute__((visibility("default")))
#define VQ_IMPORT __attribute__((visibility("default")))
#endif

/// Static objects that carry this come into being in rising order of `step` (1 .. 100), before every static object
/// without it, whatever order the linker puts the files in. In a library with a `CWinApp` step 1 belongs to
/// afx/ModuleEntry.cpp.
#define VQ_START_ORDER(step) __attribute__((init_priority(200 + (step))))

#if defined(vqPlatform_EXPORTS)
#define VQPLATFORM_API VQ_EXPORT
#else
#define VQPLATFORM_API VQ_IMPORT
#endif
