// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Prefs.h"

#include "tests/KilledProcess.h"
#include "tests/Soak.h"
#include "tests/TestFiles.h"
#include "tests/campaign/Outcome.h"

#include <QTemporaryDir>

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// Sets two preferences to the same number over and over; each time it is on the disk, writes a
/// byte.
[[noreturn]] void setForEver(const Folders& folders, int from, int report)
{
    Prefs prefs(folders, Prefs::Watch::Nothing);
    prefs.registerDefaults();
    for (int number = from + 1;; ++number) {
        prefs.set(Prefs::keys.historyMax, number);
        prefs.set(Prefs::keys.sound, QString::number(number));
        if (!prefs.flush() || write(report, "", 1) != 1)
            _exit(1);
    }
}

} // namespace

TEST(PrefsCrashTest, hasEveryReportedValueAfterBeingKilled)
{
    Outcome outcome(u"Kills while preferences are written"_s);
    const QTemporaryDir root;
    const Folders folders {.configuration = root.filePath(u"Pixmallow"_s), .pictures = root.path()};
    put(folders.configuration + u"/preferences.json"_s, R"({"a later version's": [1, 2]})");
    std::mt19937 random(5);
    int number = 0;
    for (int round = 0; round < soaked(20); ++round, ++outcome.done) {
        SCOPED_TRACE(round);
        const auto reported = KilledProcess::reportOf(
            [&](int report) { setForEver(folders, number, report); }, random() % 20'000);

        Prefs prefs(folders, Prefs::Watch::Nothing);
        prefs.registerDefaults();
        const int found = prefs.get(Prefs::keys.historyMax);
        // The last one may be on the disk without having been reported.
        EXPECT_GE(found, number + int(reported.size()));
        EXPECT_LE(found, number + int(reported.size()) + 1);
        EXPECT_EQ(prefs.get(Prefs::keys.sound), QString::number(found)) << "set at once";
        number = found;

        // The lock of the killed one is in nobody's way, and what it left is not for ever.
        prefs.set(Prefs::keys.playSound, round % 2 == 0);
        ASSERT_TRUE(prefs.flush());
        EXPECT_EQ(QDir(folders.configuration).entryList(QDir::Files | QDir::Hidden),
            QStringList({u"preferences.json"_s, u"preferences.lock"_s}));
        EXPECT_TRUE(contentOf(folders.configuration + u"/preferences.json"_s)
                        .contains("a later version's"));
    }
}
