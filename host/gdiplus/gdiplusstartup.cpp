#include "host/gdiplus/gdiplusstartup.h"

#include <atomic>

namespace Gdiplus
{

Status GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                      GdiplusStartupOutput* output)
{
    if (!token || !input || (input->SuppressBackgroundThread && !output))
        return InvalidParameter;
    if (input->GdiplusVersion != 1)
        return UnsupportedGdiplusVersion;
    static std::atomic<ULONG_PTR> lastToken{0};
    *token = ++lastToken;
    if (output)
        *output = {};
    return Ok;
}

void GdiplusShutdown(ULONG_PTR) {}

} // namespace Gdiplus
