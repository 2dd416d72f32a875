// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Control.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray bare(QByteArray line)
{
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_TRUE(line.endsWith('\n'));
    line.chop(1);
    return line;
}

} // namespace

TEST(ControlTest, readsTheRequestsItWrites)
{
    using namespace Control;
    for (const auto& info : captureKinds)
        for (const bool wait : {false, true}) {
            const auto read = requestFrom(bare(toLine(Request(Capture {info.kind, wait}))));
            ASSERT_TRUE(read) << read.error().message.toStdString();
            EXPECT_EQ(std::get<Capture>(*read).kind, info.kind);
            EXPECT_EQ(std::get<Capture>(*read).wait, wait);
        }
    EXPECT_TRUE(std::holds_alternative<ShowPanel>(*requestFrom(bare(toLine(ShowPanel {})))));
    EXPECT_TRUE(std::holds_alternative<Quit>(*requestFrom(bare(toLine(Request(Quit {}))))));
    EXPECT_TRUE(
        std::holds_alternative<Shortcuts>(*requestFrom(bare(toLine(Request(Shortcuts {}))))));
    const QStringList paths {u"/a b/ü.png"_s, u"/c\n.png"_s};
    const auto pin = requestFrom(bare(toLine(Request(Pin {paths}))));
    ASSERT_TRUE(pin);
    EXPECT_EQ(std::get<Pin>(*pin).paths, paths);
    const auto newer = requestFrom(R"({"command":"capture","kind":"text","mood":[1,{}]})");
    ASSERT_TRUE(newer);
    EXPECT_FALSE(std::get<Capture>(*newer).wait);
}

TEST(ControlTest, refusesRequestsThatItDoesNotUnderstand)
{
    for (const QByteArray& line : {""_ba, "quit"_ba, "[]"_ba, "\"quit\""_ba, "{"_ba, "{}"_ba,
             R"({"command":"dance"})"_ba, R"({"command":7})"_ba, R"({"command":"capture"})"_ba,
             R"({"command":"capture","kind":"moon"})"_ba, R"({"command":"pin"})"_ba,
             R"({"command":"pin","paths":[]})"_ba, R"({"command":"pin","paths":["/a",1]})"_ba,
             R"({"command":"capture","kind":"region","wait":1})"_ba,
             "{\"command\":\"panel\xff\"}"_ba, QByteArray(100'000, '['),
             R"({"command":")" + QByteArray(60'000, 'x') + R"("})"}) {
        const auto request = Control::requestFrom(line);
        ASSERT_FALSE(request) << line.left(80).toStdString();
        EXPECT_FALSE(request.error().message.isEmpty());
        EXPECT_LT(request.error().message.size(), 200);
    }
}

TEST(ControlTest, readsTheAnswersItWrites)
{
    const CaptureReport full {CaptureReport::Outcome::Done, u"Not copied."_s, u"/a \"ü\"\n.png"_s,
        {300, 200}, 1.5, u"Editor"_s, u"42"_s, u"line\nline – 漢字\u2028"_s};
    const auto read = Control::answerFrom(bare(Control::toLine(Control::Answer(full))));
    ASSERT_TRUE(read);
    const auto& report = std::get<CaptureReport>(*read);
    EXPECT_EQ(report.reason, full.reason);
    EXPECT_EQ(report.path, full.path);
    EXPECT_EQ(report.size, full.size);
    EXPECT_EQ(report.scale, full.scale);
    EXPECT_EQ(report.app, full.app);
    EXPECT_EQ(report.historyId, full.historyId);
    EXPECT_EQ(report.text, full.text);

    for (const auto outcome : {CaptureReport::Outcome::Done, CaptureReport::Outcome::Cancelled,
             CaptureReport::Outcome::Failed, CaptureReport::Outcome::Busy}) {
        const auto line = bare(Control::toLine(Control::Answer(CaptureReport {outcome})));
        EXPECT_EQ(line.count(':'), 1) << line.toStdString(); // What is empty is left out.
        EXPECT_EQ(std::get<CaptureReport>(*Control::answerFrom(line)).outcome, outcome);
    }
    EXPECT_TRUE(std::holds_alternative<Control::Accepted>(
        *Control::answerFrom(bare(Control::toLine(Control::Answer(Control::Accepted {}))))));
    const Control::ShortcutReport refusals {{CaptureKind::Text, CaptureKind::Window}};
    const auto told = Control::answerFrom(bare(Control::toLine(Control::Answer(refusals))));
    ASSERT_TRUE(told);
    EXPECT_EQ(std::get<Control::ShortcutReport>(*told).refused, refusals.refused);
    const auto newer
        = Control::answerFrom(R"({"outcome":"shortcuts","refused":["hologram","region",3]})");
    EXPECT_EQ(std::get<Control::ShortcutReport>(*newer).refused,
        QList<CaptureKind> {CaptureKind::Region});
    EXPECT_FALSE(Control::answerFrom(R"({"outcome":"fine"})"));
    EXPECT_FALSE(Control::answerFrom("{}"));

    CaptureReport endless {CaptureReport::Outcome::Done};
    endless.text = QString(Control::longestAnswer, u'x');
    const auto refused = Control::answerFrom(bare(Control::toLine(Control::Answer(endless))));
    EXPECT_EQ(std::get<CaptureReport>(*refused).outcome, CaptureReport::Outcome::Failed);
}
