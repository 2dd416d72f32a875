// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorLayout.h"

#include "base/Words.h"
#include "editor/CenteringClipView.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr QSize around(80, 140); ///< The picture, in a window that shows it in its own size.
constexpr QSize leastContent(760, 520);
constexpr int fitMargin = 40;

constexpr double partOfScreen = 0.9;

} // namespace

QSize EditorLayout::contentSize(QSize picture, double scale, QSize workArea)
{
    const QSize points(
        int(std::lround(picture.width() / scale)), int(std::lround(picture.height() / scale)));
    return (points + around).expandedTo(leastContent).boundedTo(workArea * partOfScreen);
}

double EditorLayout::fittingMagnification(QSize picture, QSize view, double scale)
{
    const double across = double(view.width() - fitMargin) / picture.width();
    const double along = double(view.height() - fitMargin) / picture.height();
    const double most = scale >= 1 ? 1 / scale : 1;
    return std::max(std::min({across, along, most}), CenteringClipView::leastMagnification);
}

QString EditorLayout::subtitle(QSize picture, bool isEdited)
{
    const QString size = u"%1 × %2"_s.arg(picture.width()).arg(picture.height());
    return isEdited ? Words::tr("%1 — Edited").arg(size) : size;
}
