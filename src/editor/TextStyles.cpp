// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/TextStyles.h"

#include "base/Words.h"
#include "editor/Colors.h"
#include "editor/Glow.h"
#include "editor/LaidText.h"
#include "editor/Resources.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QLocale>
#include <QPainter>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double em = LaidText::em;

QFont sized(QFont font, QFont::Weight weight)
{
    font.setPixelSize(LaidText::em);
    font.setWeight(weight);
    font.setItalic(false);
    font.setHintingPreference(QFont::PreferNoHinting); // Shapes are the same at every size.
    return font;
}

QFont bold()
{
    return systemFont(QFont::Bold);
}

QFont black()
{
    return systemFont(QFont::Black);
}

QFont typewriterFont()
{
    static const QString family = u"Courier New"_s;
    static const bool there = QFontDatabase::hasFamily(family);
    return sized(
        there ? QFont(family) : QFontDatabase::systemFont(QFontDatabase::FixedFont), QFont::Bold);
}

/// The face that memes are set in. Other writings than it has come as heavy as it is.
QFont memeFont()
{
    static const QStringList families = [] {
        const int id
            = QFontDatabase::addApplicationFont(editorResource(u"fonts/Anton-Regular.ttf"_s));
        return QFontDatabase::applicationFontFamilies(id);
    }();
    QFont font = sized(QGuiApplication::font(), QFont::Black);
    font.setFamilies(families + font.families());
    return font;
}

/// An outline of a width in font sizes, all of it outside: what is filled over it stays whole.
void stroke(QPainter& painter, const QPainterPath& path, const QColor& color, double width)
{
    painter.strokePath(
        path, QPen(color, 2 * width * em, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void fill(QPainter& painter, const LaidText& text, const QColor& color)
{
    painter.fillPath(text.outline(), color);
    text.drawEmoji(painter);
}

/// A rounded box around the text; lengths in font sizes.
void box(QPainter& painter, const LaidText& text, const QColor& color, QSizeF margin, double radius)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const double x = margin.width() * em, y = margin.height() * em;
    painter.drawRoundedRect(
        QRectF({}, text.size()).adjusted(-x, -y, x, y), radius * em, radius * em);
}

void drawClassic(QPainter& painter, const LaidText& text, const QColor& color)
{
    stroke(painter, text.outline(), Colors::contrasting(color), 0.03);
    fill(painter, text, color);
}

void drawBubble(QPainter& painter, const LaidText& text, const QColor& color)
{
    box(painter, text, color, {0.32, 0.16}, 0.3);
    fill(painter, text, Colors::contrasting(color));
}

void drawNeon(QPainter& painter, const LaidText& text, const QColor& color)
{
    drawGlow(painter, text, color, 0.45 * em);
    stroke(painter, text.outline(), color, 0.025);
    fill(painter, text, Colors::towardWhite(color, 0.75));
}

void drawTypewriter(QPainter& painter, const LaidText& text, const QColor&)
{
    box(painter, text, Colors::withAlpha(Qt::white, 0.96), {0.25, 0.1}, 0.12);
    fill(painter, text, QColor::fromRgbF(0.1F, 0.1F, 0.1F));
}

void drawGradient(QPainter& painter, const LaidText& text, const QColor&)
{
    static constexpr std::array rainbow {Colors::red, Colors::orange, Colors::yellow, Colors::green,
        Colors::teal, Colors::blue, Colors::purple};
    stroke(painter, text.outline(), Colors::withAlpha(Qt::black, 0.8), 0.035);
    for (const auto& letter : text.letters())
        painter.fillPath(letter.outline, rainbow[std::size_t(letter.index) % rainbow.size()]);
    text.drawEmoji(painter);
}

void drawMeme(QPainter& painter, const LaidText& text, const QColor&)
{
    stroke(painter, text.outline(), Qt::black, 0.09);
    fill(painter, text, Qt::white);
}

constexpr double plainPad = 4;

constexpr std::array<TextLook, 6> styles {{
    {QLatin1String(QT_TRANSLATE_NOOP("Words", "Classic")), QT_TRANSLATE_NOOP("Words", "outline"),
        bold, false, 0, plainPad, 0.04, drawClassic},
    {QLatin1String(QT_TRANSLATE_NOOP("Words", "Bubble")),
        QT_TRANSLATE_NOOP("Words", "TikTok label"), black, false, 0.35, 0, 0.4, drawBubble},
    {QLatin1String(QT_TRANSLATE_NOOP("Words", "Neon")), QT_TRANSLATE_NOOP("Words", "glow"), black,
        false, 0.3, 0, 1, drawNeon},
    {QLatin1String(QT_TRANSLATE_NOOP("Words", "Typewriter")), QT_TRANSLATE_NOOP("Words", "label"),
        typewriterFont, false, 0.25, 0, 0.3, drawTypewriter},
    {QLatin1String(QT_TRANSLATE_NOOP("Words", "Gradient")), QT_TRANSLATE_NOOP("Words", "rainbow"),
        bold, false, 0, plainPad, 0.04, drawGradient},
    {QLatin1String(QT_TRANSLATE_NOOP("Words", "Meme")), QT_TRANSLATE_NOOP("Words", "Impact"),
        memeFont, true, 0, plainPad, 0.1, drawMeme},
}};

} // namespace

QString TextLook::shown(const QString& text) const
{
    return upperCase ? QLocale().toUpper(text) : text;
}

std::span<const TextLook> TextStyles::all()
{
    return styles;
}

const TextLook& TextStyles::find(QStringView name)
{
    for (const TextLook& style : styles)
        if (name == style.name)
            return style;
    return styles.front();
}

QFont systemFont(QFont::Weight weight)
{
    return sized(QGuiApplication::font(), weight);
}
