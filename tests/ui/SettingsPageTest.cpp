// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "platform/fake/FakePlatform.h"
#include "tests/TestUser.h"
#include "widgets/Switch.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QSlider>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

class SettingsPageTest : public testing::Test, protected TestUser {
protected:
    SettingsPageTest() { m_page.addGroup(); }

    /// As the user does it.
    static void choose(QComboBox& choice, const QString& title)
    {
        const int index = choice.findText(title);
        ASSERT_GE(index, 0) << title.toStdString();
        choice.setCurrentIndex(index);
        Q_EMIT choice.activated(index);
    }

    FakePlatform m_platform;
    Skins m_skins {prefs, *m_platform.appearance};
    Themes m_themes {m_skins, *m_platform.appearance};
    SettingsPage m_page {m_themes, prefs, u"Page"_s};
};

} // namespace

TEST_F(SettingsPageTest, setsAPreferenceAndShowsWhatOthersSet)
{
    auto* toggle = m_page.addSwitch(keys.includeCursor, {u"Mouse pointer"_s});
    toggle->click();
    EXPECT_TRUE(prefs.get(keys.includeCursor));
    prefs.set(keys.includeCursor, false);
    EXPECT_FALSE(toggle->isChecked());
    EXPECT_EQ(toggle->accessibleName(), u"Mouse pointer"_s);

    auto* volume = m_page.slider(keys.soundVolume);
    EXPECT_EQ(volume->value(), 80);
    volume->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_DOUBLE_EQ(prefs.get(keys.soundVolume), 0.81);
    prefs.set(keys.soundVolume, 0.25);
    EXPECT_EQ(volume->value(), 25);
    delete volume;
}

TEST_F(SettingsPageTest, keepsTheTypeOfWhatIsChosenAndShowsValuesItDoesNotOffer)
{
    auto* choice = m_page.addChoice(keys.previewSeconds, {u"Closes after"_s},
        SettingsPages::seconds({3, 6, 0}, u"Never"_s), SettingsPages::secondsTitle);
    EXPECT_EQ(choice->currentText(), u"6 seconds"_s);
    choose(*choice, u"Never"_s);
    EXPECT_EQ(prefs.value(keys.previewSeconds), QVariant(0));

    prefs.set(keys.previewSeconds, 1);
    EXPECT_EQ(choice->currentText(), u"1 second"_s);
    choose(*choice, u"3 seconds"_s);
    EXPECT_EQ(prefs.get(keys.previewSeconds), 3);
}

TEST_F(SettingsPageTest, showsAnUnknownFormatAsWhatItIsReadAs)
{
    prefs.set(keys.imageFormat, u"gif"_s);
    auto* choice = m_page.addChoice(keys.imageFormat, {u"Format"_s},
        {{u"png"_s, u"PNG"_s}, {u"jpg"_s, u"JPEG"_s}}, [](const QVariant&) { return u"PNG"_s; });
    EXPECT_EQ(choice->currentText(), u"PNG"_s);
    EXPECT_EQ(prefs.get(keys.imageFormat), u"gif"_s) << "to look at it changes nothing";
}
