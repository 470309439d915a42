// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Start-up and shut-down.

#include "Platform/Export.h"
#include "Platform/gdiplus/Types.h"

namespace Gdiplus {

enum DebugEventLevel : INT { DebugEventLevelFatal = 0, DebugEventLevelWarning = 1 };
using DebugEventProc = VOID(WINAPI*)(DebugEventLevel level, CHAR* message);

struct GdiplusStartupInput
{
    UINT32 GdiplusVersion;
    DebugEventProc DebugEventCallback;
    BOOL SuppressBackgroundThread;
    BOOL SuppressExternalCodecs;

    GdiplusStartupInput(DebugEventProc debugEventCallback = nullptr, BOOL suppressBackgroundThread = FALSE,
                        BOOL suppressExternalCodecs = FALSE)
        : GdiplusVersion(1), DebugEventCallback(debugEventCallback), SuppressBackgroundThread(suppressBackgroundThread),
          SuppressExternalCodecs(suppressExternalCodecs)
    {
    }
};

using NotificationHookProc = Status(WINAPI*)(ULONG_PTR* token);
using NotificationUnhookProc = VOID(WINAPI*)(ULONG_PTR token);

struct GdiplusStartupOutput
{
    NotificationHookProc NotificationHook = nullptr;
    NotificationUnhookProc NotificationUnhook = nullptr;
};

/// Makes GDI+ usable; until then every call answers `GdiplusNotInitialized`. Start-ups are counted: each gives a token
/// of its own, never 0, and GDI+ stays usable until as many have been shut down.
///
/// `InvalidParameter` for a null token or input, or when the background thread is suppressed and `output` is null;
/// `UnsupportedGdiplusVersion` unless version 1 or 2 is asked for. No thread is started and no debug event is raised;
/// the hooks in `output` are there to be called and do nothing.
VQPLATFORM_API Status WINAPI GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                                            GdiplusStartupOutput* output);

/// Ends the start-up that gave `token`. A token of 0, an unknown or an already used one does nothing. The last
/// shut-down gives back what was kept of fonts and glyphs. Objects may outlive it: their calls answer
/// `GdiplusNotInitialized` and they can be deleted.
VQPLATFORM_API VOID WINAPI GdiplusShutdown(ULONG_PTR token);

} // namespace Gdiplus
