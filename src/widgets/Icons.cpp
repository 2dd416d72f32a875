// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Icons.h"

#include "widgets/IconFiles.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>

using namespace Qt::StringLiterals;

// Outside of any class or namespace, as the macro demands.
static void loadIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace {

/// The toolkit draws "currentColor" black whatever the palette says, so the colour is written in.
QByteArray coloured(const QString& symbol, const QColor& colour)
{
    loadIcons();
    QFile file(u":/icons/%1.svg"_s.arg(IconFiles::nameOf(symbol)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll().replace("currentColor", colour.name(QColor::HexRgb).toLatin1());
}

/// Paints at whatever size is asked for.
class Engine final : public QIconEngine {
public:
    Engine(QString symbol, const QColor& colour, const QColor& active)
        : m_symbol(std::move(symbol))
        , m_colour(colour)
        , m_active(active)
    {
    }

    QIconEngine* clone() const override { return new Engine(*this); }

    void paint(QPainter* painter, const QRect& box, QIcon::Mode mode, QIcon::State) override
    {
        // Of a menu's row that is chosen, and of a list's.
        const bool isChosen = mode == QIcon::Active || mode == QIcon::Selected;
        QColor colour = isChosen ? m_active : m_colour;
        if (mode == QIcon::Disabled)
            colour.setAlphaF(colour.alphaF() * 0.4f);
        Icons::paint(*painter, m_symbol, box, std::min(box.width(), box.height()), colour);
    }

    QPixmap pixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(pixels);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, {{}, pixels}, mode, state);
        return pixmap;
    }

private:
    QString m_symbol;
    QColor m_colour;
    QColor m_active;
};

} // namespace

bool Icons::has(const QString& symbol)
{
    return IconFiles::has(symbol);
}

QPixmap Icons::pixmap(const QString& symbol, int size, const QColor& colour, double scale)
{
    const QString key
        = u"icon-%1-%2-%3-%4"_s.arg(symbol).arg(size).arg(colour.rgba(), 8, 16).arg(scale);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    const int pixels = int(std::lround(size * scale));
    pixmap = QPixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(coloured(symbol, colour));
    QPainter painter(&pixmap);
    painter.setOpacity(colour.alphaF());
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(scale);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

void Icons::paint(
    QPainter& painter, const QString& symbol, QRectF box, int size, const QColor& colour)
{
    const double scale = painter.device()->devicePixelRatioF();
    const QPixmap drawn = pixmap(symbol, size, colour, scale);
    // On whole device pixels, or it would be blurred.
    const auto whole = [scale](double at) { return std::round(at * scale) / scale; };
    const QPointF corner = box.center() - QPointF(size, size) / 2;
    const QPointF place(whole(corner.x()), whole(corner.y()));
    if (QGuiApplication::isLeftToRight() || !IconFiles::hasDirection(symbol)) {
        painter.drawPixmap(place, drawn);
        return;
    }
    const QTransform before = painter.transform();
    painter.translate(2 * place.x() + size, 0);
    painter.scale(-1, 1);
    painter.drawPixmap(place, drawn);
    painter.setTransform(before);
}

QIcon Icons::icon(const QString& symbol, const QColor& colour, const QColor& active)
{
    return QIcon(new Engine(symbol, colour, active.isValid() ? active : colour));
}
