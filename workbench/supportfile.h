#pragma once

#include <QList>
#include <QString>
#include <functional>

/**
 * One archive with what helps others to understand a fault: versions and platform, the log, what
 * was done, the documents. User names and passwords of addresses are left out.
 */
class SupportFile
{
public:
    /// Adds @p text as a file of that name; an empty one is left out.
    void addText(const QString& name, const QString& text);
    /// Adds the content of the file at @p path, or why it cannot be read; none for an empty path.
    void addFile(const QString& name, const QString& path);
    /// Adds versions and platform. On the GUI thread.
    void addPlatform();

    /// Replaces @p path in one step, on any thread; false with one line in @p error. It is asked
    /// before that whether the operator has left it: then @p path stays as it is.
    bool write(const QString& path, QString& error, const std::function<bool()>& isLeft = {}) const;

private:
    struct Part {
        QString name;
        QString text;
        QString path; ///< of the file that has the text; read while it is written
    };

    QList<Part> m_parts;
};
