#include "host/video/streamaddress.h"

#include <QRegularExpression>

namespace UICommonMdl
{
namespace
{

const auto kPlain = QStringLiteral("rtsp://");
const auto kEncrypted = QStringLiteral("rtsps://");
constexpr int kPlainPort = 554;
constexpr int kEncryptedPort = 322;

/// Where a path, a query or a fragment begins; the length of @p rest when nothing does.
int pathBegin(const QString& rest)
{
    static const QRegularExpression begin(QStringLiteral("[/?#]"));
    const int at = rest.indexOf(begin);
    return at < 0 ? rest.size() : at;
}

bool isServer(const QString& text)
{
    static const QRegularExpression server(QRegularExpression::anchoredPattern(QStringLiteral(
                                               "(?:\\[[^\\[\\]@\\s]+\\]|[\\w.-]+)(?::(\\d+))?")),
                                           QRegularExpression::UseUnicodePropertiesOption);
    const auto match = server.match(text);
    return match.hasMatch() &&
           (match.lastCapturedIndex() == 0 || StreamAddress::isPort(match.captured(1)));
}

/// The server in one spelling.
QString normalized(const StreamAddress& address)
{
    static const QRegularExpression port(QStringLiteral(":\\d+$"));
    const QString server = address.server.toLower();
    if (server.contains(port))
        return server;
    return QStringLiteral("%1:%2").arg(server).arg(
        address.scheme.toLower() == kEncrypted ? kEncryptedPort : kPlainPort);
}

} // namespace

StreamAddress StreamAddress::parse(const QString& address)
{
    StreamAddress parts;
    const auto separator = QStringLiteral("://");
    const int scheme = address.indexOf(separator);
    if (scheme < 0) {
        parts.path = address;
        return parts;
    }
    parts.scheme = address.left(scheme + separator.size());
    const QString rest = address.mid(parts.scheme.size());
    const int end = loginEnd(rest);
    const QString place = rest.mid(end + 1);
    const int path = pathBegin(place);
    parts.login = rest.left(qMax(0, end));
    parts.server = place.left(path);
    parts.path = place.mid(path);
    return parts;
}

int StreamAddress::loginEnd(const QString& rest)
{
    const QString place = rest.left(pathBegin(rest));
    const int end = place.lastIndexOf(QLatin1Char('@'));
    return end >= 0 || isServer(place) ? end : rest.lastIndexOf(QLatin1Char('@'));
}

bool StreamAddress::isPort(const QString& text)
{
    bool isNumber = false;
    const uint port = text.toUShort(&isNumber);
    return isNumber && port > 0;
}

QString StreamAddress::encodedLogin() const
{
    static const QRegularExpression special(
        QStringLiteral("[\\x00-\\x20/?#@\\[\\]\\x7f]|%(?![0-9A-Fa-f]{2})"));
    QString safe;
    int done = 0;
    for (auto matches = special.globalMatch(login); matches.hasNext();) {
        const auto match = matches.next();
        safe += login.mid(done, match.capturedStart() - done);
        safe += QStringLiteral("%%1").arg(uint(match.captured().at(0).unicode()), 2, 16,
                                          QLatin1Char('0'));
        done = match.capturedEnd();
    }
    return safe + login.mid(done);
}

QString StreamAddress::encoded() const
{
    return scheme + (login.isEmpty() ? login : encodedLogin() + QLatin1Char('@')) + server + path;
}

bool StreamAddress::mayPassOnTo(const StreamAddress& other) const
{
    // Whoever splits it elsewhere, as at the first "/", would reach another server.
    if (pathBegin(other.login) < other.login.size())
        return false;
    const QString there = other.scheme.toLower();
    const bool isStream =
        there == kEncrypted || (there == kPlain && scheme.toLower() != kEncrypted);
    return isStream && normalized(*this) == normalized(other);
}

} // namespace UICommonMdl
