#pragma once

#include "host/json/value.h"

#include <QString>
#include <QStringList>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// One thing that lint has to say about a template or a configuration.
struct Finding {
    enum class Severity { Warning, Error };
    enum class Document { Template, Config };

    std::string code; ///< one of LintCodes
    Severity severity = Severity::Error;
    Document document = Document::Template;
    std::string pointer;  ///< RFC 6901, UTF-8
    bool isAtKey = false; ///< the position is that of the member's name, not of its value
    std::optional<std::size_t> offset =
        {};                 ///< in the text, where a pointer is not enough to find it
    int line = 0;           ///< from 1; 0 as long as nobody looked for it
    int column = 0;         ///< from 1, in code points
    kql::Json::Value found; ///< null where something is missing
    std::optional<QStringList> expected;
    QString suggestion; ///< null for none
    QString message;

    bool isError() const { return severity == Severity::Error; }
    /// As scripts read it.
    kql::Json::Value toJson() const;
    /// As compilers print it, of the document in @p file.
    QString toLine(const QString& file, bool isColoured) const;
};

using Findings = std::vector<Finding>;
