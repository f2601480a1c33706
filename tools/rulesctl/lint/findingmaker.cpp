#include "tools/rulesctl/lint/findingmaker.h"

#include "tools/rulesctl/lint/lintcodes.h"
#include "tools/rulesctl/lint/suggestion.h"

Finding& FindingMaker::add(Findings& findings, std::string_view code, const std::string& pointer,
                           const kql::Json::Value& found, const QString& message)
{
    Finding finding;
    finding.code = std::string(code);
    finding.severity = LintCodes::severityOf(code);
    finding.pointer = pointer;
    finding.found = found;
    finding.message = message;
    findings.push_back(std::move(finding));
    return findings.back();
}

void FindingMaker::expect(Finding& finding, const QString& text, const QStringList& expected)
{
    finding.expected = expected;
    finding.suggestion = Suggestion::nearest(text, expected);
    if (!finding.suggestion.isNull())
        finding.message += QStringLiteral("; did you mean %1?").arg(quoted(finding.suggestion));
}

QString FindingMaker::quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}
