#include "host/streamthreads.h"

#include <QCoreApplication>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace UICommonMdl
{
namespace
{

constexpr std::chrono::seconds kPatience{3};

struct Count {
    std::mutex mutex;
    std::condition_variable changed;
    int running = 0;

    void add(int difference)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        running += difference;
        changed.notify_all();
    }
};

/// Never destroyed: a thread that is stuck in the system may outlast main().
Count& count()
{
    static auto* const instance = new Count;
    return *instance;
}

void waitForAll()
{
    std::unique_lock<std::mutex> lock(count().mutex);
    count().changed.wait_for(lock, kPatience, []() { return count().running == 0; });
}

} // namespace

bool StreamThreads::start(std::function<void()> task)
{
    static std::once_flag once;
    std::call_once(once, []() { qAddPostRoutine(&waitForAll); });
    count().add(1);
    try {
        std::thread([run = std::move(task)]() mutable {
            run();
            run = nullptr;
            count().add(-1);
        }).detach();
    } catch (const std::system_error&) {
        count().add(-1);
        return false;
    }
    return true;
}

} // namespace UICommonMdl
