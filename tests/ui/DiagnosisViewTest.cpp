// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/DiagnosisView.h"

#include "app/DoctorProcess.h"
#include "doctor/DoctorReport.h"
#include "platform/fake/FakePlatform.h"
#include "tests/TestUser.h"
#include "tests/desktop/Waiting.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QJsonDocument>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QList<DoctorCheck> twoWell()
{
    return {{u"text"_s, u"Text"_s, u"Reads English."_s},
        {u"tray"_s, u"Tray"_s, u"There is none."_s, u"Use the shortcuts."_s},
        {u"sound"_s, u"Sound"_s, u"Plays."_s}};
}

class DiagnosisViewTest : public testing::Test, protected TestUser {
protected:
    QStringList texts() const
    {
        QStringList texts;
        for (const auto* label : view.findChildren<QLabel*>())
            if (!label->text().isEmpty())
                texts << label->text();
        return texts;
    }

    QPushButton& button(const QString& text) const
    {
        for (auto* button : view.findChildren<QPushButton*>())
            if (button->text() == text)
                return *button;
        throw std::invalid_argument(text.toStdString());
    }

    FakePlatform platform;
    Skins skins {prefs, *platform.appearance};
    Themes themes {skins, *platform.appearance};
    int examinations = 0;
    Pending<QList<DoctorCheck>>::Answer answer;
    DiagnosisView view {{themes, *platform.clipboard, [this] {
                             ++examinations;
                             auto [pending, toAnswer] = Pending<QList<DoctorCheck>>::ask();
                             answer = std::move(toAnswer);
                             return std::move(pending);
                         }}};
};

} // namespace

TEST_F(DiagnosisViewTest, tellsFirstWhatNeedsAttentionAndRunsAgain)
{
    EXPECT_FALSE(button(u"Copy Report"_s).isEnabled());
    button(u"Run"_s).click();
    button(u"Run"_s).click(); // It is under way.
    EXPECT_EQ(examinations, 1);
    answer(twoWell());
    EXPECT_TRUE(waitFor([this] { return texts().contains(u"One thing needs attention."_s); }));
    const auto told = texts();
    const QStringList inOrder {u"Needs attention"_s, u"Tray"_s,
        u"There is none.\nUse the shortcuts."_s, u"Works"_s, u"Text"_s, u"Reads English."_s,
        u"Sound"_s, u"Plays."_s};
    EXPECT_EQ(told.last(inOrder.size()), inOrder) << told.join(u'|').toStdString();
    button(u"Copy Report"_s).click();
    EXPECT_EQ(platform.fakeClipboard().text, DoctorReport::toText(twoWell()));

    auto& again = button(u"Run Again"_s);
    EXPECT_EQ(again.accessibleName(), u"Run Again"_s);
    again.click();
    answer(Error::failed(u"It did not start."_s));
    EXPECT_TRUE(waitFor([this] { return texts().contains(u"It did not start."_s); }));
    EXPECT_FALSE(texts().contains(u"Tray"_s)) << "of a report that is not the last";
    EXPECT_FALSE(button(u"Copy Report"_s).isEnabled());
}

TEST_F(DiagnosisViewTest, readsWhatTheDoctorPrints)
{
    QFile program(path(u"doctor"_s));
    const auto examined = [&](const QByteArray& printed) {
        EXPECT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\ncat <<'END'\n" + printed + "\nEND\nexit 1\n");
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        program.close();
        DoctorProcess process(program.fileName());
        return process.examine().wait();
    };
    const auto checks = examined(QJsonDocument(DoctorReport::toJson(twoWell())).toJson());
    ASSERT_TRUE(checks);
    EXPECT_EQ(DoctorReport::toText(*checks), DoctorReport::toText(twoWell()));
    EXPECT_FALSE(examined("Segmentation fault"));
    EXPECT_FALSE(DoctorProcess(u"/nowhere/doctor"_s).examine().wait());
}
