#include "host/video/streamlibrary.h"

#include "host/api/dprintlog.h"
#include "host/api/modulefolder.h"
#include "host/video/streamplayer.h"

#include <QCoreApplication>
#include <QPluginLoader>

#include <mutex>

namespace UICommonMdl
{
namespace
{

constexpr int kLogLevel = 1;
const char kName[] = "/kqstreams";

/// Null, and logged, when the library cannot be loaded.
StreamPlayer* load(QPluginLoader& loader, const QString& file)
{
    loader.setFileName(file);
    loader.setLoadHints(QLibrary::PreventUnloadHint);
    auto* const player = qobject_cast<StreamPlayer*>(loader.instance());
    if (!player)
        kql::DPrintLog::instance()->Log("host", kLogLevel, "StreamLibrary::player", __FILE__,
                                        __LINE__, "%s: %s", file, loader.errorString());
    return player;
}

} // namespace

StreamPlayer* StreamLibrary::player()
{
    static std::mutex mutex;
    static StreamPlayer* player = nullptr;
    // Never deleted: at the end of the process Qt deletes the player of a library that no loader
    // holds, and a thread that is stuck in the system may be about to use it still.
    static auto* const loader = new QPluginLoader;
    const std::lock_guard<std::mutex> lock(mutex);
    if (!player)
        player = load(*loader, moduleFolder() + QLatin1String(kName));
    return player;
}

QString StreamLibrary::missingText()
{
    return QCoreApplication::translate(
        "StreamLibrary", "The library that plays streams and video files cannot be loaded.");
}

} // namespace UICommonMdl
