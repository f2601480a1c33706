#include "workbench/eventwait.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace EventWait
{

namespace
{
constexpr int kSlice = 10; // milliseconds
}

// One loop for all of it: each that starts drops a wish to end the program that is on its way.
bool until(int milliseconds, const std::function<bool()>& condition)
{
    const QDeadlineTimer deadline(milliseconds);
    QEventLoop loop;
    QTimer slices;
    QObject::connect(&slices, &QTimer::timeout, &loop, [&] {
        // Where a wait begins in the handler of a posted event, Qt may leave what a thread posts
        // just then lying until something else is posted.
        QCoreApplication::sendPostedEvents();
        if (deadline.hasExpired() || condition())
            loop.quit();
    });
    slices.start(kSlice);
    if (!condition())
        loop.exec();
    return condition();
}

} // namespace EventWait
