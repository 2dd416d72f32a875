// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/TrayIcon.h"

#include "widgets/Icons.h"

#include <QCache>
#include <QIconEngine>
#include <QPainter>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace {

/// An emoji as large as the toolkit's font has it, without blank borders. To reduce that smoothly
/// is sharper than to let the font do it.
QImage drawn(const QString& emoji)
{
    constexpr int side = 160; // Pixels.
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QFont font;
    font.setPixelSize(109); // At which the usual font of colour emoji has its pictures.
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(image.rect(), Qt::AlignCenter, emoji);
    painter.end();
    QRect inked;
    for (int y = 0; y < side; ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < side; ++x)
            if (qAlpha(row[x]) > 0)
                inked |= QRect(x, y, 1, 1);
    }
    return image.copy(inked);
}

/// The few that a label goes to and fro between with every capture.
QImage recalled(const QString& emoji)
{
    static QCache<QString, QImage> known(8);
    if (const QImage* image = known.object(emoji))
        return *image;
    const QImage image = drawn(emoji);
    known.insert(emoji, new QImage(image));
    return image;
}

/// The characters as a reader counts them.
QStringList parted(const QString& text)
{
    QStringList parts;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype begin = 0;
    while (finder.toNextBoundary() > 0) {
        parts << text.mid(begin, finder.position() - begin);
        begin = finder.position();
    }
    return parts;
}

/// Draws at any size; what it draws from is made once.
class Engine final : public QIconEngine {
public:
    Engine(const QString& text, const Theme& theme)
        : m_accent(theme.accent)
        , m_onAccent(theme.onAccent)
    {
        for (const QString& part : parted(text))
            m_emoji << recalled(part);
    }

    QIconEngine* clone() const override { return new Engine(*this); }

    QPixmap pixmap(const QSize& pixels, QIcon::Mode, QIcon::State) override
    {
        QPixmap pixmap(pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        draw(painter, QRectF({}, pixels));
        return pixmap;
    }

    void paint(QPainter* painter, const QRect& box, QIcon::Mode, QIcon::State) override
    {
        draw(*painter, box);
    }

private:
    void draw(QPainter& painter, QRectF box) const
    {
        const double side = std::min(box.width(), box.height());
        QRectF square(0, 0, side, side);
        square.moveCenter(box.center());
        painter.setRenderHint(QPainter::Antialiasing);
        if (m_emoji.isEmpty()) {
            drawSymbol(painter, square);
            return;
        }
        drawFitted(painter, m_emoji.first(), square.adjusted(0.5, 0.5, -0.5, -0.5));
        if (m_emoji.size() < 2)
            return;
        constexpr double small = 0.55; // Of the side.
        drawFitted(painter, m_emoji[1],
            QRectF(square.right() - small * side, square.top(), small * side, small * side));
    }

    /// On a ground of its own: nobody knows what colour the tray has.
    void drawSymbol(QPainter& painter, QRectF square) const
    {
        const double side = square.width();
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_accent);
        painter.drawRoundedRect(square, side * 0.24, side * 0.24);
        Icons::paint(painter, u"camera.viewfinder"_s, square, int(side * 0.8), m_onAccent);
    }

    static void drawFitted(QPainter& painter, const QImage& image, QRectF square)
    {
        const double scale = painter.device()->devicePixelRatioF();
        const QImage reduced = image.scaled(
            (square.size() * scale).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QRectF place({}, QSizeF(reduced.size()) / scale);
        place.moveCenter(square.center());
        const auto whole = [scale](double at) { return std::round(at * scale) / scale; };
        place.moveTopLeft({whole(place.left()), whole(place.top())});
        painter.drawImage(place, reduced);
    }

    QList<QImage> m_emoji;
    QColor m_accent, m_onAccent;
};

} // namespace

QIcon TrayIcon::of(const QString& emoji, const Theme& theme)
{
    return QIcon(new Engine(emoji, theme));
}
