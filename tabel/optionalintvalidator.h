#pragma once

#include "tabel/intvalidator.h"

/// An IntValidator for edits that may be left empty.
class OptionalIntValidator : public IntValidator
{
    Q_OBJECT

public:
    using IntValidator::IntValidator;

    State validate(QString& text, int& position) const override
    {
        return text.isEmpty() ? Acceptable : IntValidator::validate(text, position);
    }
};
