#pragma once

#include <QStringList>

class RuleData;

/// What SaveNotices recorded, in sentences for the operator.
namespace NoticeText
{

/// What a save would leave out of the scene as it is now, a sentence each. What is said of an entry
/// stands as long as the entry has the value that it was read with.
QStringList of(const RuleData& data);

} // namespace NoticeText
