#include "host/video/maskedaddress.h"

#include "host/video/streamaddress.h"

#include <QRegularExpression>

namespace UICommonMdl
{
namespace
{

const auto kMask = QStringLiteral("***");

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

/// In "user=admin", ";user:admin" and "u=admin": the name with its sign, and what follows. Nobody
/// encodes the letters of a name but to hide it.
const QRegularExpression& namedSecret()
{
    static const auto names =
        QStringLiteral("(?:user|usr|login|pass|pwd|pw|psw|psk|auth|token|secret|key|sign)"
                       "[A-Za-z0-9_]*");
    static const QRegularExpression secret(
        QStringLiteral("((?:%1|(?<=[/?&;])[up]|%[4-7][0-9a-f][\\w%]{0,40}?)(?:=|%3d)|"
                       "(?:(?<=[?&;])|(?<=[^/:]/))%1:)[^&]+")
            .arg(names),
        QRegularExpression::CaseInsensitiveOption);
    return secret;
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
    static const QRegularExpression encodedLogin(QStringLiteral("^[^/?#]*%(?:3a|40)"),
                                                 QRegularExpression::CaseInsensitiveOption);
    if (place.contains(encodedLogin))
        return kMask;
    const int at = place.lastIndexOf(QLatin1Char('@'));
    const QString shown = withoutFalsePort(withoutQuery(place.mid(at + 1)));
    return end >= 0 || at >= 0 ? kMask + QLatin1Char('@') + shown : shown;
}

} // namespace

QString maskedAddress(const QString& address)
{
    // "C:/a@b.png" is a path; in "here: /a@b.png" stands one. A login may lack its name.
    static const QRegularExpression login(
        QStringLiteral("(?:(?<!\\w)(?![A-Za-z]:[/\\\\])[^\\s\"'/\\\\:=]{1,1000}?|(?<![^\\s=/]))"
                       "(?::|%3a)(?:(?!\\s).*|\\s+[^\\s/\\\\]*)(?:@|%40)"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression scheme(
        QStringLiteral("(?<![\\w:.+-])[A-Za-z][A-Za-z0-9+.-]+:/+|://"));
    // No question: those end there.
    static const QRegularExpression query(QStringLiteral("(?<=\\S)\\?(?=\\S)"));
    QString text = address;
    text.replace(namedSecret(), QStringLiteral("\\1") + kMask);
    const auto begin = scheme.match(text);
    const auto bare = login.match(text);
    const int server = begin.hasMatch() ? begin.capturedStart() : text.size();
    const int name = bare.hasMatch() ? bare.capturedStart() : text.size();
    const int asked = text.indexOf(query);
    if (asked >= 0 && asked < qMin(server, name))
        return withoutQuery(text);
    if (name < server)
        return text.left(name) + kMask + QLatin1Char('@') +
               withoutQuery(text.mid(bare.capturedEnd()));
    const int end = begin.capturedEnd();
    return begin.hasMatch() ? text.left(end) + maskedRest(text.mid(end)) : text;
}

QString addressWithoutLogin(const QString& address)
{
    StreamAddress parts = StreamAddress::parse(address);
    if (parts.scheme.isEmpty())
        return maskedAddress(address) == address ? address : QString();
    parts.path.replace(namedSecret(), QStringLiteral("\\1"));
    // What is the server is not certain then.
    if (parts.path.contains(QLatin1Char('@')))
        return {};
    const QString kept = parts.scheme + parts.server + parts.path.left(queryBegin(parts.path));
    return maskedAddress(kept) == kept ? kept : QString();
}

} // namespace UICommonMdl
