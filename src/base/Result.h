// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

/// Why something did not happen. Cancelled is the user's wish and is never shown as a failure;
/// the message of the others is a whole sentence for the user. Exists says that a name is taken, so
/// that the caller may try another.
struct Error {
    enum class Kind { Cancelled, Failed, Exists };

    Kind kind = Kind::Failed;
    QString message;

    static Error cancelled() { return {Kind::Cancelled, {}}; }
    static Error failed(QString message) { return {Kind::Failed, std::move(message)}; }

    bool isCancelled() const { return kind == Kind::Cancelled; }
};

/// Either the value asked for, or the reason there is none.
template <typename T>
class [[nodiscard]] Result {
public:
    using Value = T;

    Result(T value)
        : m_state(std::move(value))
    {
    }
    Result(Error error)
        : m_state(std::move(error))
    {
    }

    explicit operator bool() const { return std::holds_alternative<T>(m_state); }
    const T& operator*() const& { return std::get<T>(m_state); }
    T& operator*() & { return std::get<T>(m_state); }
    T&& operator*() && { return std::get<T>(std::move(m_state)); }
    const T* operator->() const { return &std::get<T>(m_state); }
    T* operator->() { return &std::get<T>(m_state); }
    const Error& error() const { return std::get<Error>(m_state); }

private:
    std::variant<T, Error> m_state;
};

/// Done, or the reason it was not.
template <>
class [[nodiscard]] Result<void> {
public:
    using Value = void;

    Result() = default;
    Result(Error error)
        : m_error(std::move(error))
    {
    }

    explicit operator bool() const { return !m_error; }
    const Error& error() const { return *m_error; }

private:
    std::optional<Error> m_error;
};
