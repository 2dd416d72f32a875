// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <coroutine>
#include <memory>

/// The asking half of one question: co_await it, or wait(), for the one answer. Both halves live on
/// the main thread.
template <typename T>
class [[nodiscard]] Pending {
    struct Exchange {
        std::optional<Result<T>> answer;
        std::coroutine_handle<> asker;
    };

public:
    /// The answering half. Answers once; if it dies silent, the asker hears Cancelled.
    class Answer {
    public:
        Answer() = default;
        Answer(Answer&&) noexcept = default;
        Answer& operator=(Answer other) noexcept
        {
            std::swap(m_exchange, other.m_exchange); // The one replaced answers Cancelled.
            return *this;
        }
        ~Answer() { (*this)(Error::cancelled()); }

        void operator()(Result<T> result)
        {
            const auto exchange = std::exchange(m_exchange, nullptr);
            if (!exchange)
                return;
            exchange->answer = std::move(result);
            if (exchange->asker) // Queued: the answerer finishes its event handler first.
                QMetaObject::invokeMethod(
                    qApp, [exchange] { exchange->asker.resume(); }, Qt::QueuedConnection);
        }

        /// Whether somebody still waits for this answer.
        explicit operator bool() const { return m_exchange != nullptr; }

    private:
        friend class Pending;
        explicit Answer(std::shared_ptr<Exchange> exchange)
            : m_exchange(std::move(exchange))
        {
        }
        std::shared_ptr<Exchange> m_exchange;
    };

    static std::pair<Pending, Answer> ask()
    {
        auto exchange = std::make_shared<Exchange>();
        return {Pending(exchange), Answer(exchange)};
    }

    /// A question whose answer is known already.
    static Pending answered(Result<T> result)
    {
        auto [pending, answer] = ask();
        answer(std::move(result));
        return std::move(pending);
    }

    bool await_ready() const { return m_exchange->answer.has_value(); }
    void await_suspend(std::coroutine_handle<> asker) { m_exchange->asker = asker; }
    Result<T> await_resume() { return *std::move(m_exchange->answer); }

    /// Runs the event loop until the answer is there: for programs that have nothing else to do.
    Result<T> wait()
    {
        while (!await_ready())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return await_resume();
    }

private:
    explicit Pending(std::shared_ptr<Exchange> exchange)
        : m_exchange(std::move(exchange))
    {
    }
    std::shared_ptr<Exchange> m_exchange;
};
