#pragma once

/// Judges what was measured by its goal, and remembers what missed it.
class Verdicts
{
public:
    /// "met" or "missed", for the last column of a table.
    const char* of(double measured, double goal)
    {
        const bool isMet = measured <= goal;
        m_missed += isMet ? 0 : 1;
        return isMet ? "met" : "missed";
    }
    int missed() const { return m_missed; }

private:
    int m_missed = 0;
};
