#pragma once

#include "host/streams/avpointers.h"

class QString;

namespace UICommonMdl
{

/// Whether what listens where an RTSP address leads speaks HTTP. It is asked, without any password,
/// until @p interrupt gives it up.
bool isWebServer(const QString& address, const AVIOInterruptCB& interrupt);

} // namespace UICommonMdl
