#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// Standard input line by line, each as soon as it is there; only one is held.
class InputLines
{
public:
    /// Reads the next one into @p line, without its end; false at the end and when reading fails.
    bool next(QByteArray& line);
    /// Of the last line, from 1.
    int number() const { return m_number; }
    /// Whether the last line was longer than a client's message may be; it was read past then, and
    /// is empty.
    bool isTooLong() const { return m_isTooLong; }
    /// Why reading failed; empty when it did not.
    const QString& fault() const { return m_fault; }

private:
    bool fill();
    void take(QByteArray& line, std::size_t count);

    std::string m_buffer; ///< read, but not yet given out
    std::size_t m_at = 0; ///< where in it what is left begins
    bool m_hasEnded = false;
    int m_number = 0;
    bool m_isTooLong = false;
    QString m_fault;
};
