#pragma once

#include "host/json/value.h"

#include <QMetaType>

Q_DECLARE_METATYPE(kql::Json::Value)

/// Documents and tables of cases in tests/fixtures, found from wherever a test runs. One that
/// cannot be read ends the test.
namespace Fixtures
{

QString path(const QString& name);
QByteArray contentOf(const QString& name);
kql::Json::Value read(const QString& name);
/// The text of what a fixture has as a document, which may be the name of one.
QByteArray document(const kql::Json::Value& value);

/// For the data of a test function: adds the column "fixture" and a row for each case in the file
/// @p name, or in all files of the folder @p name, under the name of the case.
void addRows(const QString& name);

/// As rows keep it: a list of two numbers is a range, one of texts a choice, null no value, and an
/// object its text.
QVariant valueOf(const kql::Json::Value& value);
QStringList textsOf(const kql::Json::Value& list);
QVector<QPoint> pointsOf(const kql::Json::Value& list);

} // namespace Fixtures
