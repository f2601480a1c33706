#include "host/video/streamlibrary.h"

#include "host/api/dprintlog.h"
#include "host/video/streamplayer.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>

#include <mutex>

#if defined(Q_OS_WIN)
#include <windows.h>

#include <array>
#else
#include <dlfcn.h>
#endif

namespace UICommonMdl
{
namespace
{

constexpr int kLogLevel = 1;
const char kName[] = "/kqstreams";

/// The file of the library that this code is in; empty when the system does not tell.
QString ownFile()
{
    static const char here = 0;
#if defined(Q_OS_WIN)
    constexpr DWORD kHow =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    std::array<wchar_t, 32768> path{};
    if (!GetModuleHandleExW(kHow, reinterpret_cast<LPCWSTR>(&here), &module) ||
        GetModuleFileNameW(module, path.data(), DWORD(path.size())) == 0)
        return {};
    return QString::fromWCharArray(path.data());
#else
    Dl_info info{};
    return dladdr(&here, &info) != 0 ? QFile::decodeName(info.dli_fname) : QString();
#endif
}

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
        player = load(*loader, QFileInfo(ownFile()).absolutePath() + QLatin1String(kName));
    return player;
}

QString StreamLibrary::missingText()
{
    return QCoreApplication::translate(
        "StreamLibrary", "The library that plays streams and video files cannot be loaded.");
}

} // namespace UICommonMdl
