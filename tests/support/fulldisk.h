#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>

/**
 * A folder on a small file system of its own, which a test fills. Where no mount is allowed, the
 * files of this process and of those it starts may not grow instead: the same writes fail.
 */
class FullDisk
{
public:
    FullDisk()
        : m_isMounted(::mount("tmpfs", qPrintable(m_folder.path()), "tmpfs", 0, "size=64k") == 0)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_usual);
    }
    ~FullDisk()
    {
        makeRoom();
        if (m_isMounted)
            ::umount2(qPrintable(m_folder.path()), MNT_DETACH);
    }
    Q_DISABLE_COPY(FullDisk)

    const QTemporaryDir& folder() const { return m_folder; }
    QString path(const QString& name) const { return m_folder.filePath(name); }

    void fill()
    {
        const rlimit nothing{1, m_usual.rlim_max};
        if (!m_isMounted)
            ::setrlimit(RLIMIT_FSIZE, &nothing);
        m_filler.setFileName(path(QStringLiteral("filler")));
        m_filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        while (m_filler.write(QByteArray(4096, 'x')) > 0) {
        }
    }
    void makeRoom()
    {
        m_filler.remove();
        if (!m_isMounted)
            ::setrlimit(RLIMIT_FSIZE, &m_usual);
    }

private:
    QTemporaryDir m_folder;
    bool m_isMounted;
    rlimit m_usual{};
    QFile m_filler;
};
