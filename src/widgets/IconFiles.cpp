// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/IconFiles.h"

#include <QHash>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const QHash<QString, QString> files {
    {u"rectangle.dashed"_s, u"selection"_s},
    {u"macwindow"_s, u"app-window"_s},
    {u"display"_s, u"monitor"_s},
    {u"timer"_s, u"timer"_s},
    {u"text.viewfinder"_s, u"text-viewfinder"_s},
    {u"text.magnifyingglass"_s, u"text-magnifying-glass"_s},
    {u"exclamationmark.triangle.fill"_s, u"warning-fill"_s},
    {u"camera.viewfinder"_s, u"scan"_s},
    {u"camera"_s, u"camera"_s},
    {u"xmark"_s, u"x"_s},
    {u"checkmark"_s, u"check"_s},
    {u"checkmark.circle"_s, u"check-circle"_s},
    {u"checkmark.circle.fill"_s, u"check-circle-fill"_s},
    {u"checkmark.seal.fill"_s, u"seal-check-fill"_s},
    {u"pencil"_s, u"pencil-simple"_s},
    {u"doc.on.doc"_s, u"copy"_s},
    {u"doc.on.clipboard"_s, u"clipboard"_s},
    {u"square.and.arrow.up"_s, u"export"_s},
    {u"square.and.arrow.down"_s, u"download-simple"_s},
    {u"pin"_s, u"push-pin"_s},
    {u"pin.fill"_s, u"push-pin-fill"_s},
    {u"folder"_s, u"folder"_s},
    {u"trash"_s, u"trash"_s},
    {u"envelope"_s, u"envelope-simple"_s},
    {u"link"_s, u"link"_s},
    {u"arrow.up.forward.app"_s, u"arrow-square-out"_s},
    {u"arrow.uturn.backward"_s, u"arrow-u-up-left"_s},
    {u"arrow.uturn.forward"_s, u"arrow-u-up-right"_s},
    {u"cursorarrow"_s, u"cursor"_s},
    {u"arrow.up.right"_s, u"arrow-up-right"_s},
    {u"rectangle"_s, u"rectangle"_s},
    {u"circle"_s, u"circle"_s},
    {u"line.diagonal"_s, u"line-segment"_s},
    {u"scribble"_s, u"scribble"_s},
    {u"highlighter"_s, u"highlighter"_s},
    {u"textformat"_s, u"text-t"_s},
    {u"1.circle"_s, u"number-circle-one"_s},
    {u"face.smiling"_s, u"smiley"_s},
    {u"square.grid.3x3.fill"_s, u"grid-nine-fill"_s},
    {u"eye.slash"_s, u"eye-slash"_s},
    {u"crop"_s, u"crop"_s},
    {u"minus.magnifyingglass"_s, u"magnifying-glass-minus"_s},
    {u"plus.magnifyingglass"_s, u"magnifying-glass-plus"_s},
    {u"arrow.up.left.and.down.right.magnifyingglass"_s, u"frame-corners"_s},
    {u"magnifyingglass"_s, u"magnifying-glass"_s},
    {u"party.popper"_s, u"confetti"_s},
    {u"gearshape"_s, u"gear-six"_s},
    {u"clock.arrow.circlepath"_s, u"clock-counter-clockwise"_s},
    {u"photo.on.rectangle.angled"_s, u"images"_s},
    {u"paintpalette"_s, u"palette"_s},
    {u"speaker.wave.2"_s, u"speaker-high"_s},
    {u"keyboard"_s, u"keyboard"_s},
    {u"info.circle"_s, u"info"_s},
    {u"questionmark.circle"_s, u"question"_s},
    {u"wand.and.stars"_s, u"magic-wand"_s},
    {u"trophy"_s, u"trophy"_s},
    {u"flame"_s, u"flame"_s},
    {u"sparkles"_s, u"sparkle"_s},
    {u"star"_s, u"star"_s},
    {u"lock"_s, u"lock"_s},
    {u"power"_s, u"power"_s},
    {u"play.fill"_s, u"play-fill"_s},
    {u"plus"_s, u"plus"_s},
    {u"minus"_s, u"minus"_s},
    {u"chevron.down"_s, u"caret-down"_s},
    {u"chevron.right"_s, u"caret-right"_s},
    {u"arrow.clockwise"_s, u"arrow-clockwise"_s},
    {u"arrow.down.circle"_s, u"arrow-circle-down"_s},
    {u"qrcode"_s, u"qr-code"_s},
    {u"ellipsis"_s, u"dots-three"_s},
    {u"square.stack"_s, u"stack"_s},
};

const QString unknown = u"question"_s;

const QSet<QString> directed {u"arrow.uturn.backward"_s, u"arrow.uturn.forward"_s,
    u"arrow.up.forward.app"_s, u"chevron.right"_s};

} // namespace

QStringList IconFiles::symbols()
{
    return files.keys();
}

bool IconFiles::has(const QString& symbol)
{
    return files.contains(symbol);
}

bool IconFiles::hasDirection(const QString& symbol)
{
    return directed.contains(symbol);
}

QString IconFiles::nameOf(const QString& symbol)
{
    return files.value(symbol, unknown);
}
