#include "Protocol/pointconversion.h"

using kql::Json::Value;

bool PointConversion::isPoint(const Value& value)
{
    return value.isArray() && value.size() == 2 && value[0].isNumeric() && value[1].isNumeric();
}

bool PointConversion::isPointList(const Value& value)
{
    return value.isArray() && isPoint(value[0]);
}

QPoint PointConversion::toPoint(const Value& pair)
{
    return {pair[0].asInt(), pair[1].asInt()};
}

Value PointConversion::toJson(const QPoint& point)
{
    Value pair(kql::Json::ValueType::Array);
    pair.append(point.x());
    pair.append(point.y());
    return pair;
}

QVector<QPoint> PointConversion::toPoints(const Value& list)
{
    QVector<QPoint> points;
    if (!list.isArray())
        return points;
    points.reserve(list.size());
    for (int i = 0; i < list.size(); ++i) {
        if (isPoint(list[i]))
            points.append(toPoint(list[i]));
    }
    return points;
}

Value PointConversion::toJson(const QVector<QPoint>& points)
{
    Value list(kql::Json::ValueType::Array);
    list.reserve(std::size_t(points.size()));
    for (const QPoint& point : points)
        list.append(toJson(point));
    return list;
}
