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
    for (int i = 0, count = list.size(); i < count; ++i) {
        const Value& pair = list[i];
        if (!pair.isArray() || pair.size() != 2)
            continue;
        const Value& x = pair[0];
        const Value& y = pair[1];
        if (x.isNumeric() && y.isNumeric())
            points.append({x.asInt(), y.asInt()});
    }
    return points;
}

Value PointConversion::toJson(const QVector<QPoint>& points)
{
    Value list(kql::Json::ValueType::Array);
    for (const QPoint& point : points)
        list.append(toJson(point));
    return list;
}
