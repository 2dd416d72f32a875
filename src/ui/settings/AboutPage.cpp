// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "base/Words.h"
#include "widgets/TextLabel.h"

#include <QIcon>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 88; // Points.

TextLabel* line(const Themes& themes, TextStyle style, const QString& text, TextLabel::Role role)
{
    auto* label = new TextLabel(themes, style, role);
    label->setAlignment(Qt::AlignHCenter);
    label->setText(text);
    return label;
}

} // namespace

void SettingsPages::fillAbout(SettingsPage& page, const SettingsMeans& means)
{
    auto* about = new QWidget;
    auto* column = new QVBoxLayout(about);
    column->setSpacing(Space::tiny);
    auto* icon = new QLabel;
    icon->setAlignment(Qt::AlignHCenter);
    icon->setPixmap(
        QIcon(u":/pixmallow.svg"_s).pixmap(QSize(iconSize, iconSize), page.devicePixelRatioF()));
    column->addWidget(icon);
    column->addWidget(line(means.themes, TextStyle::Title1, u"Pixmallow"_s, TextLabel::Role::Text));
    column->addWidget(line(means.themes, TextStyle::Body,
        Words::tr("Version %1").arg(means.updater.currentVersion()), TextLabel::Role::Secondary));
    page.addBelow(about);

    RowGroup& tile = page.addGroup();
    tile.addRow({Words::tr("Licence"), Words::tr("Free software under the MIT licence.")}, nullptr);
    tile.addRow({Words::tr("Your captures stay with you"),
                    Words::tr("Pixmallow sends neither them nor what you do with it anywhere.")},
        nullptr);
    tile.addRow({Words::tr("With thanks to"),
                    Words::tr("Phosphor Icons, Fluent Emoji, Anton, Qt, Tesseract and ISA-L.")},
        nullptr);
}
