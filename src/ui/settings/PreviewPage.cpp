// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

#include "base/Words.h"
#include "preview/EffectPalette.h"
#include "preview/PreviewThumbnail.h"
#include "ui/settings/SampleCapture.h"
#include "widgets/Accessible.h"

#include <QComboBox>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr const PrefKeys& keys = Prefs::keys;

/// The border as it is set, around a picture that stands for a capture.
void addLivePreview(SettingsPage& page, RowGroup& tile)
{
    auto* picture = new PreviewThumbnail(page.themes(), {sampleCapture(), 2, {}, {}});
    picture->setFocusPolicy(Qt::NoFocus);
    picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    picture->unsetCursor();
    Accessible::describeAsDecoration(*picture);
    auto* middle = new QWidget;
    auto* row = new QHBoxLayout(middle);
    row->setContentsMargins({});
    row->addWidget(picture, 0, Qt::AlignHCenter);
    tile.addContent(middle);
    const auto show = [&page, picture] {
        const auto effect = EffectBorder::effect(page.prefs().get(keys.previewEffect));
        if (!effect)
            return picture->setBorder(nullptr);
        const auto colours = EffectPalette::colours(
            page.prefs().get(keys.effectColors), page.themes().current().accent);
        picture->setBorder(std::make_unique<EffectBorder>(*effect, colours, Radius::thumbnail));
    };
    page.follow(keys.previewEffect, show);
    page.follow(keys.effectColors, show);
    QObject::connect(&page.themes(), &Themes::changed, picture, show);
}

} // namespace

void SettingsPages::fillPreview(SettingsPage& page, const SettingsMeans&)
{
    page.addGroup();
    page.addChoice(keys.previewSeconds,
        {Words::tr("Closes after"), Words::tr("It stays while the pointer is on it.")},
        seconds({3, 6, 10, 15, 30, 0}, Words::tr("Never")), secondsTitle);

    RowGroup& border = page.addGroup(Words::tr("Border"));
    page.addChoice(keys.previewEffect, {Words::tr("Effect")},
        {{u"none"_s, Words::tr("None")}, {u"comet"_s, Words::tr("Comet")},
            {u"pulse"_s, Words::tr("Pulse")}, {u"spin"_s, Words::tr("Spin")}},
        [](const QVariant&) { return Words::tr("None"); });
    QList<SettingsPage::Choice> colours;
    for (std::size_t i = 0; i < EffectPalette::names.size(); ++i)
        colours << SettingsPage::Choice {
            EffectPalette::names.at(i).toString(), Words::tr(EffectPalette::titles.at(i))};
    page.addChoice(keys.effectColors, {Words::tr("Colours")}, colours,
        [](const QVariant&) { return Words::tr("Accent"); });
    addLivePreview(page, border);

    page.addGroup(Words::tr("Pet"));
    page.addSwitch(keys.petReactions,
        {Words::tr("The pet reacts"), Words::tr("A line and its points on each new capture.")});
}
