// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Result<Request> parse(const QString& words)
{
    return parseArguments(words.split(u' ', Qt::SkipEmptyParts));
}

} // namespace

TEST(ArgumentsTest, understandsShot)
{
    const auto request = parse(u"shot --area -10,20,300x400 --output a.png --cursor --json"_s);
    ASSERT_TRUE(request) << request.error().message.toStdString();
    const auto& shot = std::get<ShotRequest>(*request);
    EXPECT_EQ(std::get<QRect>(shot.target), QRect(-10, 20, 300, 400));
    EXPECT_EQ(shot.output, u"a.png"_s);
    EXPECT_TRUE(shot.cursor && shot.json && !shot.shadow);

    const auto window = [](const QString& id) {
        const auto parsed = parse(u"shot --shadow --output - --window="_s + id);
        return parsed ? std::get<WindowNumber>(std::get<ShotRequest>(*parsed).target).id : 0;
    };
    EXPECT_EQ(window(u"0x1400003"_s), 0x1400003u);
    EXPECT_EQ(window(u"20971523"_s), 20971523u);
    EXPECT_TRUE(
        std::holds_alternative<WholeDesktop>(std::get<ShotRequest>(*parse(u"shot"_s)).target));
}

TEST(ArgumentsTest, understandsWhatTheResidentProgramIsAskedFor)
{
    const auto request = parse(u"capture --json delayed --wait"_s);
    ASSERT_TRUE(request) << request.error().message.toStdString();
    const auto& capture = std::get<CaptureRequest>(*request);
    EXPECT_EQ(capture.kind, CaptureKind::Delayed);
    EXPECT_TRUE(capture.wait && capture.json);
    EXPECT_EQ(std::get<PinRequest>(*parse(u"pin a.png -- -b.png"_s)).files,
        (QStringList {u"a.png"_s, u"-b.png"_s}));
    EXPECT_TRUE(std::holds_alternative<QuitRequest>(*parse(u"quit"_s)));
    EXPECT_EQ(std::get<ShowRequest>(*parse(u"history"_s)).what, Control::Show::What::History);
    EXPECT_EQ(std::get<ShowRequest>(*parse(u"gallery"_s)).what, Control::Show::What::Gallery);
    const auto list = std::get<ListRequest>(*parse(u"list --search --json history --json"_s));
    EXPECT_EQ(list.search, u"--json"_s);
    EXPECT_TRUE(list.json && list.what == ListRequest::What::History);
    const auto text = std::get<TextRequest>(*parse(u"text a.png --json -- -b.png --json"_s));
    EXPECT_EQ(text.files, (QStringList {u"a.png"_s, u"-b.png"_s, u"--json"_s}));
    EXPECT_TRUE(text.json);
    const auto doctor = std::get<DoctorRequest>(*parse(u"doctor --json"_s));
    EXPECT_TRUE(doctor.json && !doctor.online);
    EXPECT_EQ(std::get<LaunchRequest>(*parse(u""_s)).options, QStringList());
    EXPECT_EQ(
        std::get<LaunchRequest>(*parse(u"--replace"_s)).options, QStringList {u"--replace"_s});
    const auto unknown = parse(u"capture moon"_s);
    ASSERT_FALSE(unknown);
    for (const auto& info : captureKinds)
        EXPECT_TRUE(unknown.error().message.contains(info.key));
}

TEST(ArgumentsTest, refusesWhatItDoesNotUnderstandInOneLine)
{
    for (const auto& words :
        {u"shoot"_s, u"capture"_s, u"capture region window"_s, u"capture region --replace"_s,
            u"quit now"_s, u"quit --wait"_s, u"pin"_s, u"pin --wait a.png"_s, u"--replace shot"_s,
            u"--colour"_s, u"shot extra"_s, u"shot --screen"_s, u"shot --screen 0"_s,
            u"shot --screen one"_s, u"shot --window 0"_s, u"shot --window 99999999999"_s,
            u"shot --area 1,2,3"_s, u"shot --area 1,2,0x5"_s, u"shot --area 1,2,5x5x5"_s,
            u"shot --area 0,0,100000x1"_s, u"shot --screen 1 --window 5"_s,
            u"shot --screen 1 --screen 2"_s, u"shot --output= --json"_s, u"shot --output a.jpg"_s,
            u"shot --output a.JPEG"_s, u"shot --output - --json"_s, u"shot --shadow"_s,
            u"shot --colour"_s, u"text"_s, u"text --json"_s, u"text --wait a.png"_s, u"list"_s,
            u"list doors"_s, u"list screens windows"_s, u"list screens --cursor"_s,
            u"list screens --search a"_s, u"list history --search"_s, u"history now"_s}) {
        const auto request = parse(words);
        ASSERT_FALSE(request) << words.toStdString();
        EXPECT_FALSE(request.error().message.isEmpty()) << words.toStdString();
        EXPECT_FALSE(request.error().message.contains(u'\n')) << words.toStdString();
    }
}
