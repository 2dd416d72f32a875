// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/SoundServer.h"

#include "base/Words.h"

#include <QDeadlineTimer>

#include <pulse/pulseaudio.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longestWait = 3s;

/// A connection whose events are handled in run(), on the thread that calls it.
class Connection final {
public:
    Connection()
        : m_loop(pa_mainloop_new())
        , m_context(pa_context_new(pa_mainloop_get_api(m_loop.get()), "Pixmallow"))
        // As for a sound that is played, a server may be started for it.
        , m_failed(pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0)
    {
    }
    ~Connection() { pa_context_disconnect(m_context.get()); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Until there is a name, a failure, or no time left.
    void run()
    {
        const QDeadlineTimer deadline(longestWait);
        while (!m_failed && m_name.isEmpty() && !deadline.hasExpired()) {
            pa_mainloop_prepare(m_loop.get(), int(deadline.remainingTime()) * 1000);
            m_failed = pa_mainloop_poll(m_loop.get()) < 0 || pa_mainloop_dispatch(m_loop.get()) < 0;
            followState();
        }
    }

    QString name() const { return m_name; }
    QString problem() const
    {
        const int error = pa_context_errno(m_context.get());
        return m_failed && error ? QString::fromUtf8(pa_strerror(error)) : Words::tr("No answer");
    }

private:
    struct Free {
        void operator()(pa_mainloop* loop) const { pa_mainloop_free(loop); }
        void operator()(pa_context* context) const { pa_context_unref(context); }
        void operator()(pa_operation* operation) const { pa_operation_unref(operation); }
    };

    void followState()
    {
        const auto state = pa_context_get_state(m_context.get());
        m_failed = m_failed || !PA_CONTEXT_IS_GOOD(state);
        if (state != PA_CONTEXT_READY || m_question)
            return;
        m_question.reset(pa_context_get_server_info(
            m_context.get(),
            [](pa_context*, const pa_server_info* info, void* self) {
                auto& connection = *static_cast<Connection*>(self);
                if (info && info->server_name)
                    connection.m_name = QString::fromUtf8(info->server_name);
                connection.m_failed = connection.m_name.isEmpty();
            },
            this));
    }

    std::unique_ptr<pa_mainloop, Free> m_loop;
    std::unique_ptr<pa_context, Free> m_context;
    std::unique_ptr<pa_operation, Free> m_question;
    QString m_name;
    bool m_failed;
};

} // namespace

Result<QString> findSoundServer()
{
    Connection connection;
    connection.run();
    if (!connection.name().isEmpty())
        return connection.name();
    return Error::failed(
        Words::tr("No sound server can be reached: %1.").arg(connection.problem()));
}
