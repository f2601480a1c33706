#pragma once

#include "host/api/kqhostexport.h"

#include <QString>
#include <QStringList>

#include <string_view>
#include <type_traits>

namespace kql
{

/**
 * The host's log. Quiet unless the environment variable KQL_LOG is set: to a number for the
 * highest level to write, to anything else for all. Lines go to the standard error stream.
 */
class KQHOST_EXPORT DPrintLog
{
public:
    static DPrintLog* instance();

    /**
     * Writes one line. Each conversion in @p format (such as %d or %-5.2s) takes the next argument
     * as text, whatever its letter; what arguments hold is never read as a format.
     */
    template<typename... Args>
    void Log(const char* module, int level, const char* function, const char* file, int line,
             const char* format, const Args&... args) const
    {
        if (level <= m_highest)
            write(module, level, function, file, line, formatted(format, args...));
    }

    template<typename... Args>
    static QString formatted(const char* format, const Args&... args)
    {
        return fill(format, QStringList{text(args)...});
    }

    /// The highest level to write for a setting of the environment variable.
    static int highestLevel(const QByteArray& setting);

private:
    DPrintLog();

    static QString fill(const char* format, const QStringList& texts);
    static void write(const char* module, int level, const char* function, const char* file,
                      int line, const QString& message);

    static QString text(const QString& value) { return value; }
    static QString text(const char* value);
    static QString text(std::string_view value);
    static QString text(double value);
    template<typename T, std::enable_if_t<std::is_integral<T>::value, int> = 0>
    static QString text(T value)
    {
        return QString::number(value);
    }

    int m_highest;
};

} // namespace kql
