#include "workbench/recentdocuments.h"

#include "host/json/value.h"
#include "workbench/documentfile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using kql::Json::Value;

namespace
{

constexpr int kMostRecent = 10;

QString absolute(const QString& path)
{
    return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
}

} // namespace

QString RecentDocuments::usualFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/documents.json");
}

void RecentDocuments::keepIn(const QString& file)
{
    m_file = file;
    read();
}

void RecentDocuments::add(const Documents& documents)
{
    const Documents added{absolute(documents.templateFile), absolute(documents.configFile)};
    if (added.templateFile.isEmpty())
        return;
    // Another run may have written meanwhile.
    read();
    m_documents.removeAll(added);
    m_documents.prepend(added);
    m_documents = m_documents.mid(0, kMostRecent);
    write();
}

void RecentDocuments::read()
{
    Value kept;
    QString error;
    if (m_file.isEmpty() || !QFileInfo::exists(m_file) || !DocumentFile::read(m_file, kept, error))
        return;
    m_documents.clear();
    const Value& list = qAsConst(kept)["documents"];
    for (int i = 0; i < qMin(list.size(), kMostRecent); ++i) {
        const Documents documents{list[i]["template"].asString(), list[i]["config"].asString()};
        if (!documents.templateFile.isEmpty())
            m_documents.append(documents);
    }
}

void RecentDocuments::write()
{
    m_error.clear();
    if (m_file.isEmpty())
        return;
    Value kept(kql::Json::ValueType::Object);
    Value list(kql::Json::ValueType::Array);
    for (const Documents& documents : qAsConst(m_documents)) {
        Value one(kql::Json::ValueType::Object);
        one["template"] = documents.templateFile;
        one["config"] = documents.configFile;
        list.append(one);
    }
    kept["documents"] = list;
    QDir().mkpath(QFileInfo(m_file).path());
    DocumentFile::write(m_file, kept.toStyledText(), m_error);
}
