#pragma once

#include "tools/rulesctl/lint/finding.h"

#include <string_view>

/// Makes findings about a template, of the severity that their code has.
namespace FindingMaker
{

/// About @p found, which @p pointer leads to. The reference is good until the next one is made.
Finding& add(Findings& findings, std::string_view code, const std::string& pointer,
             const kql::Json::Value& found, const QString& message);

/// Says which texts @p finding could have had in the place of @p text, and suggests the nearest.
void expect(Finding& finding, const QString& text, const QStringList& expected);

/// @p text in quotation marks.
QString quoted(const QString& text);

} // namespace FindingMaker
