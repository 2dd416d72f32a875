// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/panel/PanelView.h"

#include "base/Words.h"
#include "ui/panel/PetRow.h"
#include "ui/panel/RecentStrip.h"
#include "widgets/Accessible.h"
#include "widgets/Enlarged.h"

#include <QCoreApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int panelWidth = 320; // Points.
constexpr int placeHeight = 32;

} // namespace

PanelView::PanelView(const Means& means)
    : m_means(means)
    , m_column(new QVBoxLayout(this))
    , m_pet(new PetRow(means.themes, means.fun))
    , m_recent(new RecentStrip(means.themes, means.history, means.recent))
{
    Accessible::describe(*this, {QAccessible::Grouping});
    setAccessibleName(u"Pixmallow"_s);
    setFocusPolicy(Qt::StrongFocus);
    m_column->setContentsMargins(Space::related, Space::related, Space::related, Space::related);
    m_column->setSpacing(0);
    m_column->addWidget(m_pet);
    addCaptures();
    addLine();
    m_column->addWidget(m_recent);
    addPlaces();
    connect(m_recent, &RecentStrip::done, this, &PanelView::done);
    connect(&m_means.prefs, &Prefs::changed, this, &PanelView::refreshCaptures);
    connect(&m_means.state, &AppState::captureEnded, this, &PanelView::refresh);
    refresh();
}

void PanelView::addCaptures()
{
    m_allow = add(
        u"lock"_s, tr("Allow capture…"), [this] { m_means.state.askForPermission(); },
        PanelRow::Look::Prominent);
    for (const auto& info : captureKinds)
        if (m_means.state.isAvailable(info.kind))
            m_captures << std::pair(info.kind,
                add(info.symbol, Words::tr(info.title),
                    [this, kind = info.kind] { m_means.state.capture(kind); }));
}

void PanelView::addPlaces()
{
    AppState& state = m_means.state;
    m_editLast = add(u"pencil"_s, tr("Edit last capture"), [&state] { state.editLast(); });
    m_history = add(u"clock.arrow.circlepath"_s, tr("History"), [&state] { state.showHistory(); });
    m_gallery = add(u"trophy"_s, tr("Achievements"), [&state] { state.showGallery(); });
    auto* settings
        = add(u"gearshape"_s, tr("Settings…"), [&state] { Q_EMIT state.settingsRequested(); });
    addLine();
    m_update = add(
        u"arrow.down.circle"_s, {}, [this] { m_means.showUpdate(); }, PanelRow::Look::Prominent);
    auto* quit = add(u"power"_s, tr("Quit Pixmallow"), [] { QCoreApplication::quit(); });
    for (PanelRow* row : {m_editLast, m_history, m_gallery, settings, m_update, quit})
        row->setHeight(placeHeight);
}

PanelRow* PanelView::add(
    const QString& symbol, const QString& title, std::function<void()> act, PanelRow::Look look)
{
    auto* row = new PanelRow(m_means.themes, symbol, look);
    row->setTitle(title);
    m_column->addWidget(row);
    connect(row, &QAbstractButton::clicked, this, [this, act = std::move(act)] {
        Q_EMIT done();
        act();
    });
    return row;
}

void PanelView::addLine()
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFixedHeight(1 + Space::related);
    line->setContentsMargins(Space::tiny, 0, Space::tiny, 0);
    m_column->addWidget(line);
}

void PanelView::refresh()
{
    m_pet->greet();
    m_recent->refresh();
    refreshCaptures();
    const AppState& state = m_means.state;
    m_editLast->setVisible(state.hasEditor());
    m_editLast->setEnabled(state.last() || !m_means.history.items().isEmpty());
    m_history->setVisible(state.hasHistory());
    m_gallery->setVisible(state.hasGallery());
    const QString update = m_means.updateNotice ? m_means.updateNotice() : QString();
    m_update->setTitle(update);
    m_update->setVisible(!update.isEmpty());
    updateGeometry();
}

void PanelView::refreshCaptures()
{
    const bool isPermitted = m_means.state.isPermitted();
    m_allow->setVisible(!isPermitted);
    for (const auto& [kind, row] : m_captures) {
        QString title = Words::tr(infoOf(kind).title);
        if (title.contains(u"%1"_s))
            title = title.arg(m_means.prefs.get(Prefs::keys.delaySeconds));
        row->setTitle(title);
        const auto shortcut = m_means.state.hotkey(kind);
        row->setShortcut(
            shortcut ? shortcut->display() : QString(), shortcut ? shortcut->spelled() : QString());
        row->setEnabled(isPermitted);
        if (kind == CaptureKind::Window) {
            const auto& target = m_means.state.lastOtherApp();
            row->setDetail(target ? target->name : QString());
        }
    }
}

QSize PanelView::sizeHint() const
{
    return {enlarged(panelWidth, m_means.themes.current()), QWidget::sizeHint().height()};
}

void PanelView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        return step(1);
    case Qt::Key_Up:
        return step(-1);
    case Qt::Key_Right:
        return step(isRightToLeft() ? -1 : 1);
    case Qt::Key_Left:
        return step(isRightToLeft() ? 1 : -1);
    default:
        QWidget::keyPressEvent(event);
    }
}

bool PanelView::focusNextPrevChild(bool next)
{
    step(next ? 1 : -1);
    return true;
}

/// To the next or the previous one that can be taken; round at the ends.
void PanelView::step(int by)
{
    QList<QAbstractButton*> all;
    for (auto* button : findChildren<QAbstractButton*>())
        if (button->isVisibleTo(this) && button->isEnabled()
            && button->focusPolicy() != Qt::NoFocus)
            all << button;
    if (all.isEmpty())
        return;
    // As they are seen; children are listed as they were made.
    std::ranges::sort(all, {}, [this](const QAbstractButton* button) {
        const QPoint place = button->mapTo(this, QPoint());
        return std::pair(place.y(), isRightToLeft() ? -place.x() : place.x());
    });
    const auto now = all.indexOf(qobject_cast<QAbstractButton*>(focusWidget()));
    const auto next
        = now < 0 ? (by > 0 ? 0 : all.size() - 1) : (now + by + all.size()) % all.size();
    all[next]->setFocus(Qt::TabFocusReason);
}
