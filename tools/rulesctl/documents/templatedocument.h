#pragma once

#include "host/json/value.h"
#include "tools/rulesctl/algorithm.h"

#include <optional>

class Arguments;
struct DocumentError;

/// A template, read once for all configurations, and the algorithm that goes with it.
struct TemplateDocument {
    QString file;
    kql::Json::Value document;
    Algorithm algorithm;

    /// As --template and --algorithm say; nothing with @p error where it is no template, or one
    /// that the rules window refuses.
    static std::optional<TemplateDocument> read(const Arguments& arguments, DocumentError& error);
};
