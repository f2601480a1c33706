#include "host/textstream.h"

#include <limits>
#include <utility>

namespace kql
{
namespace Json
{

namespace
{

constexpr std::size_t kFirstRoom = 1024;
constexpr std::size_t kMostRoom = std::numeric_limits<int>::max();

} // namespace

QString TextStream::take()
{
    m_text.truncate(m_text.size() - int(m_end - m_next));
    m_text.squeeze();
    return std::move(m_text);
}

void TextStream::grow(std::size_t count)
{
    const std::size_t room = std::size_t(m_text.size());
    const std::size_t used = room - std::size_t(m_end - m_next);
    const std::size_t wanted = std::max({kFirstRoom, used + count, room + room / 2});
    m_text.resize(int(std::min(wanted, kMostRoom))); // throws when that is too much
    auto* const begin = reinterpret_cast<Ch*>(m_text.data());
    m_next = begin + used;
    m_end = begin + m_text.size();
}

} // namespace Json
} // namespace kql
