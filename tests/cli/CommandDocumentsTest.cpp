// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/CaptureKind.h"
#include "cli/Arguments.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString sourcePath(const QString& name)
{
    return u"" PIXMALLOW_SOURCES "/"_s + name;
}

QString sourceText(const QString& name)
{
    QFile file(sourcePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// From the first line that begins with `start` to the next that begins with `next`.
QString section(const QString& text, const QString& start, const QString& next)
{
    const auto from = (u'\n' + text).indexOf(u'\n' + start);
    const auto to = from < 0 ? from : text.indexOf(u'\n' + next, from + start.size());
    return from < 0 ? QString() : text.mid(from, to < 0 ? to : to - from);
}

QStringList dashed(const QStringList& options)
{
    QStringList all;
    for (const auto& option : options)
        all << u"--"_s + option;
    all.sort();
    return all;
}

/// What bash offers behind words, sorted.
QStringList offered(const QStringList& words)
{
    QProcess bash;
    bash.start(u"bash"_s,
        QStringList {u"--norc"_s, u"-c"_s,
            u"source \"$0\"; COMP_WORDS=(pixmallow \"$@\"); COMP_CWORD=$#; _pixmallow; "
            "printf '%s\\n' \"${COMPREPLY[@]}\""_s,
            sourcePath(u"packaging/completions/pixmallow.bash"_s)}
            + words);
    EXPECT_TRUE(bash.waitForFinished()) << bash.errorString().toStdString();
    EXPECT_EQ(bash.readAllStandardError(), QByteArray());
    auto all = QString::fromUtf8(bash.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    all.sort();
    return all;
}

/// As a sentence for the message of a check that failed.
std::string named(const CommandWords& command, const QString& option = {})
{
    return ("pixmallow "_L1 + command.name + u' ' + option).toStdString();
}

} // namespace

TEST(CommandDocumentsTest, helpAndManualsTellEveryCommandAndOption)
{
    const QString help = helpText(), manual = sourceText(u"packaging/pixmallow.1"_s),
                  guide = sourceText(u"docs/command-line.md"_s);
    for (const auto& command : commandWords()) {
        const bool hasName = !command.name.isEmpty();
        const QString inManual = hasName
            ? section(manual, u".It Cm "_s + command.name, u".It Cm "_s)
            : section(manual, u".Sh DESCRIPTION"_s, u".Ss "_s);
        const QString inGuide = section(
            guide, hasName ? u"## pixmallow "_s + command.name : u"## pixmallow\n"_s, u"## "_s);
        EXPECT_FALSE(inManual.isEmpty()) << named(command);
        EXPECT_FALSE(inGuide.isEmpty()) << named(command);
        EXPECT_TRUE(help.contains(("pixmallow "_L1 + command.name).trimmed())) << named(command);
        for (const auto& option : command.options) {
            EXPECT_TRUE(inManual.contains(u"Fl -"_s + option)) << named(command, option);
            EXPECT_TRUE(inGuide.contains(u"--"_s + option)) << named(command, option);
            EXPECT_TRUE(help.contains(u"--"_s + option)) << named(command, option);
        }
    }
}

TEST(CommandDocumentsTest, bashCompletesWhatCanBeTypedAndNothingElse)
{
    QStringList commands {u"--help"_s, u"--version"_s};
    for (const auto& command : commandWords()) {
        if (command.name.isEmpty()) {
            commands << dashed(command.options);
        } else {
            commands << command.name;
            EXPECT_EQ(offered({command.name, u"--"_s}), dashed(command.options)) << named(command);
        }
    }
    commands.sort();
    EXPECT_EQ(offered({u""_s}), commands);

    QStringList kinds;
    for (const auto& info : captureKinds)
        kinds << info.key;
    kinds.sort();
    EXPECT_EQ(
        offered({u"capture"_s, u"--wait"_s, u""_s}).filter(QRegularExpression(u"^\\w"_s)), kinds);
    EXPECT_EQ(offered({u"capture"_s, u"text"_s, u"--w"_s}), QStringList {u"--wait"_s});
    EXPECT_EQ(offered({u"capture"_s, u"text"_s, u"r"_s}), QStringList());
}

TEST(CommandDocumentsTest, otherShellsCompleteEveryCommandAndOption)
{
    const QString zsh = sourceText(u"packaging/completions/_pixmallow"_s),
                  fish = sourceText(u"packaging/completions/pixmallow.fish"_s);
    for (const auto& command : commandWords()) {
        const bool hasName = !command.name.isEmpty();
        if (hasName) {
            EXPECT_TRUE(zsh.contains(u"        '%1:"_s.arg(command.name))) << named(command);
            EXPECT_TRUE(fish.contains(u"$start -a %1 "_s.arg(command.name))) << named(command);
        }
        for (const auto& option : command.options) {
            EXPECT_TRUE(zsh.contains(u"--%1["_s.arg(option))) << named(command, option);
            const QString condition = hasName ? command.name : u"start"_s;
            EXPECT_TRUE(fish.contains(u"-n $%1 -l %2 "_s.arg(condition, option)))
                << named(command, option);
        }
    }
}

TEST(CommandDocumentsTest, everyActionOfTheDesktopEntryIsACommand)
{
    static const QRegularExpression pattern(
        u"^Exec=pixmallow(.*)$"_s, QRegularExpression::MultilineOption);
    const QString entry = sourceText(u"packaging/pixmallow.desktop.in"_s);
    int actions = 0;
    for (auto found = pattern.globalMatch(entry); found.hasNext(); ++actions) {
        const QString words = found.next().captured(1);
        EXPECT_TRUE(parseArguments(words.split(u' ', Qt::SkipEmptyParts))) << words.toStdString();
    }
    EXPECT_EQ(actions, entry.count(u"\nExec="_s));
}
