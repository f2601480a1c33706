#pragma once

#include "host/json/value.h"

#include <QPoint>
#include <QVector>

/// Points (0..8192, unscaled) between JSON and figures. Reading and writing mirror each other.
namespace PointConversion
{

/// Whether @p value is a pair of numbers.
bool isPoint(const kql::Json::Value& value);
/// Whether @p value is an array that begins with a point.
bool isPointList(const kql::Json::Value& value);

QPoint toPoint(const kql::Json::Value& pair);
kql::Json::Value toJson(const QPoint& point);

/// The points of an array; elements that are not pairs of numbers are skipped.
QVector<QPoint> toPoints(const kql::Json::Value& list);
kql::Json::Value toJson(const QVector<QPoint>& points);

} // namespace PointConversion
