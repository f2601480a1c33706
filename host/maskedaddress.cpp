#include "host/maskedaddress.h"

#include "host/streamaddress.h"

#include <QRegularExpression>

namespace UICommonMdl
{
namespace
{

const auto kMask = QStringLiteral("***");
const auto kLoginNames = QStringLiteral("user|usr|login|pass|pwd");

int queryBegin(const QString& place)
{
    static const QRegularExpression begin(QStringLiteral("[?#]"));
    return place.indexOf(begin);
}

QString withoutQuery(const QString& place)
{
    const int query = queryBegin(place);
    return query < 0 ? place : place.left(query + 1) + kMask;
}

/// "user=admin": the name with its sign, and what follows.
QRegularExpression namedSecret(const QString& names)
{
    return QRegularExpression(QStringLiteral("((?:%1)[A-Za-z0-9_]*(?:=|%3d))[^&]+").arg(names),
                              QRegularExpression::CaseInsensitiveOption);
}

/// Behind a scheme or a login: the server, whose port has to be one, and a path.
QString withoutFalsePort(const QString& place)
{
    static const QRegularExpression port(
        QStringLiteral("^(?:\\[[^\\]/?#\\s]*\\]|[^:/?#\\s]*):([^/?#\\s]+)"));
    const auto match = port.match(place);
    if (!match.hasMatch() || StreamAddress::isPort(match.captured(1)))
        return place;
    return place.left(match.capturedStart(1)) + kMask + place.mid(match.capturedEnd(1));
}

/// @p rest is what follows a scheme.
QString maskedRest(const QString& rest)
{
    const int end = StreamAddress::loginEnd(rest);
    const QString place = rest.mid(end + 1);
    const int query = queryBegin(place);
    // A password may look like a server with a query: what is the server is not certain then.
    if (query >= 0 && place.lastIndexOf(QLatin1Char('@')) > query)
        return kMask;
    const int at = place.lastIndexOf(QLatin1Char('@'));
    const QString shown = withoutFalsePort(withoutQuery(place.mid(at + 1)));
    return end >= 0 || at >= 0 ? kMask + QLatin1Char('@') + shown : shown;
}

} // namespace

QString maskedAddress(const QString& address)
{
    static const QRegularExpression secret = namedSecret(kLoginNames);
    // "C:/a@b.png" is a path.
    static const QRegularExpression login(
        QStringLiteral("(?<!\\w)(?![A-Za-z]:[/\\\\])[^\\s\"'/\\\\:=]+:(?!\\s).*@"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression scheme(
        QStringLiteral("(?<![\\w:.+-])[A-Za-z][A-Za-z0-9+.-]+:/+|://"));
    QString text = address;
    text.replace(secret, QStringLiteral("\\1") + kMask);
    const auto begin = scheme.match(text);
    const auto bare = login.match(text);
    if (bare.hasMatch() && (!begin.hasMatch() || bare.capturedStart() < begin.capturedStart()))
        return text.left(bare.capturedStart()) + kMask + QLatin1Char('@') +
               withoutQuery(text.mid(bare.capturedEnd()));
    const int end = begin.capturedEnd();
    return begin.hasMatch() ? text.left(end) + maskedRest(text.mid(end)) : text;
}

QString addressWithoutLogin(const QString& address)
{
    static const QRegularExpression secret =
        namedSecret(kLoginNames + QStringLiteral("|auth|token|secret|key|sign"));
    StreamAddress parts = StreamAddress::parse(address);
    if (parts.scheme.isEmpty())
        return maskedAddress(address) == address ? address : QString();
    parts.login.clear();
    parts.path.replace(secret, QStringLiteral("\\1"));
    parts.path = parts.path.section(QLatin1Char('#'), 0, 0);
    const QString kept = parts.scheme + parts.server + parts.path;
    const QString place = kept.section(QLatin1Char('?'), 0, 0);
    return maskedAddress(place) == place ? kept : QString();
}

} // namespace UICommonMdl
