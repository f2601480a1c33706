#include "host/json/textstream.h"

#include <utility>

namespace kql
{
namespace Json
{

namespace
{

constexpr std::size_t kFirstRoom = 1024;
constexpr std::size_t kMostRoom = std::size_t(256) << 20;

} // namespace

QString TextStream::take()
{
    if (m_isTooLong)
        return {};
    m_text.truncate(m_text.size() - int(m_end - m_next));
    m_text.squeeze();
    return std::move(m_text);
}

void TextStream::grow(std::size_t count)
{
    const std::size_t room = std::size_t(m_text.size());
    std::size_t used = room - std::size_t(m_end - m_next);
    if (used + count > kMostRoom) {
        m_isTooLong = true;
        used = 0; // what is there is overwritten
    }
    const std::size_t wanted = std::max({kFirstRoom, used + count, room + room / 2});
    m_text.resize(int(std::min(wanted, std::max(kMostRoom, used + count))));
    auto* const begin = reinterpret_cast<Ch*>(m_text.data());
    m_next = begin + used;
    m_end = begin + m_text.size();
}

} // namespace Json
} // namespace kql
