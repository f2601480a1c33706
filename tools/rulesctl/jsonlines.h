#pragma once

#include "tools/rulesctl/documents/documenterror.h"
#include "tools/rulesctl/exitstatus.h"

#include <QByteArray>
#include <QStringList>
#include <functional>

class Output;

/// One object of standard input.
struct JsonLine {
    kql::Json::Value object;
    QByteArray text; ///< as it was read, without the line's end
    int number = 0;  ///< from 1

    /// Where it is, for what is wrong with a document in it.
    DocumentError place() const;
};

/**
 * Objects on standard input, a line each, answered by a line each, in the order of input and as
 * soon as each is there. What is no such object is answered, too; blank lines are skipped.
 */
namespace JsonLines
{

/// The members of the answer behind "id".
using Answer = std::function<kql::Json::Value(JsonLine& line)>;

/// Answers each line with an "id" that is text or number and with objects called @p documents.
/// Clean when each line got its answer, whatever that says.
ExitStatus run(const QStringList& documents, const Answer& answer, Output& output);

} // namespace JsonLines
