#pragma once

#include <QString>
#include <optional>

/// The algorithm that rules are for, as RuleParser::setAlgorithmInfo() takes it.
struct Algorithm {
    int number = 0;
    QString code;

    /// Of "N:CODE", a whole number and a text; nothing for any other text.
    static std::optional<Algorithm> parse(const QString& text);
};
