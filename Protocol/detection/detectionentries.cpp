#include "Protocol/detection/detectionentries.h"

#include "Protocol/pointconversion.h"
#include "host/json/value.h"

bool DetectionEntries::isBareList(const kql::Json::Value* parent)
{
    return parent && PointConversion::isPointList(*parent);
}

EntryList::Entries DetectionEntries::of(const kql::Json::Value* parent)
{
    return isBareList(parent) ? EntryList::Entries{parent} : EntryList::getJsonItemList(parent);
}
