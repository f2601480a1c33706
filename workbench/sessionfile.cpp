#include "workbench/sessionfile.h"

#include "host/value.h"

bool SessionFile::open(const QString& path, QString& error)
{
    m_file.setFileName(path);
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return true;
    error = QStringLiteral("%1: %2").arg(path, m_file.errorString());
    return false;
}

void SessionFile::append(const kql::Json::Value& step)
{
    m_lastStart = m_file.pos();
    m_file.write(step.toCompactText().toUtf8() + '\n');
    m_file.flush();
}

void SessionFile::replaceLast(const kql::Json::Value& step)
{
    m_file.resize(m_lastStart);
    m_file.seek(m_lastStart);
    append(step);
}
