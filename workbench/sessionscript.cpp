#include "workbench/sessionscript.h"

#include "host/json/reader.h"
#include "workbench/documentfile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>

bool SessionScript::read(const QString& path, QString& error)
{
    QByteArray session;
    if (!DocumentFile::readBytes(path, session, error))
        return false;
    QBuffer file(&session);
    file.open(QIODevice::ReadOnly);
    folder = QFileInfo(path).absolutePath();
    for (int line = 1; !file.atEnd(); ++line) {
        const QByteArray bytes = file.readLine().trimmed();
        if (bytes.isEmpty())
            continue;
        Step step;
        step.line = line;
        kql::Json::Reader reader;
        const bool parsed = reader.parse(bytes.toStdString(), step.step);
        if (!parsed || !qAsConst(step.step)["do"].isString()) {
            error = QStringLiteral("%1:%2:%3: %4")
                        .arg(path, QString::number(line),
                             QString::number(parsed ? 1 : reader.errorColumn()),
                             parsed ? QCoreApplication::translate("SessionScript",
                                                                  "no text member \"do\"")
                                    : reader.errorText());
            return false;
        }
        steps.push_back(std::move(step));
    }
    if (steps.empty())
        error =
            QCoreApplication::translate("SessionScript", "%1: there is no step in it").arg(path);
    return !steps.empty();
}
