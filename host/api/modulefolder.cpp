#include "host/api/modulefolder.h"

#include <QFile>
#include <QFileInfo>

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

} // namespace

QString moduleFolder()
{
    const QString beside = QFileInfo(ownFile()).absolutePath();
    const QString installed = beside + QStringLiteral("/intelligentrules");
    return QFileInfo(installed).isDir() ? installed : beside;
}

} // namespace UICommonMdl
