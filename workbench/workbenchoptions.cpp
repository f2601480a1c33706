#include "workbench/workbenchoptions.h"

#include <QFileInfo>

QString WorkbenchOptions::replacedDocument() const
{
    const QString result = QFileInfo(resultFile).canonicalFilePath();
    for (const QString& document : {templateFile, configFile}) {
        if (!result.isEmpty() && result == QFileInfo(document).canonicalFilePath())
            return document;
    }
    return {};
}
