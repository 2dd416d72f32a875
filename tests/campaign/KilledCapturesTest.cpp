// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/Soak.h"
#include "tests/TestFiles.h"
#include "tests/campaign/Outcome.h"
#include "tests/resident/ResidentDesktop.h"

#include <QDirIterator>
#include <QJsonArray>

#include <random>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

DesktopOptions smallDesktop()
{
    return {.size = {640, 480}};
}

/// One capture after the other, by a script that writes down what each is reported to be, as long
/// as a process lives: later ones would start the program anew.
const QString script = u"while kill -0 %1 && pixmallow capture screen --wait --json; do :; done"_s;

/// The resident program, killed at some moment while it takes captures, over and over.
class KilledCapturesTest : public ResidentDesktop<smallDesktop> {
protected:
    void start()
    {
        resident = launchResident();
        ASSERT_TRUE(resident);
    }

    /// The reports of captures that were done before the kill.
    QList<QJsonObject> captureUntilKilled(std::chrono::milliseconds time)
    {
        auto capturing = desktop().launch(u"bash"_s, {u"-c"_s, script.arg(resident->pid())});
        EXPECT_TRUE(capturing);
        if (!capturing)
            return {};
        QByteArray lines = (*capturing)->waitForLine("{") + '\n';
        std::ignore = waitFor([] { return false; }, time);
        resident->kill();
        EXPECT_TRUE((*capturing)->waitForEnd());
        pixmallow({u"quit"_s}); // One that a capture between those two started all the same.
        lines += (*capturing)->output();
        QList<QJsonObject> done;
        for (const QByteArray& line : lines.split('\n'))
            if (const auto report = QJsonDocument::fromJson(line).object();
                report[u"outcome"_s] == u"done"_s)
                done.append(report);
        return done;
    }

    QStringList history()
    {
        const auto listed = pixmallow({u"list"_s, u"history"_s, u"--json"_s});
        EXPECT_EQ(listed.exitCode, 0) << listed.errors.toStdString();
        QStringList ids;
        for (const auto& item : QJsonDocument::fromJson(listed.output).array())
            ids.append(item[u"id"_s].toString());
        return ids;
    }

    /// Below the home: what was set aside as damaged, or half written.
    static QStringList remains()
    {
        QStringList names;
        for (QDirIterator it(
                 desktop().home(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
             it.hasNext();) {
            const QString path = it.next();
            if (path.contains(u".damaged-"_s) || path.endsWith(u".part"_s))
                names.append(path);
        }
        return names;
    }

    std::unique_ptr<Client> resident;
};

} // namespace

TEST_F(KilledCapturesTest, loseNothingThatWasReported)
{
    Outcome outcome(u"Kills while captures are taken"_s);
    setPreferences(R"({"welcomed":true})");
    std::mt19937 random(6);
    qsizetype captures = 0;
    ASSERT_NO_FATAL_FAILURE(start());
    QStringList reported;
    for (int round = 0; round < soaked(5); ++round, ++outcome.done) {
        const std::chrono::milliseconds time(random() % 500);
        SCOPED_TRACE(
            testing::Message() << "round " << round << ", after " << time.count() << " ms");
        const auto done = captureUntilKilled(time);
        ASSERT_FALSE(done.isEmpty());
        captures += done.size();
        for (const auto& report : done) {
            EXPECT_EQ(QImage(report[u"path"_s].toString()).size(), QSize(640, 480));
            reported.prepend(report[u"historyId"_s].toString());
        }
        ASSERT_NO_FATAL_FAILURE(start()); // A new start cleans up.
        auto found = history();
        // One more may have been taken without having been reported.
        if (!found.isEmpty() && found.first() != reported.first())
            reported.prepend(found.first());
        const auto sure = std::min<qsizetype>(reported.size(), 199);
        ASSERT_EQ(found.first(std::min(sure, found.size())), reported.first(sure));
        EXPECT_EQ(remains(), QStringList());
    }
    for (const QString& name : saved())
        EXPECT_EQ(
            QImage(desktop().home() + u"/Pictures/Pixmallow/"_s + name).size(), QSize(640, 480));
    const auto stats = QJsonDocument::fromJson(
        contentOf(desktop().home() + u"/.local/share/Pixmallow/stats.json"_s));
    // Statistics are written while a capture is being reported; each kill may cost the last.
    EXPECT_GE(stats[u"total"_s].toInteger(), captures - 2 * outcome.done);
    outcome.details = u"%1 captures reported"_s.arg(captures);
}
