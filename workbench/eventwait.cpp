#include "workbench/eventwait.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace EventWait
{

namespace
{
constexpr int kSlice = 10; // milliseconds
}

bool until(int milliseconds, const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > milliseconds)
            return false;
        QEventLoop loop;
        QTimer::singleShot(kSlice, &loop, &QEventLoop::quit);
        if (loop.exec() < 0)
            return false; // the program is about to end
    }
    return true;
}

} // namespace EventWait
