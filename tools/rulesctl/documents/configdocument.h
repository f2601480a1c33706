#pragma once

#include "tools/rulesctl/documents/documenterror.h"

#include <optional>

/// A configuration, or the result of an earlier save, which has one in its "channelAbilityPO".
class ConfigDocument
{
public:
    /// Reads @p path; nothing with @p error on failure.
    static std::optional<ConfigDocument> read(const QString& path, DocumentError& error);
    /// Of a document that is there; on failure nothing with the reason in @p error, whose place
    /// stays.
    static std::optional<ConfigDocument> of(kql::Json::Value document, DocumentError& error);

    /// Whether it is in a result.
    bool isInResult() const { return m_isInResult; }
    /// The JSON pointer of the configuration: empty unless it is in a result.
    QString pointer() const;
    const kql::Json::Value& config() const;
    /// Moves the configuration out; null is left in its place.
    kql::Json::Value takeConfig();
    /// Puts @p config into its place, and returns all of the document.
    kql::Json::Value with(kql::Json::Value config) &&;

private:
    ConfigDocument(kql::Json::Value document, bool isInResult);

    kql::Json::Value m_document;
    bool m_isInResult;
};
