#include "host/video/picturewatch.h"

#include <algorithm>
#include <utility>

namespace UICommonMdl
{
namespace
{

constexpr std::size_t kMostGaps = 8;
constexpr int kPatience = 3;

} // namespace

PictureWatch::PictureWatch(Clock::duration first, Clock::duration usual, Clock::time_point start)
    : m_first(first), m_usual(usual), m_last(start)
{
}

void PictureWatch::notePicture(Clock::time_point time)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (std::exchange(m_hasPicture, true))
        m_gaps.push_back(time - m_last);
    if (m_gaps.size() > kMostGaps)
        m_gaps.pop_front();
    m_last = time;
}

PictureWatch::Clock::time_point PictureWatch::deadline() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_gaps.empty())
        return m_last + m_first;
    return m_last + std::max(m_usual, kPatience * *std::max_element(m_gaps.begin(), m_gaps.end()));
}

} // namespace UICommonMdl
