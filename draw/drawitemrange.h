#pragma once

class DrawItem;

/// Items that lie side by side in an index, with the id that it found them by. Owns none.
class DrawItemRange
{
public:
    struct Entry {
        int id;
        DrawItem* item;
    };

    DrawItemRange(const Entry* begin, const Entry* end) : m_begin(begin), m_end(end) {}

    const Entry* begin() const { return m_begin; }
    const Entry* end() const { return m_end; }

private:
    const Entry* m_begin;
    const Entry* m_end;
};
