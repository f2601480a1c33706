#include "tools/rulesctl/documents/configdocument.h"

#include "tools/rulesctl/documents/documentfile.h"

using kql::Json::Value;

namespace
{

constexpr char kConfiguration[] = "channelAbilityPO";

} // namespace

ConfigDocument::ConfigDocument(Value document, bool isInResult)
    : m_document(std::move(document)), m_isInResult(isInResult)
{
}

std::optional<ConfigDocument> ConfigDocument::read(const QString& path, DocumentError& error)
{
    std::optional<Value> document = DocumentFile::read(path, error);
    if (!document)
        return std::nullopt;
    error = {path, 1, 1, {}};
    std::optional<ConfigDocument> config = of(*std::move(document), error);
    if (config)
        error = {path, 0, 0, {}};
    return config;
}

std::optional<ConfigDocument> ConfigDocument::of(Value document, DocumentError& error)
{
    const bool isResult = document.isMember("result") && document.isMember("algorithmId");
    if (!document.isObject())
        error.reason = QStringLiteral("the document is no object");
    else if (isResult && !document.isMember(kConfiguration))
        error.reason = QStringLiteral("nothing was saved, so there is no configuration");
    else if (isResult && !document[kConfiguration].isObject())
        error.reason = QStringLiteral("its \"channelAbilityPO\" is no object");
    else
        return ConfigDocument(std::move(document), isResult);
    return std::nullopt;
}

QString ConfigDocument::pointer() const
{
    return m_isInResult ? QStringLiteral("/channelAbilityPO") : QString();
}

const Value& ConfigDocument::config() const
{
    return m_isInResult ? m_document[kConfiguration] : m_document;
}

Value ConfigDocument::takeConfig()
{
    return std::move(m_isInResult ? m_document[kConfiguration] : m_document);
}

Value ConfigDocument::with(Value config) &&
{
    if (!m_isInResult)
        return config;
    m_document[kConfiguration] = std::move(config);
    return std::move(m_document);
}
