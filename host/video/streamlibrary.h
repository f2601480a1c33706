#pragma once

#include "host/api/kqhostexport.h"

#include <QString>

namespace UICommonMdl
{

class StreamPlayer;

/**
 * The library that plays streams and video files. It is one of its own, beside this one, because
 * it needs some hundred others, and most programs and sessions need none of them.
 */
class KQHOST_EXPORT StreamLibrary
{
public:
    StreamLibrary() = delete;

    /// The player, on any thread. The first call loads the library, which takes a moment; it stays
    /// for as long as the process. Null when it cannot be loaded; the next call tries again.
    static StreamPlayer* player();
    /// Tells the operator that player() is null.
    static QString missingText();
};

} // namespace UICommonMdl
