#include "plugin/entrytransfer.h"

#include "Protocol/entryclip.h"
#include "Protocol/entrypaste.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "plugin/entryclipboard.h"
#include "scene/basetabelscene.h"

#include <algorithm>

using kql::Json::Value;

namespace IntelligentRulesUI
{

bool EntryTransfer::hasCopied()
{
    return EntryClipboard::hasEntry();
}

QString EntryTransfer::whyNotCopied(const BaseTabelScene& panel, int dataId) const
{
    const RuleData* const data = panel.ruleData();
    if (!m_parser || !panel.takesEntries() || !data->getDataInfo(dataId))
        return tr("There is no entry to copy.");
    const auto figures = data->figures().of(dataId);
    const bool isWhole = std::all_of(figures.begin(), figures.end(),
                                     [](const DrawItem* figure) { return figure->isFinished(); });
    return isWhole ? QString() : tr("Its figures are not finished yet.");
}

QString EntryTransfer::whyNotDuplicated(const BaseTabelScene& panel, int dataId) const
{
    const QString why = whyNotCopied(panel, dataId);
    return why.isEmpty() ? whyNotAdded(panel) : why;
}

QString EntryTransfer::whyNotPasted(const BaseTabelScene& panel) const
{
    const QString why = m_parser ? whyNotAdded(panel) : tr("Nothing can be added here.");
    if (!why.isEmpty())
        return why;
    if (!EntryClipboard::hasEntry())
        return tr("Nothing was copied.");
    const Value clip = EntryClipboard::entry();
    if (!clip.isObject())
        return tr("What was copied cannot be read.");
    return EntryClip::isFor(*panel.ruleData(), clip)
               ? QString()
               : tr("What was copied belongs to another section.");
}

QString EntryTransfer::whyNotAdded(const BaseTabelScene& panel)
{
    if (!panel.takesEntries())
        return tr("Nothing can be added here.");
    if (panel.getDrawScene()->isDrawing())
        return tr("A figure is being drawn.");
    return panel.isFull() ? tr("There are as many entries as there may be.") : QString();
}

QString EntryTransfer::copy(const BaseTabelScene& panel, int dataId) const
{
    return EntryClipboard::put(clipOf(panel, dataId)) ? QString()
                                                      : tr("The entry is too large to be copied.");
}

int EntryTransfer::duplicate(const BaseTabelScene& panel, int dataId) const
{
    return add(panel, clipOf(panel, dataId));
}

int EntryTransfer::paste(const BaseTabelScene& panel) const
{
    // It may have got other contents since it was asked.
    const Value clip = EntryClipboard::entry();
    return clip.isObject() && EntryClip::isFor(*panel.ruleData(), clip) ? add(panel, clip) : 0;
}

Value EntryTransfer::clipOf(const BaseTabelScene& panel, int dataId) const
{
    const RuleData& data = *panel.ruleData();
    return m_parser->copyOf(data, *data.getDataInfo(dataId));
}

int EntryTransfer::add(const BaseTabelScene& panel, const Value& clip) const
{
    return EntryPaste(*panel.ruleData(), m_parser->documentDigest()).add(clip);
}

} // namespace IntelligentRulesUI
