#pragma once

#include "host/api/kqhostexport.h"

#include <QString>

namespace UICommonMdl
{

/**
 * The parts of "rtsp://login@server/path". Passwords hold "@", "/", "?" and "#" unescaped often
 * enough: a login ends at the last "@" before the first "/", "?" or "#". Only where there is none,
 * and what stands there is no host with or without a port, it ends at the last "@" of all.
 */
struct KQHOST_EXPORT StreamAddress {
    QString scheme; ///< with "://"; empty when there is none, all is the path then
    QString login;  ///< user name and password as they were written
    QString server; ///< host, and port where one is said
    QString path;   ///< from the first "/", "?" or "#" on

    static StreamAddress parse(const QString& address);
    /// Where the login ends in @p rest, what follows the scheme: its "@", -1 without a login.
    static int loginEnd(const QString& rest);
    /// From 1 to 65535.
    static bool isPort(const QString& text);

    /// The login, percent-encoded where it has to be. "%" and two hexadecimal digits stand for a
    /// character already.
    QString encodedLogin() const;
    QString encoded() const;
    /// Whether what is sent to this server may be sent to @p other: the same host, in whatever
    /// case, with the same port, and encrypted where this one is.
    bool mayPassOnTo(const StreamAddress& other) const;
};

} // namespace UICommonMdl
