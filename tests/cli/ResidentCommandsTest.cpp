// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/ControlServer.h"
#include "tests/TestFiles.h"
#include "tests/desktop/Client.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The real front program, and in this process the resident one it talks to.
class ResidentCommandsTest : public testing::Test {
protected:
    struct Finished {
        int exitCode;
        QByteArray output;
        QByteArray errors;
    };

    void SetUp() override { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(directory.path())); }

    void TearDown() override
    {
        answer = {};
        QCoreApplication::processEvents();
    }

    void serve()
    {
        auto listening = ControlServer::listen(Folders::ofUser());
        ASSERT_TRUE(listening) << listening.error().message.toStdString();
        server = *std::move(listening);
        server->serve({.showPanel = [] {},
            .capture =
                [this](CaptureKind) {
                    auto [pending, toAnswer] = Pending<CaptureReport>::ask();
                    if (report)
                        toAnswer(*report);
                    answer = std::move(toAnswer);
                    return std::move(pending);
                },
            .quit = [] {}});
    }

    std::unique_ptr<Client> start(const QString& arguments, QString program = {}) const
    {
        if (program.isEmpty())
            program = QCoreApplication::applicationDirPath() + u"/pixmallow"_s;
        auto client = std::make_unique<Client>(QProcessEnvironment::systemEnvironment());
        const auto started = client->start(program, arguments.split(u' ', Qt::SkipEmptyParts));
        EXPECT_TRUE(started) << started.error().message.toStdString();
        return client;
    }

    static Finished end(Client& client)
    {
        EXPECT_TRUE(client.waitForEnd());
        return {client.exitCode(), client.output(), client.errors()};
    }

    Finished run(const QString& arguments, const QString& program = {}) const
    {
        return end(*start(arguments, program));
    }

    QTemporaryDir directory;
    std::unique_ptr<ControlServer> server;
    std::optional<CaptureReport> report; ///< Known at once if there is one.
    Pending<CaptureReport>::Answer answer;
};

} // namespace

TEST_F(ResidentCommandsTest, captureEndsAsTheReportSays)
{
    serve();
    const QString text
        = QString(2'000'000, u'漢') + u"\nend"_s; // More than a socket takes at once.
    struct Case {
        CaptureReport report;
        Finished expected;
    };
    const Case cases[] {
        {{CaptureReport::Outcome::Done, {}, u"/tmp/ä b.png"_s}, {0, "/tmp/ä b.png\n", {}}},
        {{CaptureReport::Outcome::Done, u"Not copied."_s, u"/a.png"_s},
            {0, "/a.png\n", "pixmallow: Not copied.\n"}},
        {{CaptureReport::Outcome::Done, {}, {}, {}, 1, {}, {}, text},
            {0, text.toUtf8() + '\n', {}}},
        {{CaptureReport::Outcome::Cancelled}, {1, {}, {}}},
        {{CaptureReport::Outcome::Failed, u"The disk is full."_s},
            {2, {}, "pixmallow: The disk is full.\n"}},
        {{CaptureReport::Outcome::Busy}, {3, {}, "pixmallow: Another capture is running.\n"}},
    };
    for (const auto& [given, expected] : cases) {
        report = given;
        const auto finished = run(u"capture text --wait"_s);
        EXPECT_EQ(finished.exitCode, expected.exitCode);
        EXPECT_TRUE(finished.output == expected.output) << finished.output.left(99).toStdString();
        EXPECT_EQ(finished.errors, expected.errors) << finished.errors.toStdString();
    }
    EXPECT_EQ(run(u"capture region"_s).exitCode, 3); // Still busy, and known at once.

    report = CaptureReport {
        CaptureReport::Outcome::Done, {}, u"/a.png"_s, {640, 480}, 2, u"Editor"_s, u"7"_s, {}};
    const auto finished = run(u"capture region --wait --json"_s);
    EXPECT_EQ(finished.output.count('\n'), 1);
    EXPECT_EQ(QJsonDocument::fromJson(finished.output).object(),
        QJsonObject::fromVariantMap(Control::valuesOf(*report)));
}

TEST_F(ResidentCommandsTest, captureReturnsWhenAcceptedUnlessItWaits)
{
    serve();
    const auto accepted = run(u"capture screen"_s);
    EXPECT_EQ(accepted.exitCode, 0);
    EXPECT_EQ(accepted.output + accepted.errors, QByteArray());
    EXPECT_TRUE(answer); // It still runs.

    answer = {};
    const auto waiting = start(u"capture region --wait"_s);
    EXPECT_TRUE(waitFor([this] { return bool(answer); }));
    EXPECT_TRUE(waiting->isRunning());
    kill(pid_t(waiting->pid()), SIGINT);
    EXPECT_EQ(end(*waiting).exitCode, 128 + SIGINT);
    EXPECT_TRUE(answer); // The capture goes on without it.
    answer(CaptureReport {CaptureReport::Outcome::Done});

    const auto abandoned = start(u"capture region --wait"_s);
    EXPECT_TRUE(waitFor([this] { return bool(answer); }));
    server.reset();
    const auto finished = end(*abandoned);
    EXPECT_EQ(finished.exitCode, 2);
    EXPECT_EQ(finished.errors, "pixmallow: Pixmallow ended before it answered.\n");
}

/// The front program in a folder where a script stands for the resident one.
class StartTest : public ResidentCommandsTest {
protected:
    void SetUp() override
    {
        ResidentCommandsTest::SetUp();
        ASSERT_TRUE(QDir().mkpath(programs));
        ASSERT_TRUE(QFile::copy(QCoreApplication::applicationDirPath() + u"/pixmallow"_s, front));
    }

    void putResident(const QByteArray& script) const
    {
        const QString resident = programs + u"/pixmallow-desktop"_s;
        put(resident, "#!/bin/sh\ncd \"${0%/*}\"\n" + script);
        QFile::setPermissions(resident, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString programs = directory.filePath(u"programs"_s);
    QString front = programs + u"/pixmallow"_s;
};

TEST_F(StartTest, becomesTheResidentProgramOrSaysWhyNot)
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    for (const auto& arguments : {u""_s, u"capture region"_s}) {
        const auto finished = run(arguments, front);
        EXPECT_EQ(finished.exitCode, 2);
        EXPECT_TRUE(finished.errors.contains("pixmallow-desktop")) << finished.errors.toStdString();
    }
    qputenv("PATH", path);

    putResident("echo $*\nexit 9\n");
    const auto launched = run(u"--replace --background"_s, front);
    EXPECT_EQ(launched.exitCode, 9);
    EXPECT_EQ(launched.output, "--replace --background\n");
    const auto failed = run(u"capture region --wait"_s, front);
    EXPECT_EQ(failed.exitCode, 2);
    EXPECT_EQ(failed.output, QByteArray());
    EXPECT_TRUE(failed.errors.contains("exit code 9")) << failed.errors.toStdString();
}

TEST_F(StartTest, captureStartsTheResidentProgramDetachedAndWaitsUntilItAnswers)
{
    putResident("session=$(cut -d' ' -f6 /proc/$$/stat)\n"
                "echo $* $((session == $$)) $(readlink /proc/$$/fd/[012]) > record.part\n"
                "mv record.part record\n");
    const auto client = start(u"capture region --wait"_s, front);
    const QString record = programs + u"/record"_s;
    EXPECT_TRUE(waitFor([&] { return QFile::exists(record); }));
    EXPECT_EQ(contentOf(record), "--background 1 /dev/null /dev/null /dev/null\n");
    EXPECT_FALSE(waitFor([&] { return !client->isRunning(); }, std::chrono::milliseconds(100)));
    report = CaptureReport {CaptureReport::Outcome::Done, {}, u"/a.png"_s};
    serve();
    const auto finished = end(*client);
    EXPECT_EQ(finished.exitCode, 0) << finished.errors.toStdString();
    EXPECT_EQ(finished.output, "/a.png\n");
}
