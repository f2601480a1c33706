#pragma once

#include "host/api/kqhostexport.h"
#include "host/json/fwd.h"

#include <QString>

#include <string_view>

namespace kql
{
namespace Json
{

/**
 * Makes a Value of JSON text. A byte-order mark and comments in the manner of C++ are accepted;
 * everything else that is not one JSON value in valid UTF-8 is refused, and so are numbers beyond
 * a double and nesting deeper than 512. Of members with the same name the last counts, in the
 * place of the first.
 */
class KQHOST_EXPORT Reader
{
public:
    /**
     * On failure returns false and leaves @p root null. Comments are dropped in either case:
     * hosts pass @p collectComments, so it is kept in the call.
     */
    bool parse(std::string_view utf8, Value& root, bool collectComments = true);
    bool parse(const QString& text, Value& root, bool collectComments = true);

    /// What was wrong in the last text, empty if nothing.
    QString errorText() const { return m_errorText; }
    /// Where it was, counted from 1 in lines and characters; 0 if nothing was wrong.
    int errorLine() const { return m_errorLine; }
    int errorColumn() const { return m_errorColumn; }

private:
    struct Fault;

    static Fault parsed(std::string_view utf8, Value& root);
    void report(std::string_view utf8, const Fault& fault);

    QString m_errorText;
    int m_errorLine = 0;
    int m_errorColumn = 0;
};

} // namespace Json
} // namespace kql
