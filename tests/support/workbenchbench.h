#pragma once

#include "host/video/qrtspvideownd.h"
#include "tests/support/examplefiles.h"
#include "tests/support/workbenchfiles.h"
#include "workbench/panelfinder.h"
#include "workbench/sessionplayer.h"
#include "workbench/sessionscript.h"
#include "workbench/workbenchwindow.h"

#include <QAbstractButton>
#include <QtTest>

/// A workbench window, shown with its picture, and sessions that are played in it.
class WorkbenchBench
{
public:
    static constexpr QSize kSize{1200, 820};

    static WorkbenchOptions example(const QString& name = "perimeter")
    {
        WorkbenchOptions options;
        options.templateFile = ExampleFiles::folder(name) + "template.json";
        options.configFile = ExampleFiles::folder(name) + "config.json";
        return options;
    }

    explicit WorkbenchBench(const WorkbenchOptions& options, bool isReplaying = false)
        : m_window(options)
    {
        m_window.resize(kSize);
        m_window.show();
        m_window.setReplaying(isReplaying);
        QString error;
        const bool isStarted = m_window.start(error);
        if (!isStarted)
            qWarning("%s", qPrintable(error));
        m_isReady =
            isStarted && QTest::qWaitForWindowExposed(&m_window, kPatience) &&
            QTest::qWaitFor([this] { return !surface()->paneRect(0).isEmpty(); }, kPatience);
    }

    bool isReady() const { return m_isReady; }
    WorkbenchWindow& window() { return m_window; }
    QRtspVideoWnd* surface() { return m_window.videoSurface(); }
    PanelFinder finder() { return PanelFinder(m_window.rulesWindow()); }
    QAbstractButton* button(const char* name) { return finder().windowButton(QString(name)); }

    /// Why the session could not be done; empty when it was.
    QString play(const QString& session)
    {
        SessionScript script;
        QString error;
        if (!script.read(session, error))
            return error;
        SessionPlayer player(m_window, std::move(script));
        QSignalSpy finished(&player, &SessionPlayer::sgnFinished);
        player.start();
        return finished.wait(kPatience) ? finished[0][0].toString() : QString("no end");
    }

private:
    static constexpr int kPatience = 60000; // milliseconds

    WorkbenchWindow m_window;
    bool m_isReady = false;
};
