#include "host/json/namehash.h"

#include <QRandomGenerator>

#include <cstring>

namespace kql
{
namespace Json
{

namespace
{

struct Secret {
    std::uint64_t first = QRandomGenerator::system()->generate64();
    std::uint64_t second = QRandomGenerator::system()->generate64();
};

std::uint64_t turned(std::uint64_t bits, int count) noexcept
{
    return (bits << count) | (bits >> (64 - count));
}

/// SipHash-1-3: who does not know the secret finds no texts that share a hash faster than by
/// chance.
class SipHash
{
public:
    explicit SipHash(const Secret& secret) noexcept
        : m_a(secret.first ^ 0x736f6d6570736575U),
          m_b(secret.second ^ 0x646f72616e646f6dU),
          m_c(secret.first ^ 0x6c7967656e657261U),
          m_d(secret.second ^ 0x7465646279746573U)
    {
    }

    void add(std::uint64_t word) noexcept
    {
        m_d ^= word;
        mix();
        m_a ^= word;
    }

    std::uint64_t result() noexcept
    {
        m_c ^= 0xFFU;
        for (int i = 0; i < 3; ++i)
            mix();
        return m_a ^ m_b ^ m_c ^ m_d;
    }

private:
    void mix() noexcept
    {
        m_a += m_b;
        m_c += m_d;
        m_b = turned(m_b, 13) ^ m_a;
        m_d = turned(m_d, 16) ^ m_c;
        m_a = turned(m_a, 32) + m_d;
        m_c += m_b;
        m_b = turned(m_b, 17) ^ m_c;
        m_d = turned(m_d, 21) ^ m_a;
        m_c = turned(m_c, 32);
    }

    std::uint64_t m_a;
    std::uint64_t m_b;
    std::uint64_t m_c;
    std::uint64_t m_d;
};

} // namespace

std::uint64_t hashOfName(std::string_view name) noexcept
{
    static const Secret secret;
    SipHash hash(secret);
    std::uint64_t last = std::uint64_t(name.size()) << 56;
    std::uint64_t word = 0;
    for (; name.size() >= sizeof word; name.remove_prefix(sizeof word)) {
        std::memcpy(&word, name.data(), sizeof word);
        hash.add(word);
    }
    for (std::size_t at = 0; at < name.size(); ++at)
        last |= std::uint64_t(static_cast<unsigned char>(name[at])) << (8 * at);
    hash.add(last);
    return hash.result();
}

} // namespace Json
} // namespace kql
