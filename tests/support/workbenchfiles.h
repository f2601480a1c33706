#pragma once

#include "host/json/value.h"
#include "workbench/documentfile.h"

#include <QFile>
#include <QTemporaryDir>

/// Files of tests that run the workbench as a program. A failure is a warning, and so fails the
/// test.
namespace WorkbenchFiles
{

inline kql::Json::Value read(const QString& path)
{
    kql::Json::Value document;
    QString error;
    if (!DocumentFile::read(path, document, error))
        qWarning("%s", qPrintable(error));
    return document;
}

/// Writes a file into @p folder; its path is the answer.
inline QString write(const QTemporaryDir& folder, const char* name, const QByteArray& content)
{
    QFile written(folder.filePath(QString::fromLatin1(name)));
    if (!written.open(QIODevice::WriteOnly) || written.write(content) != content.size())
        qWarning("cannot write %s", name);
    return written.fileName();
}

} // namespace WorkbenchFiles
