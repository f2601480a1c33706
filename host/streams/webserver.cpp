#include "host/streams/webserver.h"

#include <QUrl>

#include <array>

namespace UICommonMdl
{
namespace
{

constexpr int kRtspPort = 554;
constexpr int kRtspsPort = 322;

/// Where the server listens; empty for an address that names no host.
QByteArray serverOf(const QUrl& url)
{
    const bool isEncrypted = url.scheme() == QLatin1String("rtsps");
    QUrl server;
    server.setScheme(isEncrypted ? QStringLiteral("tls") : QStringLiteral("tcp"));
    server.setHost(url.host());
    server.setPort(url.port(isEncrypted ? kRtspsPort : kRtspPort));
    return server.host().isEmpty() ? QByteArray() : server.toEncoded();
}

/// How the answer begins; empty when there is none.
QByteArray beginOfAnswer(const QByteArray& server, const QByteArray& question,
                         const AVIOInterruptCB& interrupt)
{
    AvOptions options;
    options.set("protocol_whitelist", "tcp,tls");
    AVIOContext* connection = nullptr;
    // Without buffers, as those go one way only.
    if (avio_open2(&connection, server.constData(), AVIO_FLAG_READ_WRITE | AVIO_FLAG_DIRECT,
                   &interrupt, options.get()) < 0)
        return {};
    std::array<unsigned char, 5> begin{};
    avio_write(connection, reinterpret_cast<const unsigned char*>(question.constData()),
               question.size());
    const int count = avio_read(connection, begin.data(), int(begin.size()));
    avio_closep(&connection);
    return {reinterpret_cast<const char*>(begin.data()), qMax(0, count)};
}

} // namespace

bool isWebServer(const QString& address, const AVIOInterruptCB& interrupt)
{
    const QByteArray server = serverOf(QUrl(address));
    if (server.isEmpty())
        return false;
    QByteArray begin = beginOfAnswer(server, "OPTIONS * RTSP/1.0\r\nCSeq: 1\r\n\r\n", interrupt);
    // Some answer what they do not understand by a bare text, or hang up.
    if (begin != "RTSP/" && begin != "HTTP/")
        begin = beginOfAnswer(server, "HEAD / HTTP/1.0\r\n\r\n", interrupt);
    return begin == "HTTP/";
}

} // namespace UICommonMdl
