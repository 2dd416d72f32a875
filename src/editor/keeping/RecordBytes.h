// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

#include <bit>
#include <cmath>
#include <concepts>

/// Appends numbers, little-endian, and texts.
class RecordWriter final {
public:
    template <std::integral T>
    void number(T value)
    {
        value = qToLittleEndian(value);
        m_bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
    }
    void real(double value) { number(std::bit_cast<quint64>(value)); }
    void text(const QString& value)
    {
        const QByteArray utf8 = value.toUtf8();
        number(quint32(utf8.size()));
        m_bytes.append(utf8);
    }
    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

/// Reads what a RecordWriter wrote. Once something is missing or out of its range, all that follows
/// is 0 or empty, and isGood() tells.
class RecordReader final {
public:
    explicit RecordReader(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    bool isGood() const { return m_isGood; }
    qsizetype left() const { return m_rest.size(); } ///< Bytes.
    void require(bool holds)
    {
        m_isGood = m_isGood && holds;
        if (!m_isGood)
            m_rest = {};
    }

    template <std::integral T>
    T number()
    {
        require(m_rest.size() >= qsizetype(sizeof(T)));
        if (!m_isGood)
            return 0;
        const T value = qFromLittleEndian<T>(m_rest.data());
        m_rest = m_rest.sliced(sizeof(T));
        return value;
    }
    double real(double least, double most)
    {
        const auto value = std::bit_cast<double>(number<quint64>());
        require(value >= least && value <= most); // Neither is true of a NaN.
        return m_isGood ? value : 0;
    }
    /// How many things follow that take so many bytes at least.
    qsizetype count(qsizetype bytesEach)
    {
        const auto value = qsizetype(number<quint32>());
        require(value <= m_rest.size() / bytesEach);
        return m_isGood ? value : 0;
    }
    QString text()
    {
        const qsizetype size = count(1);
        const QString value = QString::fromUtf8(m_rest.first(size));
        m_rest = m_rest.sliced(size);
        return value;
    }

private:
    QByteArrayView m_rest;
    bool m_isGood = true;
};
