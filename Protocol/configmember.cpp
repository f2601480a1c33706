#include "Protocol/configmember.h"

const JsonPath& ConfigMember::directionPath()
{
    static const JsonPath path(QStringLiteral("Config.Direction[]"));
    return path;
}
