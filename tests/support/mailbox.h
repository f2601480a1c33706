#pragma once

#include "host/api/cuipluginmessage.h"
#include "host/json/reader.h"
#include "host/json/value.h"

#include <QCoreApplication>
#include <QList>
#include <utility>

/// What the module posts to its host.
class Mailbox
{
public:
    using Message = UICommonMdl::PluginMsg_Param;

    /// Starts with what is posted from now on.
    Mailbox()
    {
        QCoreApplication::sendPostedEvents();
        using Bus = UICommonMdl::CUIPluginMessage;
        m_connection =
            QObject::connect(&KQGUI::KQSingleton<Bus>::Instance(), &Bus::sgnPluginMessage,
                             [this](const Message& m) { m_messages.append(m); });
    }
    ~Mailbox() { QObject::disconnect(m_connection); }
    Mailbox(const Mailbox&) = delete;
    Mailbox& operator=(const Mailbox&) = delete;

    QList<Message> take()
    {
        QCoreApplication::sendPostedEvents();
        return std::exchange(m_messages, {});
    }

    /// "id widget" of each message so far; forgets them.
    QStringList takeHeads()
    {
        QStringList heads;
        for (const Message& message : take())
            heads.append(QString::number(message.id) + QLatin1Char(' ') + message.p1.toString());
        return heads;
    }

    static kql::Json::Value json(const QString& text)
    {
        kql::Json::Value value;
        kql::Json::Reader().parse(text, value);
        return value;
    }

private:
    QMetaObject::Connection m_connection;
    QList<Message> m_messages;
};
