// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <coroutine>
#include <functional>
#include <memory>

/// The asking half of one question: co_await it, or be called back, or wait(), for the one answer.
/// Both halves live on the main thread.
template <typename T>
class [[nodiscard]] Pending {
    struct Exchange {
        std::optional<Result<T>> answer;
        std::function<void()> resume; ///< Goes on with the asker.
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
            if (exchange->resume)
                queue(std::exchange(exchange->resume, nullptr));
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
    void await_suspend(std::coroutine_handle<> asker)
    {
        m_exchange->resume = [asker] { asker.resume(); };
    }
    Result<T> await_resume() { return *std::move(m_exchange->answer); }

    /// Calls back with the answer, from the event loop. For widgets, which are no coroutines.
    void then(std::function<void(Result<T>)> callback) &&
    {
        auto resume = [exchange = m_exchange, callback = std::move(callback)] {
            callback(*std::move(exchange->answer));
        };
        if (await_ready())
            queue(std::move(resume));
        else
            m_exchange->resume = std::move(resume);
    }

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

    /// The answerer finishes its event handler first.
    static void queue(std::function<void()> resume)
    {
        QMetaObject::invokeMethod(qApp, std::move(resume), Qt::QueuedConnection);
    }

    std::shared_ptr<Exchange> m_exchange;
};
