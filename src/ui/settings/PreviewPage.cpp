// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsPages.h"

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

QString capitalised(QStringView name)
{
    return name.first(1).toString().toUpper() + name.sliced(1).toString();
}

} // namespace

void SettingsPages::fillPreview(SettingsPage& page, const SettingsMeans&)
{
    page.addGroup();
    page.addChoice(keys.previewSeconds,
        {u"Closes after"_s, u"It stays while the pointer is on it."_s},
        seconds({3, 6, 10, 15, 30, 0}, u"Never"_s), secondsTitle);

    RowGroup& border = page.addGroup(u"Border"_s);
    page.addChoice(keys.previewEffect, {u"Effect"_s},
        {{u"none"_s, u"None"_s}, {u"comet"_s, u"Comet"_s}, {u"pulse"_s, u"Pulse"_s},
            {u"spin"_s, u"Spin"_s}},
        [](const QVariant&) { return u"None"_s; });
    QList<SettingsPage::Choice> colours;
    for (const QStringView name : EffectPalette::names)
        colours << SettingsPage::Choice {name.toString(), capitalised(name)};
    page.addChoice(
        keys.effectColors, {u"Colours"_s}, colours, [](const QVariant&) { return u"Accent"_s; });
    addLivePreview(page, border);

    page.addGroup(u"Pet"_s);
    page.addSwitch(
        keys.petReactions, {u"The pet reacts"_s, u"A line and its points on each new capture."_s});
}
