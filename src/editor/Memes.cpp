// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Memes.h"

#include <QSize>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double leastFontSize = 18; // Pixels of the picture.
constexpr double fontsPerWidth = 12;
constexpr double marginsPerFont = 7;
constexpr double gainWorthABreak = 1.4;

Annotation lineOf(const QString& text, double fontSize)
{
    Annotation it(Tool::Text, Qt::white, 4);
    it.style = u"Meme"_s;
    it.text = text;
    it.fontSize = fontSize;
    it.centered = true;
    return it;
}

/// Broken where both parts are most alike; as it is where it has no blank.
QString broken(const QString& text)
{
    qsizetype best = -1;
    for (qsizetype at = text.indexOf(u' '); at >= 0; at = text.indexOf(u' ', at + 1))
        if (std::abs(2 * at - text.size()) < std::abs(2 * best - text.size()))
            best = at;
    return best < 0 ? text : text.left(best) + u'\n' + text.mid(best + 1);
}

/// As large as fits, but no larger than given.
Annotation fitted(const QString& text, double fontSize, double width)
{
    Annotation it = lineOf(text, fontSize);
    const double wide = it.bounds().width();
    if (wide > width)
        it.fontSize = std::max(leastFontSize / 2, std::floor(fontSize * width / wide));
    return it;
}

} // namespace

std::vector<Annotation> Memes::captions(const QString& top, const QString& bottom, QSize picture)
{
    const double fontSize = std::max(leastFontSize, picture.width() / fontsPerWidth);
    const double margin = fontSize / marginsPerFont;
    const auto caption = [&](const QString& text) {
        Annotation whole = fitted(text, fontSize, picture.width() - 2 * margin);
        Annotation inTwo = fitted(broken(text), fontSize, picture.width() - 2 * margin);
        Annotation& it = inTwo.fontSize > gainWorthABreak * whole.fontSize ? inTwo : whole;
        it.a.setX(picture.width() / 2.);
        return it.copy();
    };
    std::vector<Annotation> captions;
    if (const QString text = top.trimmed(); !text.isEmpty()) {
        captions.push_back(caption(text));
        captions.back().a.ry() += margin - captions.back().bounds().top();
    }
    if (const QString text = bottom.trimmed(); !text.isEmpty()) {
        captions.push_back(caption(text));
        captions.back().a.ry() += picture.height() - margin - captions.back().bounds().bottom();
    }
    return captions;
}
