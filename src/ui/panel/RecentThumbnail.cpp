// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/panel/RecentThumbnail.h"

#include "ui/panel/RecentActions.h"
#include "widgets/GlassButton.h"
#include "widgets/style/StyleTools.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace {

/// A button of the bar, in the theme's colours on its card, which covers the picture.
class Bar final : public QWidget {
public:
    Bar(const Themes& themes, QWidget* parent)
        : QWidget(parent)
        , m_themes(themes)
    {
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = m_themes.current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        StyleTools::paintBox(painter, rect(), Radius::cell, theme.card);
    }

private:
    const Themes& m_themes;
};

} // namespace

RecentThumbnail::RecentThumbnail(const Themes& themes, HistoryItem item, RecentActions& actions)
    : m_themes(themes)
    , m_item(std::move(item))
    , m_actions(actions)
    , m_bar(new Bar(themes, this))
{
    setFixedSize(extent);
    setFocusPolicy(Qt::StrongFocus);
    const QString when = QLocale().toString(m_item.time().toLocalTime(), QLocale::ShortFormat);
    const QString app = m_item.appName();
    setAccessibleName(app.isEmpty() ? when : u"%1, %2"_s.arg(app, when));
    setToolTip(accessibleName());
    auto* row = new QHBoxLayout(m_bar);
    row->setContentsMargins({});
    row->setSpacing(0);
    if (m_actions.canEdit())
        addAction(u"pencil"_s, tr("Edit"), [this] { m_actions.edit(m_item); });
    addAction(u"doc.on.doc"_s, tr("Copy"), [this] { m_actions.copy(m_item); });
    if (!m_actions.canEdit())
        addAction(u"pin"_s, tr("Pin"), [this] { m_actions.pin(m_item); });
    m_bar->setGeometry(rect().adjusted(2, 10, -2, -10));
    m_bar->hide();
    connect(this, &QAbstractButton::clicked, this, [this] {
        m_actions.canEdit() ? m_actions.edit(m_item) : m_actions.pin(m_item);
        Q_EMIT done();
    });
}

void RecentThumbnail::addAction(
    const QString& symbol, const QString& help, std::function<void()> act)
{
    auto* button = GlassButton::ofSymbol(m_themes, symbol, help, GlassButton::Look::Plain);
    button->setSymbolExtent({Extent::control - 4, Extent::control - 4});
    button->setFocusPolicy(Qt::NoFocus);
    m_bar->layout()->addWidget(button);
    connect(button, &QAbstractButton::clicked, this, [this, act = std::move(act)] {
        act();
        Q_EMIT done();
    });
}

void RecentThumbnail::setPicture(const QImage& picture)
{
    const QSize pixels = extent * devicePixelRatioF();
    const QImage scaled
        = picture.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((scaled.width() - pixels.width()) / 2, 0); // Its top tells most.
    m_picture = QPixmap::fromImage(scaled.copy(QRect(corner, pixels)));
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    update();
}

void RecentThumbnail::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_themes.current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    StyleTools::paintBox(painter, rect(), Radius::cell, theme.well);
    if (!m_picture.isNull()) {
        QPainterPath path;
        path.addRoundedRect(rect(), Radius::cell, Radius::cell);
        painter.setPen(Qt::NoPen);
        QBrush picture(m_picture);
        painter.fillPath(path, picture);
    }
    const bool isLit = hasFocus();
    StyleTools::paintBox(painter, rect(), Radius::cell, Qt::transparent,
        isLit ? theme.accentSymbol : theme.hairline, isLit ? Extent::focusRing : Extent::hairline);
}

void RecentThumbnail::showActions()
{
    m_bar->setVisible(underMouse());
    update();
}

void RecentThumbnail::enterEvent(QEnterEvent* event)
{
    setFocus(Qt::MouseFocusReason);
    showActions();
    QAbstractButton::enterEvent(event);
}

void RecentThumbnail::leaveEvent(QEvent* event)
{
    m_bar->hide();
    QAbstractButton::leaveEvent(event);
}

void RecentThumbnail::focusInEvent(QFocusEvent* event)
{
    QAbstractButton::focusInEvent(event);
    update();
}

void RecentThumbnail::focusOutEvent(QFocusEvent* event)
{
    QAbstractButton::focusOutEvent(event);
    update();
}

void RecentThumbnail::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else if (event->matches(QKeySequence::Copy)) {
        m_actions.copy(m_item);
        Q_EMIT done();
    } else if (event->key() == Qt::Key_Space) {
        QAbstractButton::keyPressEvent(event);
    } else {
        event->ignore(); // The toolkit's buttons would take the arrow keys.
    }
}

void RecentThumbnail::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    m_actions.fill(*menu, m_item, nullptr);
    connect(menu, &QMenu::triggered, this, &RecentThumbnail::done);
    menu->popup(event->globalPos());
}
