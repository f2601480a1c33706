#pragma once

#include "tests/stream/server.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <functional>
#include <utility>

/// A camera that means harm, on the loopback address. It answers while events are processed.
class HostileCamera : public QTcpServer
{
public:
    using Answer = std::function<QByteArray(const QByteArray& request)>;

    /// Without an answer it is silent.
    explicit HostileCamera(const Answer& answer = {})
    {
        if (!listen(QHostAddress::LocalHost))
            qWarning("%s", qPrintable(errorString()));
        if (answer)
            connect(this, &QTcpServer::newConnection, this,
                    [this, answer] { serve(*nextPendingConnection(), answer); });
    }
    /// Answers all requests alike, with that header.
    HostileCamera(const QByteArray& status, const QByteArray& header)
        : HostileCamera(
              [=](const QByteArray& request) { return rtsp(request, status, header + "\r\n\r\n"); })
    {
    }

    /// The beginning of an answer, and @p more behind it.
    static QByteArray rtsp(const QByteArray& request, const QByteArray& status,
                           const QByteArray& more)
    {
        const QByteArray sequence = request.mid(request.indexOf("CSeq:"));
        return "RTSP/1.0 " + status + "\r\n" + sequence.left(sequence.indexOf('\n') + 1) + more;
    }

    QString address(const QString& user = {}, const QString& path = QStringLiteral("bars")) const
    {
        return loopback(serverPort(), user, path);
    }
    /// All that it was asked.
    QByteArray heard() const { return m_heard; }

private:
    void serve(QTcpSocket& client, const Answer& answer)
    {
        const auto read = [this, &client, answer, request = QByteArray()]() mutable {
            while (client.canReadLine()) {
                const QByteArray line = client.readLine();
                m_heard += line;
                request += line;
                if (line.trimmed().isEmpty())
                    client.write(answer(std::exchange(request, {})));
            }
        };
        connect(&client, &QTcpSocket::readyRead, this, read);
    }

    QByteArray m_heard;
};
