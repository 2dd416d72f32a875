// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EmojiArt.h"

#include "editor/EmojiText.h"
#include "editor/LaidText.h"
#include "editor/Resources.h"
#include "editor/TextStyles.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

constexpr double typeSize = 0.8; // Font size of a sticker in type, in sides.

/// The file of an emoji is named after its code points.
QString fileOf(QString emoji)
{
    emoji.remove(emojiPresentation);
    QStringList codes;
    for (const char32_t code : emoji.toUcs4())
        codes.append(QString::number(code, 16));
    return editorResource(u"emoji/"_s + codes.join(u'-') + u".svg"_s);
}

/// Null if there is none.
QSvgRenderer* drawingOf(const QString& emoji)
{
    static std::unordered_map<QString, std::unique_ptr<QSvgRenderer>> drawings;
    if (!EmojiArt::isDrawn(emoji))
        return nullptr;
    auto& drawing = drawings[emoji];
    if (!drawing)
        drawing = std::make_unique<QSvgRenderer>(fileOf(emoji));
    return drawing.get();
}

std::shared_ptr<const LaidText> typed(const QString& text)
{
    return LaidText::of(text, systemFont(QFont::Normal));
}

} // namespace

bool EmojiArt::isDrawn(const QString& emoji)
{
    return QFile::exists(fileOf(emoji));
}

void EmojiArt::draw(QPainter& painter, const QString& emoji, double side, const QColor& color)
{
    if (QSvgRenderer* const drawing = drawingOf(emoji)) {
        drawing->render(&painter, rect(emoji, side));
        return;
    }
    const auto text = typed(emoji);
    const double scale = side * typeSize / LaidText::em;
    painter.save();
    painter.scale(scale, scale);
    painter.translate(-text->size().width() / 2, -text->size().height() / 2);
    painter.fillPath(text->outline(), color);
    text->drawEmoji(painter);
    painter.restore();
}

QRectF EmojiArt::rect(const QString& emoji, double side)
{
    if (isDrawn(emoji))
        return {-side / 2, -side / 2, side, side};
    const auto text = typed(emoji);
    const double scale = side * typeSize / LaidText::em;
    const QRectF inked = text->ink() | QRectF({}, text->size());
    const QPointF centre(text->size().width() / 2, text->size().height() / 2);
    return {(inked.topLeft() - centre) * scale, inked.size() * scale};
}
