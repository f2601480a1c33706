#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace UICommonMdl
{

/// A named pipe opened for reading, which holds up nobody in the system while it has no writer.
class NamedPipe
{
public:
    NamedPipe() = default;
    ~NamedPipe();
    NamedPipe(const NamedPipe&) = delete;
    NamedPipe& operator=(const NamedPipe&) = delete;

    static bool isAt(const QString& path);

    /// Waits for a writer's first bytes until @p isGivenUp; 0, or what FFmpeg calls the failure.
    int open(const QString& path, const std::function<bool()>& isGivenUp);
    bool isOpen() const { return m_file >= 0; }
    /// For FFmpeg.
    QByteArray address() const;

private:
    int m_file = -1;
};

} // namespace UICommonMdl
