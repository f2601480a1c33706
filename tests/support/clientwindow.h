#pragma once

#include "host/api/iabstractwidget.h"
#include "host/video/qrtspvideownd.h"
#include "tests/support/sampledocuments.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QtTest>

/// A rules window as a client has it: the plug-in's handle, and the window in one of the client's.
struct ClientWindow {
    enum Message { CloseRules = 0, OpenRules = 160, QueryDraw = 222 };

    explicit ClientWindow(KQPluginAPI::IAbstractWidget* made)
        : handle(made), content(made->GetWidget(parent))
    {
        id = QString::fromStdString(made->GetWidgetID());
        parent->resize(1000, 700);
        content->resize(1000, 700);
        parent->show();
        QApplication::setActiveWindow(parent);
    }
    ~ClientWindow() { delete parent; }
    ClientWindow(const ClientWindow&) = delete;
    ClientWindow& operator=(const ClientWindow&) = delete;

    void load(const QByteArray& channel, const QByteArray& rules, const QByteArray& more = {}) const
    {
        send(SampleDocuments::block("\"channalId\": \"" + channel + '"' + more,
                                    SampleDocuments::config(rules)));
    }
    void send(const QString& parameters) const
    {
        const auto to = QString(R"({"pluginWidgetID": "%1", "iSessionID": 4})").arg(id);
        QVERIFY(handle->OnPluginMessage(OpenRules, to, parameters));
    }
    void clear() const { QVERIFY(handle->OnPluginMessage(CloseRules, id, {})); }
    void query(const QString& channel) const
    {
        const auto asked = QString(R"({"params": {"channalId": "%1"}})").arg(channel);
        QVERIFY(handle->OnPluginMessage(QueryDraw, id, asked));
    }

    template<class T = QAbstractButton>
    T* find(const QString& name) const
    {
        return content->findChild<T*>(name);
    }
    void click(const QString& button) const { QTest::mouseClick(find(button), Qt::LeftButton); }
    QRect picture() const { return find<QRtspVideoWnd>("playerWin")->paneRect(0); }
    void press(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(find<QRtspVideoWnd>("playerWin"), button, {}, picture().topLeft() + at);
    }
    /// The channel that is loaded; empty for none.
    QString channel() const
    {
        return find<QWidget>("rules") ? find<QLabel>("lblChnCode")->text() : QString();
    }

    KQPluginAPI::IAbstractWidget* handle;
    QPointer<QWidget> parent{new QWidget};
    QPointer<QWidget> content;
    QString id;
};
