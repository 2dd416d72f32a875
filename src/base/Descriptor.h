// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <unistd.h>

#include <system_error>
#include <utility>

/// Owns a file descriptor of the system, or none.
class Descriptor final {
public:
    Descriptor() = default;
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    Descriptor(Descriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    Descriptor& operator=(Descriptor other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }

    int number() const { return m_number; } ///< -1 when there is none.
    explicit operator bool() const { return m_number >= 0; }

private:
    int m_number = -1;
};

/// What the system says about an errno, without a full stop.
inline QString systemMessage(int error)
{
    return QString::fromLocal8Bit(std::generic_category().message(error).c_str());
}
