#pragma once

#include "host/api/kqhostexport.h"
#include "host/gdiplus/basetypes.h"

namespace Gdiplus
{

using DebugEventProc = void (*)(int level, char* message);

struct GdiplusStartupInput {
    UINT GdiplusVersion = 1;
    DebugEventProc DebugEventCallback = nullptr;
    BOOL SuppressBackgroundThread = false;
    BOOL SuppressExternalCodecs = false;
};

/// Hooks of a suppressed background thread; there is none here, so both stay null.
struct GdiplusStartupOutput {
    Status (*NotificationHook)(ULONG_PTR* token) = nullptr;
    void (*NotificationUnhook)(ULONG_PTR token) = nullptr;
};

/// Gives @p token a value that is never 0. Painting needs nothing else here.
KQHOST_EXPORT Status GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                                    GdiplusStartupOutput* output);
KQHOST_EXPORT void GdiplusShutdown(ULONG_PTR token);

} // namespace Gdiplus
