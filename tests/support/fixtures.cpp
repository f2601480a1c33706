#include "tests/support/fixtures.h"

#include "host/json/reader.h"

#include <QDir>
#include <QSize>
#include <QtTest>

using kql::Json::Value;
using kql::Json::ValueType;

QString Fixtures::path(const QString& name)
{
    return QStringLiteral(RULES_SOURCE_DIR "/tests/fixtures/") + name;
}

QByteArray Fixtures::contentOf(const QString& name)
{
    QFile file(path(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    return file.readAll();
}

Value Fixtures::read(const QString& name)
{
    Value document;
    kql::Json::Reader reader;
    if (!reader.parse(QString::fromUtf8(contentOf(name)), document))
        qFatal("%s:%d: %s", qPrintable(name), reader.errorLine(), qPrintable(reader.errorText()));
    return document;
}

QByteArray Fixtures::document(const Value& value)
{
    return value.isString() ? contentOf(value.asString()) : value.toStyledText().toUtf8();
}

void Fixtures::addRows(const QString& name)
{
    QStringList files{name};
    if (const QDir folder(path(name)); folder.exists())
        files = folder.entryList(QDir::Files).replaceInStrings(QRegularExpression("^"), name + '/');
    QTest::addColumn<Value>("fixture");
    for (const QString& file : qAsConst(files)) {
        const Value cases = read(file);
        for (int i = 0; i < cases.size(); ++i)
            QTest::addRow("%s: %s", qPrintable(QFileInfo(file).baseName()),
                          std::string(cases.memberName(i)).c_str())
                << cases.memberValue(i);
    }
}

QVariant Fixtures::valueOf(const Value& value)
{
    if (value.isArray() && value.size() == 2 && value[0].isNumeric())
        return QSize(value[0].asInt(), value[1].asInt());
    switch (value.type()) {
    case ValueType::Null:
        return {};
    case ValueType::Array:
        return textsOf(value);
    case ValueType::Object:
        return value.toStyledText();
    case ValueType::String:
        return value.asString();
    case ValueType::Bool:
        return value.asBool();
    case ValueType::Real:
        return value.asDouble();
    default:
        return value.asInt();
    }
}

QStringList Fixtures::textsOf(const Value& list)
{
    QStringList texts;
    for (int i = 0; i < list.size(); ++i)
        texts.append(list[i].asString());
    return texts;
}

QVector<QPoint> Fixtures::pointsOf(const Value& list)
{
    QVector<QPoint> points;
    for (int i = 0; i < list.size(); ++i)
        points.append({list[i][0].asInt(), list[i][1].asInt()});
    return points;
}
