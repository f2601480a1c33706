#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// Configurations of many cameras: the perimeter example with eight rules.
class FleetFiles
{
public:
    enum class Form { Compact, Indented };

    /// @p count files in a folder of their own.
    FleetFiles(Form form, int count);

    QString folder() const { return m_folder.path(); }
    /// Of the file at a position, from 0.
    QString path(int position) const;

    static QByteArray text(Form form);
    static QString templateFile();

private:
    QTemporaryDir m_folder;
};
