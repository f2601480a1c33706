#include "host/video/streamthreads.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <list>
#include <mutex>
#include <system_error>
#include <thread>

namespace UICommonMdl
{
namespace
{

constexpr std::chrono::seconds kPatience{3};

/// One started thread; joined when its task is done, so that what it kept for itself is gone too.
struct Running {
    std::thread thread;
    bool isDone = false;
};

class Registry
{
public:
    /// Never destroyed: a thread that is stuck in the system may outlast main().
    static Registry& instance()
    {
        static auto* const registry = new Registry;
        return *registry;
    }

    bool start(std::function<void()> task)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        joinDone();
        Running& running = m_running.emplace_back();
        try {
            running.thread = std::thread([this, &running, run = std::move(task)]() mutable {
                run();
                run = nullptr;
                markDone(running);
            });
        } catch (const std::system_error&) {
            m_running.pop_back();
            return false;
        }
        return true;
    }

    void waitForAll()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, kPatience, [this]() {
            return std::all_of(m_running.cbegin(), m_running.cend(),
                               [](const Running& running) { return running.isDone; });
        });
        joinDone();
    }

private:
    void markDone(Running& running)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        running.isDone = true;
        m_changed.notify_all();
    }

    /// The mutex is held; a thread that is marked does not take it any more.
    void joinDone()
    {
        m_running.remove_if([](Running& running) {
            if (running.isDone)
                running.thread.join();
            return running.isDone;
        });
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::list<Running> m_running;
};

} // namespace

bool StreamThreads::start(std::function<void()> task)
{
    static std::once_flag once;
    std::call_once(once, []() { qAddPostRoutine([]() { Registry::instance().waitForAll(); }); });
    return Registry::instance().start(std::move(task));
}

} // namespace UICommonMdl
