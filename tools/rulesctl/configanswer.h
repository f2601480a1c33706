#pragma once

#include "tools/rulesctl/documents/documenterror.h"
#include "tools/rulesctl/exitstatus.h"

#include <QByteArray>
#include <optional>

/// What a command has to say of one configuration.
struct ConfigAnswer {
    ExitStatus status = ExitStatus::Clean;
    QString word;             ///< of the status: "ok", "fails", …
    kql::Json::Value details; ///< an object: what JSON has between "status" and "error"
    QString text;             ///< behind the file's name, besides the word
    std::optional<DocumentError> error;

    /// This with its details, which say nothing, for a document that cannot be read for @p why.
    ConfigAnswer& asUnreadable(const DocumentError& why);
    /// "status", the details and "error", behind the members of @p before.
    kql::Json::Value toJson(kql::Json::Value before) const;
    /// "FILE: word: text" with its line's end; empty for a document that cannot be read, of which
    /// its error tells.
    QByteArray toLine(const QString& file, bool isColoured) const;
};
