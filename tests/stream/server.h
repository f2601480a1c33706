#pragma once

#include <QProcess>

#include <csignal>

inline QString loopback(int port, const QString& user, const QString& path)
{
    return QStringLiteral("rtsp://%1%2:%3/%4")
        .arg(user, QStringLiteral("127.0.0.1"))
        .arg(port)
        .arg(path);
}

/// The RTSP server program, on the loopback address; killed at the end. That it does not run is a
/// warning, and so fails the test.
class Server
{
public:
    explicit Server(const QStringList& arguments = {}) { start(arguments); }
    ~Server() { kill(); }

    void start(QStringList arguments = {})
    {
        if (m_port > 0)
            arguments << QStringLiteral("--port") << QString::number(m_port);
        m_process.start(QStringLiteral(RULES_BIN_DIR "/rtsp-test-server"), arguments);
        if (m_process.waitForReadyRead(kStartTime))
            m_port = m_process.readLine().trimmed().toInt();
        if (m_port <= 0 || m_process.state() != QProcess::Running)
            qWarning("rtsp-test-server does not run");
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    void send(int signal) { ::kill(pid_t(m_process.processId()), signal); }
    QString address(const QString& user = {}, const QString& path = QStringLiteral("bars")) const
    {
        return loopback(m_port, user, path);
    }

private:
    static constexpr int kStartTime = 30000; // milliseconds

    QProcess m_process;
    int m_port = 0;
};
