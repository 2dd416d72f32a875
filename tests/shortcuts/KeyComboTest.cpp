// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "shortcuts/KeyCombo.h"

#include "tests/Soak.h"

#include <gtest/gtest.h>

#include <QInputDevice>
#include <QKeyEvent>
#include <QRegularExpression>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr auto ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;

/// The stored text of what becomes of a key down; empty if nothing does.
QString recorded(const KeyDown& event)
{
    const auto combo = KeyCombo::fromKeyDown(event);
    return combo ? combo->text() : QString();
}

} // namespace

TEST(KeyComboTest, readsWhatIsStoredAndNothingElse)
{
    const std::pair<QString, KeyCombo> valid[] = {
        {u"18:4608:1"_s, {18, 4096 + 512, u"1"_s}},
        {u"18:4608:"_s, {18, 4608, {}}},
        {u"18:4608:a:b"_s, {18, 4608, u"a:b"_s}},
        {u"4294967295:0:::"_s, {4294967295, 0, u"::"_s}},
    };
    for (const auto& [text, combo] : valid) {
        EXPECT_EQ(KeyCombo::fromText(text), combo) << qPrintable(text);
        EXPECT_EQ(combo.text(), text);
    }
    for (const auto& text : {u""_s, u"18"_s, u"18:4608"_s, u":4608:1"_s, u"18::1"_s, u"::"_s,
             u"4294967296:4608:1"_s, u"18:4294967296:1"_s, u"-1:0:1"_s, u"+1:0:1"_s, u" 1:0:1"_s,
             u"1 :0:1"_s, u"1:0x10:1"_s, u"1:1e3:1"_s, u"١:0:1"_s})
        EXPECT_FALSE(KeyCombo::fromText(text)) << qPrintable(text);
}

TEST(KeyComboTest, readsRandomTextsAsTheFormatSays)
{
    static const QStringList pieces {u":"_s, u"0"_s, u"18"_s, u"4608"_s, u"4294967295"_s,
        u"4294967296"_s, u"-"_s, u"+"_s, u" "_s, u"1e3"_s, u"٣"_s, u"↩"_s, u"🙂"_s, u"K"_s,
        QString(QChar::Null), QString(QChar(0xd800)), u"\n"_s, QString(300, u'9')};
    const auto isNumber = [](const QString& text) {
        static const QRegularExpression zerosAndDigits(u"\\A0*([0-9]{1,10})\\z"_s);
        const auto match = zerosAndDigits.match(text);
        return match.hasMatch() && match.captured(1).toLongLong() <= 0xffffffff;
    };
    int valid = 0;
    const int rounds = soaked(20'000);
    for (int round = 0; round < rounds; ++round) {
        std::mt19937 random(static_cast<unsigned>(round));
        const auto below = [&](qsizetype limit) { return qsizetype(random() % quint64(limit)); };
        QString text = below(3) ? u"18:4608:1"_s : QString();
        for (auto changes = below(5); changes > 0; --changes)
            text.replace(below(text.size() + 1), below(3), pieces.at(below(pieces.size())));

        const auto parts = text.split(u':');
        const bool isValid = parts.size() >= 3 && isNumber(parts.at(0)) && isNumber(parts.at(1));
        const auto combo = KeyCombo::fromText(text);
        ASSERT_EQ(combo.has_value(), isValid) << round << ": " << qPrintable(text);
        if (!combo)
            continue;
        ++valid;
        EXPECT_EQ(combo->key, parts.sliced(2).join(u':')) << round;
        EXPECT_EQ(KeyCombo::fromText(combo->text()), combo) << round << ": " << qPrintable(text);
        EXPECT_TRUE(combo->display().endsWith(combo->key)) << round;
    }
    EXPECT_GT(valid, rounds / 20) << "of what cannot be read, nothing is tried";
    EXPECT_LT(valid, rounds * 19 / 20);
}

TEST(KeyComboTest, showsModifiersInTheirOrderBeforeTheKey)
{
    const std::tuple<QString, QString, QString> cases[] = {
        {u"18:4608:1"_s, u"⌃⇧1"_s, u"Ctrl+Shift+1"_s},
        {u"18:4608:"_s, u"⌃⇧"_s, u"Ctrl+Shift+"_s},
        {u"40:2304:K"_s, u"⌥⌘K"_s, u"Alt+Super+K"_s},
        {u"36:6912:↩"_s, u"⌃⌥⇧⌘↩"_s, u"Ctrl+Alt+Shift+Super+Return"_s},
        {u"105:0:F13"_s, u"F13"_s, u"Print"_s},
    };
    for (const auto& [text, shown, spelled] : cases) {
        const auto combo = KeyCombo::fromText(text);
        ASSERT_TRUE(combo);
        EXPECT_EQ(combo->display(), shown);
        EXPECT_EQ(combo->spelled(), spelled);
    }
}

TEST(KeyComboTest, makesAShortcutOfAKeyWithModifiersOrABareFunctionKey)
{
    const std::pair<KeyDown, QString> cases[] = {
        {{71, {}, {}}, u"96:0:F5"_s},
        {{107, {}, {}}, u"105:0:F13"_s}, // Print
        {{191, {}, {}}, u"105:0:F13"_s},
        {{198, {}, {}}, {}}, // F20
        {{38, {}, u"a"_s}, {}},
        {{38, Qt::KeypadModifier | Qt::GroupSwitchModifier, u"a"_s}, {}},
        {{38, Qt::ShiftModifier, u"a"_s}, u"0:512:A"_s},
        {{29, Qt::AltModifier, u"z"_s}, u"16:2048:Y"_s}, // By its place, as on any layout.
        {{10, ctrlShift | Qt::MetaModifier | Qt::KeypadModifier, u"!"_s}, u"18:4864:1"_s},
        {{79, Qt::ControlModifier, u"7"_s}, u"89:4096:7"_s},
        {{94, Qt::ControlModifier, u"ä"_s}, u"10:4096:Ä"_s},
        {{104, Qt::ControlModifier, {}}, u"76:4096:?"_s},
        {{50, ctrlShift, {}}, {}}, // Shift itself.
        {{0, ctrlShift, u"1"_s}, {}},
        {{256 + 10, ctrlShift, u"1"_s}, {}},
    };
    for (const auto& [event, text] : cases)
        EXPECT_EQ(recorded(event), text) << event.position;
}

TEST(KeyComboTest, readsToolkitEventsByThePlaceOfTheKey)
{
    const QInputDevice keyboard; // Without one Qt makes its own and loses it.
    const auto record = [&](int key, Qt::KeyboardModifiers modifiers, quint32 position,
                            const QString& text = {}) {
        return recorded(KeyDown::of(QKeyEvent(
            QEvent::KeyPress, key, modifiers, position, 0, 0, text, false, 1, &keyboard)));
    };
    EXPECT_EQ(record(Qt::Key_Exclam, ctrlShift, 10, u"\x11"_s), u"18:4608:1"_s);
    EXPECT_EQ(record(Qt::Key_Less, Qt::ControlModifier, 94, u"\x1c"_s), u"10:4096:<"_s);
    EXPECT_EQ(record(Qt::Key_Ediaeresis, Qt::AltModifier, 94), u"10:2048:Ë"_s);
    EXPECT_EQ(record(Qt::Key_Home, Qt::AltModifier, 110), u"115:2048:↖"_s);
    EXPECT_EQ(record(Qt::Key_Print, {}, 107), u"105:0:F13"_s);
    EXPECT_EQ(record(Qt::Key_Control, Qt::ControlModifier, 37), QString());
    EXPECT_EQ(record(Qt::Key_unknown, Qt::ControlModifier, 135), u"110:4096:?"_s);
}
