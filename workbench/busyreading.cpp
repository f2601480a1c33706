#include "workbench/busyreading.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>

bool BusyReading::waitFor(QWidget* parent, const QString& text, const std::function<void()>& work)
{
    QThread* const thread = QThread::create(work);
    QEventLoop loop;
    bool isDone = false;
    QObject::connect(thread, &QThread::finished, &loop, [&isDone, &loop] {
        isDone = true;
        loop.quit();
    });
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (isDone)
        return true;
    QProgressDialog dialog(text, QCoreApplication::translate("BusyReading", "Cancel"), 0, 0,
                           parent);
    dialog.setObjectName(QStringLiteral("busyReading"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(0);
    dialog.show();
    QObject::connect(&dialog, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    loop.exec();
    return isDone;
}
