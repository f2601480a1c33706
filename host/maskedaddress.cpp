#include "host/maskedaddress.h"

namespace UICommonMdl
{

QString maskedAddress(const QString& address)
{
    const auto separator = QStringLiteral("://");
    const auto mask = QStringLiteral("***");
    const int start = address.indexOf(separator);
    if (start < 0)
        return address;
    const QString scheme = address.left(start + separator.size());
    QString rest = address.mid(scheme.size());
    // Passwords hold "@", "/" and "?" unescaped often enough: the last "@" ends the secret.
    const int at = rest.lastIndexOf(QLatin1Char('@'));
    if (at >= 0)
        rest = mask + rest.mid(at);
    const int query = rest.indexOf(QLatin1Char('?'));
    if (query >= 0)
        rest = rest.left(query + 1) + mask;
    return scheme + rest;
}

} // namespace UICommonMdl
