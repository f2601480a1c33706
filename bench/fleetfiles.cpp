#include "bench/fleetfiles.h"

#include "host/json/reader.h"
#include "host/json/value.h"

#include <QFile>

using kql::Json::Value;

namespace
{

constexpr int kRules = 8;
const char* const kExample = RULES_SOURCE_DIR "/examples/perimeter/";

} // namespace

FleetFiles::FleetFiles(Form form, int count)
{
    const QByteArray content = text(form);
    for (int i = 0; i < count; ++i) {
        QFile file(path(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }
}

QString FleetFiles::path(int position) const
{
    return m_folder.filePath(
        QStringLiteral("camera%1.json").arg(position, 6, 10, QLatin1Char('0')));
}

QByteArray FleetFiles::text(Form form)
{
    QFile file(QString::fromLatin1(kExample) + QStringLiteral("config.json"));
    file.open(QIODevice::ReadOnly);
    Value config;
    kql::Json::Reader().parse(QString::fromUtf8(file.readAll()), config);
    Value& rules = config["Analysis"]["Rules"];
    const int count = rules.size();
    for (int i = 0; i < kRules; ++i) {
        Value rule = rules[i % count];
        rule["Name"] = QStringLiteral("Rule%1").arg(i + 1);
        rules[i] = std::move(rule);
    }
    return (form == Form::Compact ? config.toCompactText() : config.toStyledText()).toUtf8();
}

QString FleetFiles::templateFile()
{
    return QString::fromLatin1(kExample) + QStringLiteral("template.json");
}
