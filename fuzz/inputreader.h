// Takes a fuzz input apart: numbers from its front, text from what is left.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>

class InputReader
{
public:
    InputReader(const std::uint8_t* data, std::size_t size) : m_next(data), m_left(size) {}

    bool isEmpty() const { return m_left == 0; }

    /// The next bytes as a number; zeros where the input ends.
    template <typename T>
    T take()
    {
        T value{};
        const std::size_t size = m_left < sizeof value ? m_left : sizeof value;
        if (size != 0)
            std::memcpy(&value, m_next, size);
        skip(size);
        return value;
    }

    /// One of @p count choices.
    std::size_t choose(std::size_t count) { return take<std::uint8_t>() % count; }

    /// The bytes up to the next @p separator, which is taken too.
    std::string takeUntil(char separator)
    {
        const auto* const begin = reinterpret_cast<const char*>(m_next);
        const void* const found = m_left != 0 ? std::memchr(begin, separator, m_left) : nullptr;
        const std::size_t size =
            found ? static_cast<std::size_t>(static_cast<const char*>(found) - begin) : m_left;
        std::string text(begin, begin + size);
        skip(found ? size + 1 : size);
        return text;
    }

    std::string takeRest()
    {
        std::string text(m_next, m_next + m_left);
        skip(m_left);
        return text;
    }

private:
    void skip(std::size_t count)
    {
        m_next += count;
        m_left -= count;
    }

    const std::uint8_t* m_next;
    std::size_t m_left;
};
