#pragma once

#include "host/api/cinterfacesetmanager.h"
#include "plugin/cintelligentrulesctrl.h"
#include "tests/support/boxanswerer.h"
#include "tests/support/mailbox.h"

#include <QPointer>
#include <QtTest>

/// A rules window on its host, what it posts there, and its questions, which get a yes.
struct RulesWindow {
    RulesWindow()
    {
        window->setInterfaceSetManager(&manager);
        window->show();
    }
    ~RulesWindow() { delete window; }

    template<class T = QWidget>
    T* find(const QByteArray& name) const
    {
        return window->findChild<T*>(QString::fromLatin1(name));
    }
    void click(const QByteArray& name) const { QTest::mouseClick(find(name), Qt::LeftButton); }
    /// The boxes that come up.
    QStringList save()
    {
        click("btnSave");
        return boxes.takeBoxes();
    }

    CommonData::CInterfaceSetManager manager;
    QPointer<IntelligentRulesUI::CIntelligentRulesCtrl> window{
        new IntelligentRulesUI::CIntelligentRulesCtrl(QStringLiteral("W1"))};
    Mailbox mailbox;
    BoxAnswerer boxes{QMessageBox::Yes};
};
