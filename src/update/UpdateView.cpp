// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/UpdateView.h"

#include "widgets/Accessible.h"
#include "widgets/Icons.h"
#include "widgets/Tile.h"
#include "widgets/style/FocusRing.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QProgressBar>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int viewWidth = 440; // Points.
constexpr int mostOfNotes = 220; // Points; more of them are scrolled to.
constexpr int symbolSide = 44;

class Symbol final : public QWidget {
public:
    explicit Symbol(const Themes& themes)
        : m_themes(themes)
    {
        Accessible::describeAsDecoration(*this);
        setFixedSize(symbolSide, symbolSide);
    }

private:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        Icons::paint(
            painter, u"arrow.down.circle"_s, rect(), symbolSide, m_themes.current().accentSymbol);
    }

    const Themes& m_themes;
};

/// As low as its content, up to a limit.
class Scrolled final : public QScrollArea {
public:
    explicit Scrolled(QWidget* content)
    {
        Accessible::describe(*this, {QAccessible::Grouping});
        setAccessibleName(UpdateView::tr("What is new"));
        FocusRing::wantedBy(*this);
        setWidget(content);
        setWidgetResizable(true);
        setFrameShape(NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        viewport()->setAutoFillBackground(false);
        content->setAutoFillBackground(false);
    }

private:
    void resizeEvent(QResizeEvent* event) override
    {
        QScrollArea::resizeEvent(event);
        const int all = widget()->heightForWidth(viewport()->width());
        setFixedHeight(std::min(mostOfNotes, all));
        setFocusPolicy(all > mostOfNotes ? Qt::StrongFocus : Qt::NoFocus);
    }
};

} // namespace

UpdateView::UpdateView(
    const Themes& themes, const UpdateInfo& info, const QString& currentVersion, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_stage(new TextLabel(
          themes, TextStyle::Callout, TextLabel::Role::Secondary, TextLabel::Lines::Wrapped))
    , m_progress(new QProgressBar)
    , m_skip(GlassButton::ofText(themes, tr("Skip This Version"), GlassButton::Look::Plain))
    , m_later(GlassButton::ofText(themes, tr("Later")))
    , m_install(GlassButton::ofText(themes, tr("Install"), GlassButton::Look::Prominent))
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Space::related);
    buttons->addWidget(m_skip);
    buttons->addStretch();
    buttons->addWidget(m_later);
    buttons->addWidget(m_install);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Space::window, Space::window, Space::window, Space::window);
    column->setSpacing(Space::group);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addStrut(viewWidth - 2 * Space::window);
    column->addWidget(header(info, currentVersion));
    if (!info.notes.isEmpty())
        column->addWidget(notes(info.notes));
    column->addWidget(m_progress);
    column->addWidget(m_stage);
    column->addLayout(buttons);

    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("Download"));
    m_progress->hide();
    m_stage->hide();
    connect(m_skip, &GlassButton::clicked, this, &UpdateView::skipWanted);
    connect(m_later, &GlassButton::clicked, this, &UpdateView::laterWanted);
    connect(m_install, &GlassButton::clicked, this, &UpdateView::installWanted);
    connect(&m_themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

QWidget* UpdateView::header(const UpdateInfo& info, const QString& currentVersion)
{
    auto* title = new TextLabel(m_themes, TextStyle::Title3);
    title->setText(tr("Pixmallow %1 is available.").arg(info.version));
    auto* detail = new TextLabel(m_themes, TextStyle::Callout, TextLabel::Role::Secondary);
    const QString running = tr("You have %1.").arg(currentVersion);
    detail->setText(info.date.isEmpty() ? running : tr("Released %1. %2").arg(info.date, running));
    auto* texts = new QVBoxLayout;
    texts->setSpacing(Space::tiny);
    texts->addWidget(title);
    texts->addWidget(detail);
    auto* whole = new QWidget;
    auto* row = new QHBoxLayout(whole);
    row->setContentsMargins({});
    row->setSpacing(Space::inner);
    row->addWidget(new Symbol(m_themes));
    row->addLayout(texts, 1);
    return whole;
}

QWidget* UpdateView::notes(const QStringList& lines)
{
    auto* list = new QWidget;
    auto* rows = new QVBoxLayout(list);
    rows->setContentsMargins(Space::inner, Space::inner, Space::inner, Space::inner);
    rows->setSpacing(Space::related);
    for (const QString& line : lines) {
        auto* note = new TextLabel(
            m_themes, TextStyle::Body, TextLabel::Role::Text, TextLabel::Lines::Wrapped);
        note->setTextFormat(Qt::PlainText); // It comes from elsewhere.
        note->setText(line);
        auto* bullet = new TextLabel(m_themes, TextStyle::Body, TextLabel::Role::Secondary);
        bullet->setText(u"•"_s);
        auto* row = new QHBoxLayout;
        row->setSpacing(Space::related);
        row->addWidget(bullet, 0, Qt::AlignTop);
        row->addWidget(note, 1);
        rows->addLayout(row);
    }
    auto* tile = new Tile(m_themes);
    auto* column = new QVBoxLayout(tile);
    column->setContentsMargins({});
    column->addWidget(new Scrolled(list));
    return tile;
}

void UpdateView::setInstalling(bool installing)
{
    m_progress->setRange(0, 0);
    m_progress->setVisible(installing);
    m_install->setEnabled(!installing);
    m_skip->setEnabled(!installing);
    m_later->setText(installing ? tr("Cancel") : tr("Later"));
}

void UpdateView::setStage(const QString& stage)
{
    m_stage->setText(stage);
    m_stage->setVisible(!stage.isEmpty());
}

void UpdateView::setReceived(qint64 bytes, qint64 total)
{
    constexpr int steps = 1000; // The bar counts in int.
    if (total <= 0)
        return;
    m_progress->setRange(0, steps);
    m_progress->setValue(int(double(steps) * double(bytes) / double(total)));
}

void UpdateView::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), m_themes.current().window);
}

void UpdateView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT laterWanted();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_install->click();
    else
        QWidget::keyPressEvent(event);
}

void UpdateView::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    Q_EMIT closed();
}
