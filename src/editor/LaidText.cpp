// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/LaidText.h"

#include "editor/EmojiText.h"

#include <QCache>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr double unlimited = 1e6; // Width of a line that is not to be broken.

QString keyOf(const QString& text, const QFont& font, LaidText::Lines lines)
{
    return text + QChar::Null + font.key() + QString::number(int(lines));
}

/// Asked for a single outline, the toolkit's engine of a font of pictures draws nothing any more,
/// in the whole program. This question is harmless.
bool isOfPictures(const QRawFont& font)
{
    return !font.fontTable("CBLC").isEmpty() || !font.fontTable("sbix").isEmpty();
}

/// A character in the text without the code points that only ask for emoji.
struct Character {
    Grapheme place;
    bool emoji;
};

using Cache = QCache<QString, std::shared_ptr<const LaidText>>;

Cache& cache()
{
    constexpr int mostTexts = 400;
    static Cache kept(mostTexts);
    // Fonts have to go before the toolkit does.
    static const bool registered = [] {
        qAddPostRoutine([] { kept.clear(); });
        return true;
    }();
    Q_UNUSED(registered)
    return kept;
}

} // namespace

/// The toolkit's layout of what lies between two line breaks; one line, as nothing is broken.
struct LaidText::Paragraph {
    Paragraph(const QString& text, const QFont& font)
    {
        QString shown;
        QList<QTextLayout::FormatRange> formats;
        for (const Grapheme& grapheme : graphemesOf(text)) {
            QString character = text.mid(grapheme.from, grapheme.length);
            const bool emoji = isEmoji(character);
            character.remove(emojiPresentation);
            characters.push_back({{shown.size(), character.size()}, emoji});
            // Left alone, the toolkit takes emoji from any font that has them in black and white.
            if (emoji) {
                QTextCharFormat format;
                format.setFontFamilies({u"Noto Color Emoji"_s});
                format.setFontWeight(QFont::Normal);
                formats.append({int(shown.size()), int(character.size()), format});
            }
            shown += character;
        }
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        option.setTextDirection(Qt::LayoutDirectionAuto);
        option.setUseDesignMetrics(true);
        layout.setText(shown);
        layout.setFont(font);
        layout.setTextOption(option);
        layout.setFormats(formats);
        layout.beginLayout();
        line = layout.createLine();
        line.setLineWidth(unlimited);
        layout.endLayout();
    }

    QTextLayout layout;
    QTextLine line;
    std::vector<Character> characters;
    double top = 0;
};

std::shared_ptr<const LaidText> LaidText::of(const QString& text, const QFont& font, Lines lines)
{
    const QString key = keyOf(text, font, lines);
    if (const auto* const kept = cache().object(key))
        return *kept;
    auto laid = std::make_shared<const LaidText>(text, font, lines);
    cache().insert(key, new std::shared_ptr(laid));
    return laid;
}

LaidText::LaidText(const QString& text, const QFont& font, Lines lines)
    : m_key(keyOf(text, font, lines))
{
    const double lineSpacing = QFontMetricsF(font).lineSpacing();
    std::vector<std::unique_ptr<Paragraph>> paragraphs;
    for (const QString& part : text.split(u'\n')) {
        auto paragraph = std::make_unique<Paragraph>(part, font);
        paragraph->top = m_size.height();
        m_size.rwidth() = std::max(m_size.width(), paragraph->line.naturalTextWidth());
        m_size.rheight() += std::max(paragraph->line.height(), lineSpacing);
        paragraphs.push_back(std::move(paragraph));
    }
    m_outline.setFillRule(Qt::WindingFill);
    qsizetype index = 0;
    for (const auto& paragraph : paragraphs) {
        place(*paragraph, lines, index);
        index += std::ssize(paragraph->characters) + 1; // The line break is a character too.
    }
    m_ink = m_outline.controlPointRect();
    for (const QGlyphRun& run : m_emoji)
        m_ink |= run.boundingRect();
}

void LaidText::place(const Paragraph& paragraph, Lines lines, qsizetype firstIndex)
{
    const QRectF natural = paragraph.line.naturalTextRect();
    const double spare = m_size.width() - natural.width();
    double x = paragraph.layout.text().isRightToLeft() ? spare : 0;
    if (lines == Lines::Centred)
        x = spare / 2;
    const QPointF offset(x - natural.x(), paragraph.top);

    for (std::size_t at = 0; at < paragraph.characters.size(); ++at) {
        const auto& [place, emoji] = paragraph.characters[at];
        const auto runs = paragraph.line.glyphRuns(int(place.from), int(place.length));
        if (const QPainterPath outline = outlineOf(runs, offset); !outline.isEmpty())
            m_letters.push_back({firstIndex + qsizetype(at), outline});
    }
    for (const Letter& letter : m_letters)
        if (letter.index >= firstIndex)
            m_outline.addPath(letter.outline);
}

/// Keeps runs of pictures for drawEmoji().
QPainterPath LaidText::outlineOf(const QList<QGlyphRun>& runs, QPointF offset)
{
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    for (QGlyphRun run : runs) {
        const QRawFont font = run.rawFont();
        auto positions = run.positions();
        for (QPointF& position : positions)
            position += offset;
        if (isOfPictures(font)) {
            run.setPositions(positions);
            m_emoji.append(run);
            continue;
        }
        const auto glyphs = run.glyphIndexes();
        for (qsizetype index = 0; index < glyphs.size(); ++index)
            outline.addPath(font.pathForGlyph(glyphs[index]).translated(positions[index]));
    }
    return outline;
}

void LaidText::drawEmoji(QPainter& painter) const
{
    for (const QGlyphRun& run : m_emoji)
        painter.drawGlyphRun({}, run);
}
