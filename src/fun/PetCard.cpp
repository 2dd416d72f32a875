// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/PetCard.h"

#include "fun/Emoji.h"
#include "fun/Pet.h"
#include "widgets/Contrast.h"
#include "widgets/GlassButton.h"
#include "widgets/Mirrored.h"
#include "widgets/TextLabel.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QStackedLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int portraitSize = 72;
constexpr int petSize = 48;
constexpr int barHeight = 4;
constexpr int stageSize = 22;
constexpr double discTone = 0.14; // Of the accent.
constexpr int longestName = 24;

qint64 pointsFor(int level)
{
    return 40 * qint64(level - 1) * (level - 1);
}

QWidget* place(int width, int height)
{
    auto* place = new QWidget;
    if (width > 0)
        place->setFixedWidth(width);
    place->setFixedHeight(height);
    return place;
}

} // namespace

PetCard::PetCard(const Themes& themes, Fun& fun, QWidget* parent)
    : Tile(themes, parent)
    , m_fun(fun)
    , m_portrait(place(portraitSize, portraitSize))
    , m_level(place(0, barHeight))
    , m_stages(place(0, stageSize + Space::related))
    , m_stage(new TextLabel(themes, TextStyle::Callout, TextLabel::Role::Secondary))
    , m_next(new TextLabel(themes, TextStyle::Caption, TextLabel::Role::Secondary))
{
    auto* about = new QVBoxLayout;
    about->setSpacing(0);
    about->addStretch();
    about->addLayout(nameRow());
    about->addWidget(m_stage);
    about->addSpacing(Space::related);
    about->addWidget(m_level);
    about->addSpacing(Space::tiny);
    about->addWidget(m_next);
    about->addStretch();
    auto* top = new QHBoxLayout;
    top->setSpacing(Space::group);
    top->addWidget(m_portrait);
    top->addLayout(about, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Space::group, Space::inner, Space::group, Space::inner);
    column->setSpacing(Space::related);
    column->addLayout(top, 1);
    column->addWidget(m_stages);
    column->addLayout(numbers());
    refresh();
}

QLayout* PetCard::nameRow()
{
    m_name = new TextLabel(themes(), TextStyle::Title2);
    m_rename = GlassButton::ofSymbol(
        themes(), u"pencil"_s, tr("Rename your pet"), GlassButton::Look::Plain);
    m_rename->setSymbolExtent({Extent::control, Extent::control});
    connect(m_rename, &QAbstractButton::clicked, this, &PetCard::beginRenaming);
    m_shownName = new QWidget;
    auto* row = new QHBoxLayout(m_shownName);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Space::tiny);
    row->addWidget(m_name);
    row->addWidget(m_rename);
    row->addStretch();

    m_edited = new QLineEdit;
    m_edited->setAccessibleName(tr("Name of your pet"));
    m_edited->installEventFilter(this);
    connect(m_edited, &QLineEdit::editingFinished, this, [this] { endRenaming(true); });
    m_names = new QStackedLayout;
    m_names->addWidget(m_shownName);
    m_names->addWidget(m_edited);
    return m_names;
}

QLayout* PetCard::numbers()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Space::related);
    for (const QString& what : {tr("Captures"), tr("Today"), tr("Edits"), u"XP"_s}) {
        auto* column = new QVBoxLayout;
        column->setSpacing(0);
        m_numbers.append(new TextLabel(themes(), TextStyle::Title3));
        auto* caption = new TextLabel(themes(), TextStyle::Caption, TextLabel::Role::Secondary);
        caption->setText(what);
        m_numbers.last()->setAccessibleName(what);
        column->addWidget(m_numbers.last());
        column->addWidget(caption);
        row->addLayout(column, 1);
    }
    return row;
}

void PetCard::refresh()
{
    const QLocale locale;
    const FunStats& stats = m_fun.stats();
    m_name->setText(stats.petName);
    m_stage->setText(tr("%1  •  Level %2").arg(m_fun.stageName(), locale.toString(m_fun.level())));
    m_next->setText(m_fun.nextStage());
    const std::array values {stats.total, m_fun.today(), stats.edits, stats.xp};
    for (std::size_t i = 0; i < values.size(); ++i)
        m_numbers[qsizetype(i)]->setText(locale.toString(values[i]));
    setAccessibleName(
        tr("%1, %2, level %3").arg(stats.petName, m_fun.stageName()).arg(m_fun.level()));
    update();
}

void PetCard::beginRenaming()
{
    m_edited->setText(m_fun.stats().petName);
    m_edited->setMaxLength(2 * longestName); // Emoji take more than one place.
    m_names->setCurrentWidget(m_edited);
    m_edited->setFocus();
    m_edited->selectAll();
}

void PetCard::endRenaming(bool keeps)
{
    if (m_names->currentWidget() != m_edited)
        return;
    const bool hadFocus = m_edited->hasFocus();
    m_names->setCurrentWidget(m_shownName);
    if (hadFocus)
        m_rename->setFocus();
    if (keeps)
        m_fun.rename(m_edited->text());
}

bool PetCard::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_edited && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        endRenaming(false);
        return true;
    }
    return Tile::eventFilter(watched, event);
}

void PetCard::paintEvent(QPaintEvent* event)
{
    Tile::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Contrast::mixed(theme().window, theme().accent, discTone));
    painter.drawEllipse(m_portrait->geometry());
    Emoji::paint(painter, m_fun.petEmoji(), m_portrait->geometry(), petSize);
    paintLevel(painter);
    paintStages(painter);
}

void PetCard::paintLevel(QPainter& painter) const
{
    const int level = m_fun.level();
    const auto from = double(pointsFor(level)), to = double(pointsFor(level + 1));
    const double done = std::clamp((double(m_fun.stats().xp) - from) / (to - from), 0.0, 1.0);
    QRectF bar = m_level->geometry();
    const double round = barHeight / 2.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().fillHover);
    painter.drawRoundedRect(bar, round, round);
    const double length = std::max<double>(barHeight, bar.width() * done);
    isRightToLeft() ? bar.setLeft(bar.right() - length) : bar.setWidth(length);
    painter.setBrush(theme().accent);
    painter.drawRoundedRect(bar, round, round);
}

/// The line from the egg on, as far as it has come.
void PetCard::paintStages(QPainter& painter) const
{
    const auto reached = Pet::stage(m_fun.level());
    const QRectF row = m_stages->geometry();
    const double step = (row.width() - stageSize) / double(Pet::stageEmoji.size() - 1);
    for (std::size_t i = 0; i < Pet::stageEmoji.size(); ++i) {
        const QRectF box = mirrored(
            QRectF(row.left() + double(i) * step, row.top(), stageSize, row.height()), *this);
        if (i > 0) {
            const double y = row.center().y();
            painter.setPen(QPen(i <= reached ? theme().accent : theme().fillPressed, 2,
                Qt::SolidLine, Qt::RoundCap));
            const double way = isRightToLeft() ? -1 : 1; // From the stage before.
            painter.drawLine(
                QPointF(box.center().x() - way * (step - stageSize / 2.0 - Space::tiny), y),
                QPointF(box.center().x() - way * (stageSize / 2.0 + Space::tiny), y));
        }
        Emoji::paint(painter, Pet::stageEmoji[i].toString(), box, stageSize,
            i <= reached ? Emoji::Look::Full : Emoji::Look::Faded);
    }
}
