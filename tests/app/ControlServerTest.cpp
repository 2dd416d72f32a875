// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/ControlServer.h"
#include "base/ControlClient.h"
#include "base/LocalSocket.h"
#include "tests/desktop/Waiting.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QByteArray accepted = Control::toLine(Control::Answer(Control::Accepted {}));
const QByteArray panel = Control::toLine(Control::ShowPanel {});

/// A client that may do anything, on the thread of the server.
class RawClient final {
public:
    explicit RawClient(const Folders& folders)
        : m_socket(**LocalSocket::connect(Control::socketPath(folders), patience))
    {
    }

    void send(const QByteArray& bytes)
    {
        qsizetype sent = 0;
        EXPECT_TRUE(waitFor([&] { // Ends early when the server hangs up.
            const auto count = ::send(m_socket.number(), bytes.constData() + sent,
                std::size_t(bytes.size() - sent), MSG_NOSIGNAL | MSG_DONTWAIT);
            sent += std::max<ssize_t>(count, 0);
            return sent == bytes.size() || (count < 0 && errno != EAGAIN);
        }));
    }

    /// What came until the server hung up.
    QByteArray answer()
    {
        EXPECT_TRUE(waitFor([this] { return hasEnded(); }));
        return m_received;
    }

    bool hasEnded()
    {
        char bytes[4096];
        const auto count = recv(m_socket.number(), bytes, sizeof bytes, MSG_DONTWAIT);
        m_received.append(bytes, std::max<ssize_t>(count, 0));
        return count == 0 || (count < 0 && errno != EAGAIN);
    }

private:
    Descriptor m_socket;
    QByteArray m_received;
};

class ControlServerTest : public testing::Test {
protected:
    void serve(std::chrono::milliseconds mostPerRequest = std::chrono::seconds(5))
    {
        auto listening = ControlServer::listen(folders);
        ASSERT_TRUE(listening) << listening.error().message.toStdString();
        server = *std::move(listening);
        server->serve({.showPanel = [this] { ++panels; },
                          .capture =
                              [this](CaptureKind kind) {
                                  kinds.push_back(kind);
                                  if (busy)
                                      return Pending<CaptureReport>::answered(
                                          CaptureReport {CaptureReport::Outcome::Busy});
                                  auto [pending, answer] = Pending<CaptureReport>::ask();
                                  answers.push_back(std::move(answer));
                                  return std::move(pending);
                              },
                          .quit = [this] { ++quits; }},
            mostPerRequest);
    }

    void TearDown() override
    {
        answers.clear();
        QCoreApplication::processEvents(); // Whoever waited goes on.
    }

    QTemporaryDir directory;
    Folders folders {.runtime = directory.path() + u"/run"_s};
    std::unique_ptr<ControlServer> server;
    std::vector<CaptureKind> kinds;
    std::vector<Pending<CaptureReport>::Answer> answers;
    bool busy = false;
    int panels = 0;
    int quits = 0;
};

/// Starts a process that takes the resident's place if it can, and keeps it. Its outcome is '1' if
/// it could, '0' if another one was there.
pid_t startOwner(const Folders& folders, int outcome)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const auto server = ControlServer::listen(folders);
    const bool exists = !server && server.error().kind == Error::Kind::Exists;
    (void)!write(outcome, server ? "1" : exists ? "0" : "?", 1);
    for (;;)
        pause();
}

} // namespace

TEST_F(ControlServerTest, onlyOneProgramIsResidentUntilItDies)
{
    int outcome[2];
    ASSERT_EQ(pipe(outcome), 0);
    std::vector<pid_t> owners;
    for (int i = 0; i < 8; ++i)
        owners.push_back(startOwner(folders, outcome[1]));
    QByteArray outcomes(8, ' ');
    for (auto& each : outcomes)
        ASSERT_EQ(read(outcome[0], &each, 1), 1);
    EXPECT_EQ(outcomes.count('1'), 1) << outcomes.toStdString();
    EXPECT_EQ(outcomes.count('0'), 7) << outcomes.toStdString();

    for (const pid_t owner : owners) {
        kill(owner, SIGKILL);
        waitpid(owner, nullptr, 0);
    }
    EXPECT_TRUE(QFile::exists(Control::socketPath(folders))); // Stale, and in nobody's way.
    EXPECT_FALSE(ControlClient::connect(folders)->has_value());
    serve();
    EXPECT_EQ(ControlServer::listen(folders).error().kind, Error::Kind::Exists);
    RawClient client(folders);
    client.send(panel);
    EXPECT_EQ(client.answer(), accepted);
    EXPECT_EQ(panels, 1);
    server.reset();
    EXPECT_FALSE(QFile::exists(Control::socketPath(folders)));
}

TEST_F(ControlServerTest, isClosedToOthersAndNamesAPathThatIsTooLong)
{
    serve();
    struct stat socket {
    }, folder {};
    ASSERT_EQ(stat(qPrintable(Control::socketPath(folders)), &socket), 0);
    ASSERT_EQ(stat(qPrintable(folders.runtime), &folder), 0);
    EXPECT_EQ(socket.st_mode & 0777, 0600u);
    EXPECT_EQ(folder.st_mode & 0777, 0700u);

    const Folders deep {.runtime = directory.path() + u'/' + QString(100, u'd')};
    const auto refused = ControlServer::listen(deep);
    ASSERT_FALSE(refused);
    EXPECT_TRUE(refused.error().message.contains(u"bytes"_s));
    EXPECT_FALSE(ControlClient::connect(deep));
}

TEST_F(ControlServerTest, clientsThatMisbehaveHarmNobody)
{
    serve(std::chrono::milliseconds(300));
    RawClient silent(folders), half(folders), garbage(folders), endless(folders), chatty(folders);
    half.send(panel.chopped(1));
    garbage.send("GET / HTTP/1.1\r\n");
    endless.send(QByteArray(1 << 20, 'x'));
    chatty.send(Control::toLine(Control::Capture {CaptureKind::Region, true}));
    EXPECT_TRUE(waitFor([this] { return answers.size() == 1; }));
    chatty.send("more");
    { // Gone before the request was whole, and before its answer.
        RawClient left(folders), leftWaiting(folders);
        left.send("{");
        leftWaiting.send(Control::toLine(Control::Capture {CaptureKind::Window, true}));
        EXPECT_TRUE(waitFor([this] { return answers.size() == 2; }));
    }
    RawClient good(folders);
    good.send(panel);
    EXPECT_EQ(good.answer(), accepted);

    EXPECT_EQ(silent.answer(), QByteArray());
    EXPECT_EQ(half.answer(), QByteArray());
    EXPECT_EQ(chatty.answer(), QByteArray());
    for (auto* client : {&garbage, &endless}) {
        const auto answer = Control::answerFrom(client->answer());
        ASSERT_TRUE(answer);
        EXPECT_EQ(Control::exitCode(std::get<CaptureReport>(*answer)), 2);
    }
    EXPECT_TRUE(waitFor([this] { return server->children().isEmpty(); }));
    EXPECT_EQ(panels, 1);
    for (auto& answer : answers)
        answer(CaptureReport {CaptureReport::Outcome::Done}); // Nobody is there to hear it.
}

TEST_F(ControlServerTest, aCrowdIsServedThoughManyOfItHang)
{
    serve(std::chrono::milliseconds(300));
    std::vector<std::unique_ptr<RawClient>> hanging, asking;
    for (int i = 0; i < 150; ++i)
        hanging.push_back(std::make_unique<RawClient>(folders));
    for (int i = 0; i < 100; ++i) {
        asking.push_back(std::make_unique<RawClient>(folders));
        asking.back()->send(panel);
    }
    for (auto& client : asking)
        EXPECT_EQ(client->answer(), accepted);
    EXPECT_EQ(panels, 100);
    for (auto& client : hanging)
        EXPECT_EQ(client->answer(), QByteArray());
}

TEST_F(ControlServerTest, answersACaptureAtItsEndOnlyToThoseWhoWait)
{
    serve();
    RawClient waiting(folders), other(folders), refused(folders), unlucky(folders);
    waiting.send(Control::toLine(Control::Capture {CaptureKind::Delayed, true}));
    EXPECT_TRUE(waitFor([this] { return kinds.size() == 1; }));
    other.send(Control::toLine(Control::Capture {CaptureKind::Text, false}));
    EXPECT_EQ(other.answer(), accepted);
    EXPECT_EQ(kinds, (std::vector {CaptureKind::Delayed, CaptureKind::Text}));
    EXPECT_FALSE(waiting.hasEnded());
    const CaptureReport done {CaptureReport::Outcome::Done, {}, u"/tmp/a.png"_s, {3, 2}};
    answers[0](done);
    EXPECT_EQ(waiting.answer(), Control::toLine(Control::Answer(done)));

    unlucky.send(Control::toLine(Control::Capture {CaptureKind::Region, true}));
    EXPECT_TRUE(waitFor([this] { return kinds.size() == 3; }));
    answers.clear();
    EXPECT_EQ(unlucky.answer(),
        Control::toLine(Control::Answer(CaptureReport {CaptureReport::Outcome::Cancelled})));

    busy = true; // What is known at once is said even to those who do not wait.
    refused.send(Control::toLine(Control::Capture {CaptureKind::Region, false}));
    EXPECT_EQ(refused.answer(),
        Control::toLine(Control::Answer(CaptureReport {CaptureReport::Outcome::Busy})));
}

TEST_F(ControlServerTest, whoAsksItToQuitHearsOfItsEndWhenItsPlaceIsFree)
{
    serve();
    RawClient waiting(folders);
    waiting.send(Control::toLine(Control::Capture {CaptureKind::Region, true}));
    EXPECT_TRUE(waitFor([this] { return answers.size() == 1; }));

    Result<void> early, late;
    std::unique_ptr<ControlServer> next;
    const std::unique_ptr<QThread> asker(QThread::create([&] {
        early = askResidentToQuitAndWait(folders, std::chrono::milliseconds(100));
        late = askResidentToQuitAndWait(folders, patience);
    }));
    asker->start();
    EXPECT_TRUE(waitFor([this] { return quits == 2; }));
    EXPECT_FALSE(asker->wait(QDeadlineTimer(50))); // Quitting takes a while.
    server.reset();
    EXPECT_TRUE(asker->wait(QDeadlineTimer(patience)));
    EXPECT_FALSE(early);
    EXPECT_TRUE(late);
    EXPECT_EQ(waiting.answer(), QByteArray());
    EXPECT_TRUE(askResidentToQuitAndWait(folders, patience)); // There is none.
    serve();
}
