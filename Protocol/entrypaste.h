#pragma once

#include "Protocol/figurereader.h"
#include "host/json/fwd.h"

#include <QString>
#include <vector>

class EntryReader;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;
struct CopiedFigure;

/**
 * Adds copies of entries (EntryClip) to a scene. What they are made of is read as that of a
 * document is, with the same limits: it may come from anywhere.
 *
 * In the configuration that the original was read from, a copy is written as the original is.
 * Elsewhere it is a new entry of that configuration's skeleton.
 */
class EntryPaste
{
public:
    /// @p document is the digest of the configuration that @p data was read from. Not owned.
    EntryPaste(RuleData& data, const QString& document)
        : m_data(data), m_document(document), m_figures(data)
    {
    }

    /// Adds @p clip as the last entry, with its figures, and tells the scene what the template has
    /// no attribute for, or other values. Returns its id; 0, with nothing added, when the scene
    /// would hold more than a document may, or has no template.
    int add(const kql::Json::Value& clip);

private:
    void readSource(const kql::Json::Value& clip, RuleDataInfo& entry);
    void readAttributes(const kql::Json::Value& list, RuleDataInfo& entry);
    void readAttribute(const EntryReader& reader, const RuleProtocolItem& item,
                       const kql::Json::Value& value, RuleDataInfo& entry);
    std::vector<CopiedFigure> readFigures(const kql::Json::Value& list, const RuleDataInfo& entry);
    void draw(const std::vector<CopiedFigure>& figures, const RuleDataInfo& entry);
    void leaveOut(const kql::Json::Value& left, const RuleDataInfo& entry);

    RuleData& m_data;
    QString m_document;
    FigureReader m_figures;
    bool m_isFromHere = false; ///< from the same document
};
