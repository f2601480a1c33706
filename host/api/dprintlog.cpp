#include "host/api/dprintlog.h"

#include <cstdio>
#include <cstring>
#include <limits>

namespace kql
{

namespace
{

/// Length of the conversion at the start of @p format, which is at a '%'; 0 if it has no letter.
std::size_t conversionLength(const char* format)
{
    const std::size_t modifiers = 1 + std::strspn(format + 1, "-+ #0123456789.*hljztL");
    const char letter = format[modifiers];
    const bool known = letter != '\0' && std::strchr("diouxXeEfFgGaAcspn", letter);
    return known ? modifiers + 1 : 0;
}

/// Keeps a message on its line, whatever a document put in it.
QString onOneLine(QString message)
{
    for (QChar& c : message) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line)
            c = QLatin1Char(' ');
    }
    return message;
}

} // namespace

DPrintLog* DPrintLog::instance()
{
    static DPrintLog log;
    return &log;
}

DPrintLog::DPrintLog() : m_highest(highestLevel(qgetenv("KQL_LOG"))) {}

int DPrintLog::highestLevel(const QByteArray& setting)
{
    if (setting.isEmpty())
        return std::numeric_limits<int>::min();
    bool isNumber = false;
    const int level = setting.toInt(&isNumber);
    return isNumber ? level : std::numeric_limits<int>::max();
}

QString DPrintLog::fill(const char* format, const QStringList& texts)
{
    QString filled;
    auto next = texts.begin();
    const char* at = format ? format : "";
    while (const char* percent = std::strchr(at, '%')) {
        filled += QString::fromUtf8(at, int(percent - at));
        const std::size_t length = conversionLength(percent);
        if (length > 0 && next != texts.end())
            filled += *next++;
        else
            filled += QString::fromUtf8(percent, int(qMax<std::size_t>(length, 1)));
        at = percent + qMax<std::size_t>(length, percent[1] == '%' ? 2 : 1);
    }
    return filled + QString::fromUtf8(at);
}

void DPrintLog::write(const char* module, int level, const char* function, const char* file,
                      int line, const QString& message)
{
    const QString text =
        formatted("[%d] %s %s (%s:%d): %s", level, module, function, file, line, message);
    std::fputs(onOneLine(text).append(QLatin1Char('\n')).toUtf8().constData(), stderr);
}

QString DPrintLog::text(const char* value)
{
    return value ? QString::fromUtf8(value) : QStringLiteral("(null)");
}

QString DPrintLog::text(std::string_view value)
{
    return QString::fromUtf8(value.data(), int(value.size()));
}

QString DPrintLog::text(double value)
{
    return QString::number(value, 'g', 12);
}

} // namespace kql
