#pragma once

#include <functional>

namespace UICommonMdl
{

/**
 * Threads that nobody waits for while the program runs. When the application object goes, those
 * still running are given a short time to end.
 */
class StreamThreads
{
public:
    StreamThreads() = delete;

    /// False when the system has no thread left; @p task must not throw.
    static bool start(std::function<void()> task);
};

} // namespace UICommonMdl
