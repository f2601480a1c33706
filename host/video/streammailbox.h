#pragma once

#include "host/api/kqhostexport.h"

#include <QImage>
#include <QString>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace UICommonMdl
{

class DecodedPicture;

/// What came from a stream's thread since it was asked last.
struct StreamNews {
    QImage picture; ///< the newest, as it is to be shown; null when none came
    std::shared_ptr<const DecodedPicture> decoded; ///< the same one
    std::optional<QString> failure;                ///< why the stream is over
};

/**
 * All that the GUI thread and a stream's threads share. It holds the newest picture only: one that
 * was not fetched in time counts as dropped. Once closed, nothing wakes the GUI side any more, and
 * the stream's threads end by themselves.
 */
class KQHOST_EXPORT StreamMailbox
{
public:
    using Clock = std::chrono::steady_clock;

    /// @p wake is called on a stream's thread, once until the next fetch(); it must not block.
    explicit StreamMailbox(std::function<void()> wake);

    // The GUI's side.
    void close();
    StreamNews fetch();
    void setTargetSize(const QSize& size);
    void setBounds(const QSize& bounds);
    QString codec() const { return locked(m_codec); }
    qint64 dropped() const { return locked(m_dropped); }
    bool isLoginRefused() const { return locked(m_isLoginRefused); }

    // The stream's side.
    bool isClosed() const;
    /// Waits; false as soon as the mailbox is closed.
    bool waitUntil(Clock::time_point time);
    /// The size in which the GUI shows a picture whose shape @p size has; its own, within limits,
    /// while nothing is known of the GUI.
    QSize targetFor(const QSize& size) const;
    /// Waits until the target size is known and not @p size; false as soon as the mailbox is
    /// closed.
    bool waitForAnotherSize(const QSize& size);
    void setCodec(const QString& codec);
    void countDropped(int pictures);
    /// The failure that follows is one that only another login ends.
    void setLoginRefused();
    /// The same @p decoded may come again, in another size.
    void postPicture(const QImage& picture, std::shared_ptr<const DecodedPicture> decoded);
    void postFailure(const QString& reason);

private:
    template<class T>
    T locked(const T& member) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return member;
    }
    void wakeOnce();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed; ///< closed, or of another size
    std::function<void()> m_wake;      ///< null once closed
    bool m_isAwake = false;
    StreamNews m_news;
    QSize m_targetSize;
    QSize m_bounds; ///< for a picture without a target size
    QString m_codec;
    qint64 m_dropped = 0;
    bool m_isLoginRefused = false;
};

} // namespace UICommonMdl
