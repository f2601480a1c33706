#pragma once

#include <QString>

/**
 * Standard output, for what a command was asked for. Once a write fails, because a disk is full or
 * a pipe was closed, nothing more is written, and fault() says why.
 */
class Output
{
public:
    /// False when this or an earlier write failed.
    bool write(const QByteArray& bytes);
    /// As UTF-8, with a line's end.
    bool writeLine(const QString& line) { return write(line.toUtf8() + '\n'); }
    /// Hands on what was written so far.
    bool flush();
    /// Whether somebody looks at it, who has not asked for plain text.
    bool isColoured() const;
    /// Whether somebody looks at it.
    bool isTerminal() const;
    bool isBroken() const { return !m_fault.isEmpty(); }
    /// Empty for none.
    const QString& fault() const { return m_fault; }

private:
    QString m_fault;
};

/// Standard error, for complaints and progress.
namespace Complaint
{

/// One line, as it is.
void say(const QString& line);
/// Text without a line's end.
void show(const QString& text);
/// Whether somebody looks at it.
bool isTerminal();

} // namespace Complaint
