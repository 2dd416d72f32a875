// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <vector>

/// What text stands on in a picture: pages, panels, buttons, each a connected area of about one
/// grey. Letters and small drawings are of no ground.
class Grounds final {
public:
    /// @param grey Format_Grayscale8.
    /// @param scale pixels per point.
    Grounds(const QImage& grey, double scale);

    /// The ground that a pixel is part of, by number; 0 if it is of none.
    int at(int x, int y) const
    {
        const int owner = m_owners[std::size_t(y) * std::size_t(m_width) + std::size_t(x)];
        return owner == seen ? 0 : owner;
    }

    uchar greyOf(int ground) const { return m_greys[std::size_t(ground)]; }

private:
    static constexpr quint16 seen = 1; ///< In place of a ground's number, that it is of none.

    int m_width;
    std::vector<quint16> m_owners; ///< Of each pixel; 0 until it was seen.
    std::vector<uchar> m_greys {0, 0}; ///< By number.

    friend class GroundFinder;
};
