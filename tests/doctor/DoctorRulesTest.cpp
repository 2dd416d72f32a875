// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "doctor/DoctorRules.h"

#include <gmock/gmock.h>

#include <set>

using namespace Qt::StringLiterals;
using Kind = CaptureKind;

namespace {

constexpr int all = 1000;

Error broken()
{
    return Error::failed(u"It is broken."_s);
}

DoctorFacts::Shortcut shortcut(Kind kind, const QString& text, bool refused = false)
{
    return {kind, KeyCombo::fromText(text), refused};
}

/// Whether the check says what was found, and has advice that contains a word; none when empty.
void expect(const DoctorCheck& check, const QString& detail, const QString& advice)
{
    EXPECT_TRUE(check.detail.contains(detail)) << check.detail.toStdString();
    EXPECT_EQ(check.isOk(), advice.isEmpty()) << check.advice.toStdString();
    EXPECT_TRUE(check.advice.contains(advice)) << check.advice.toStdString();
}

} // namespace

TEST(DoctorRulesTest, judgesWhatCameBackFromAScreen)
{
    const std::tuple<Result<PatternComparison>, QString, QString> table[] = {
        {PatternComparison {all},
            u"3840 × 2160 pixels at scale 1.5. A pattern was captured exactly"_s, {}},
        {PatternComparison {all, 900, 255, true}, u"black"_s, u"screen lock"_s},
        {PatternComparison {all, 900, 7}, u"7 of 255"_s, u"24 bits"_s},
        {PatternComparison {all, 1, 17}, u"1000 pixels, 1 were"_s, u"covers"_s},
        {broken(), u"It is broken."_s, u"requirements"_s},
    };
    for (const auto& [captured, detail, advice] : table)
        expect(DoctorRules::judge(DoctorFacts::Screen {u"L"_s, {3840, 2160}, 1.5, captured}, 2),
            detail, advice);
}

TEST(DoctorRulesTest, saysWhoHasAShortcutAndWhatToDo)
{
    const auto judged = [](const DoctorFacts::Desktop& desktop) {
        return DoctorRules::judgeShortcuts(desktop).first();
    };
    DoctorFacts::Desktop desktop;
    desktop.shortcuts = {shortcut(Kind::Region, u"18:4608:1"_s), shortcut(Kind::Text, {})};
    expect(judged(desktop), u"Ctrl+Shift+1 is free"_s, {});
    desktop.isResident = true;
    expect(judged(desktop), u"Ctrl+Shift+1 works"_s, {});
    expect(DoctorRules::judgeShortcuts(desktop).last(), u"None"_s, {});

    desktop.shortcuts[0].isRefused = true;
    expect(judged(desktop), u"another program has it"_s, u"--replace"_s);
    desktop.isResident = false;
    expect(judged(desktop), u"another program has it"_s, u"other program."_s);
    desktop.shortcuts[1] = shortcut(Kind::Text, u"18:4608:1"_s);
    expect(judged(desktop), u"Ctrl+Shift+1"_s, u"same one"_s);
    desktop.shortcuts[0] = shortcut(Kind::Region, u"999:4608:?"_s, true);
    expect(judged(desktop), u"refused"_s, u"no keyboard"_s);

    desktop.isResident = true;
    desktop.residentProblem = u"There is no command “shortcuts”."_s;
    expect(judged(desktop), u"“shortcuts”"_s, u"--replace"_s);
    EXPECT_EQ(judged(desktop).id, u"shortcut.region"_s);
}

TEST(DoctorRulesTest, namesTheLanguagesThatAreReadOrMissing)
{
    const auto judge = DoctorRules::judgeText;
    expect(
        judge(TextLanguages {{u"eng"_s, u"chi_sim"_s}, {}}, {}), u"Reads English, Chinese."_s, {});
    expect(judge(TextLanguages {{u"eng"_s}, {u"deu"_s, u"srp_latn"_s}}, {}),
        u"Cannot read German, Serbian."_s, u"tesseract-ocr-deu tesseract-ocr-srp-latn"_s);
    expect(
        judge(TextLanguages {{}, {u"eng"_s}}, broken()), u"no language"_s, u"tesseract-ocr-eng"_s);
    expect(judge(TextLanguages {{u"eng"_s}, {}}, broken()), u"It is broken."_s,
        u"tesseract-ocr-eng"_s);
    expect(judge(broken(), broken()), u"It is broken."_s, u"Install Pixmallow again"_s);
}

TEST(DoctorRulesTest, judgesTheRest)
{
    using DoctorRules::judge;
    expect(judge(DoctorFacts::Sound {true, u"pulse"_s}), u"pulse"_s, {});
    expect(judge(DoctorFacts::Sound {true, broken()}), u"broken"_s, u"PipeWire"_s);
    expect(judge(DoctorFacts::Sound {false, broken()}), u"switched off"_s, {});

    expect(judge(DoctorFacts::Folder {u"data"_s, u"Data"_s, u"/d"_s}), u"“/d”"_s, {});
    expect(judge(DoctorFacts::Folder {u"data"_s, u"Data"_s, u"/d"_s, u"It is full."_s}),
        u"It is full."_s, u"right to write"_s);

    expect(DoctorRules::judgeSpace(u"/p"_s, -1), u"not known"_s, {});
    expect(DoctorRules::judgeSpace(u"/p"_s, qint64(256) << 20), u"256.0 MiB in “/p”"_s, {});
    expect(DoctorRules::judgeSpace(u"/p"_s, (qint64(256) << 20) - 1), u"in “/p”"_s, u"Delete"_s);

    const QString feed = u"https://a.example/f"_s;
    expect(judge(DoctorFacts::Updates {feed}), u"--online"_s, {});
    expect(judge(DoctorFacts::Updates {feed, false}), u"switched off"_s, {});
    expect(judge(DoctorFacts::Updates {feed, true, u"1.4"_s}), u"version 1.4"_s, {});
    expect(
        judge(DoctorFacts::Updates {feed, true, QString()}), u"no version for this system"_s, {});
    expect(judge(DoctorFacts::Updates {feed, true, Error::failed(u"Host not found"_s)}),
        u"Host not found."_s, u"network"_s);
    expect(judge(DoctorFacts::Updates {u"http://a.example/f"_s}), u"no safe address"_s, u"https"_s);
}

TEST(DoctorRulesTest, leavesNothingOut)
{
    DoctorFacts facts;
    facts.desktop = DoctorFacts::Desktop {.screens = QList<DoctorFacts::Screen>(2),
        .shortcuts = {shortcut(Kind::Region, u"18:4608:1"_s)}};
    facts.languages = TextLanguages {{u"eng"_s}, {}};
    facts.folders = {{u"data"_s, u"Data"_s, u"/d"_s}};
    facts.updates.feed = u"https://a.example/f"_s;
    std::set<QString> ids;
    for (const auto& check : DoctorRules::judge(facts)) {
        EXPECT_TRUE(check.isOk()) << check.detail.toStdString();
        EXPECT_FALSE(check.title.isEmpty() || check.detail.isEmpty()) << check.id.toStdString();
        EXPECT_TRUE(ids.insert(check.id).second) << check.id.toStdString();
    }
    EXPECT_EQ(ids,
        (std::set {u"screen.1"_s, u"screen.2"_s, u"shortcut.region"_s, u"clipboard"_s, u"tray"_s,
            u"compositor"_s, u"text"_s, u"faces"_s, u"sound"_s, u"folder.data"_s, u"space"_s,
            u"update"_s}));

    facts.desktop = DoctorFacts::Desktop {
        .isPermitted = false, .copies = broken(), .hasTray = false, .isComposited = false};
    facts.faces = broken();
    QStringList wrong;
    for (const auto& check : DoctorRules::judge(facts))
        if (!check.isOk())
            wrong << check.id;
    EXPECT_EQ(
        wrong, (QStringList {u"permission"_s, u"screens"_s, u"clipboard"_s, u"tray"_s, u"faces"_s}))
        << "a compositor is a matter of taste";

    facts.desktop = broken();
    expect(DoctorRules::judge(facts).first(), u"It is broken."_s, u"terminal"_s);
}
