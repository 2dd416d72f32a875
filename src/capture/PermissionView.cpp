// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/PermissionView.h"

#include "capture/SymbolHero.h"
#include "widgets/Enlarged.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int betweenItems = 18;
constexpr int buttonWidth = 160; // So that both are of one size.
constexpr int lineWidth = 350; // Lines of a length that is read at a glance.
constexpr auto lookAgain = 1000ms;

/// As the text engine lays it out with the theme's distance from line to line.
QString inLines(const QString& text)
{
    return u"<p align=center style=\"line-height:135%\">%1</p>"_s.arg(text);
}

} // namespace

PermissionView::PermissionView(const Sources& sources, QWidget* parent)
    : QWidget(parent)
    , m_sources(sources)
    , m_granted(sources.capture.permitted())
    , m_hero(new SymbolHero(sources.themes))
    , m_title(new TextLabel(sources.themes, TextStyle::Title2))
    , m_text(new TextLabel(
          sources.themes, TextStyle::Body, TextLabel::Role::Secondary, TextLabel::Lines::Wrapped))
    , m_start(GlassButton::ofText(sources.themes, tr("Get Started"), GlassButton::Look::Prominent))
    , m_settings(GlassButton::ofText(
          sources.themes, tr("Open System Settings"), GlassButton::Look::Prominent))
    , m_restart(GlassButton::ofText(sources.themes, tr("Restart Pixmallow")))
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Space::tiny);
    buttons->addStretch();
    for (GlassButton* button : {m_restart, m_settings, m_start}) {
        button->setMinimumWidth(std::max(buttonWidth, button->sizeHint().width()));
        buttons->addWidget(button);
    }
    buttons->addStretch();
    m_title->setAlignment(Qt::AlignCenter);
    m_text->setTextFormat(Qt::RichText);
    m_text->setFixedWidth(enlarged(lineWidth, sources.themes.current()));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Space::wide, Space::wide, Space::wide, Space::wide);
    column->setSpacing(betweenItems);
    column->addStretch();
    column->addWidget(m_hero, 0, Qt::AlignHCenter);
    column->addWidget(m_title);
    column->addWidget(m_text, 0, Qt::AlignHCenter);
    column->addLayout(buttons);
    column->addStretch();

    connect(m_start, &GlassButton::clicked, this, &PermissionView::closeWanted);
    connect(m_restart, &GlassButton::clicked, this, &PermissionView::restartWanted);
    connect(m_settings, &GlassButton::clicked, this,
        [this] { std::ignore = m_sources.workspace.openPermissionSettings(); });
    connect(&m_sources.themes, &Themes::changed, this, qOverload<>(&QWidget::update));
    m_timer.callOnTimeout(this, &PermissionView::refresh);
    m_timer.setInterval(lookAgain);
    tell();
}

QSize PermissionView::sizeHint() const
{
    const int width = QWidget::sizeHint().width();
    return {width, layout()->totalHeightForWidth(width)};
}

void PermissionView::refresh()
{
    m_granted = m_sources.capture.permitted();
    tell();
}

void PermissionView::tell()
{
    const QString title = m_granted ? tr("You're all set") : tr("Allow screen capture");
    const QString text = inLines(explanation());
    if (m_title->text() != title) {
        m_hero->setSymbol(m_granted ? u"checkmark.seal.fill"_s : u"camera.viewfinder"_s);
        m_title->setText(title);
    }
    if (m_text->text() != text) {
        m_text->setText(text);
        m_text->setMinimumHeight(m_text->heightForWidth(lineWidth)); // Other languages need more.
    }
    m_start->setVisible(m_granted);
    m_settings->setVisible(!m_granted);
    m_restart->setVisible(!m_granted);
}

QString PermissionView::explanation() const
{
    const PlatformWords& words = m_sources.words;
    if (!m_granted)
        return words.permission.toHtmlEscaped();
    const auto& home = m_sources.hasTray() ? words.home : words.homeWithoutTray;
    const QString shortcut = m_sources.shortcut();
    if (shortcut.isEmpty())
        return home.withoutShortcut.toHtmlEscaped();
    // The one thing to remember stands out.
    return home.withShortcut.toHtmlEscaped().arg(
        u"<span style=\"font-weight:600\">%1</span>"_s.arg(shortcut.toHtmlEscaped()));
}

void PermissionView::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), m_sources.themes.current().window);
}

void PermissionView::showEvent(QShowEvent* event)
{
    refresh();
    m_timer.start();
    setFocus(); // Return and Esc do the usual; a button is marked when somebody walks there.
    QWidget::showEvent(event);
}

void PermissionView::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void PermissionView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeWanted();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        (m_granted ? m_start : m_settings)->click();
    else
        QWidget::keyPressEvent(event);
}
