// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PreviewView.h"

#include "preview/EffectPalette.h"
#include "preview/PreviewThumbnail.h"
#include "preview/ReactionPill.h"
#include "widgets/Accessible.h"
#include "widgets/CardFrame.h"
#include "widgets/Enlarged.h"
#include "widgets/GlassButton.h"
#include "widgets/Icons.h"
#include "widgets/Mirrored.h"
#include "widgets/TextLabel.h"

#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QUrl>
#include <QVBoxLayout>

#include <chrono>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int cardWidth = 340; // Points.
constexpr double barHeight = 3;
constexpr float barOpacity = 0.85f;
constexpr auto statusShown = 3s;
constexpr double calmSteps = 4; // Of the bar, where nothing is to move.

/// The symbol of the program beside its name.
class HeaderSymbol final : public QWidget {
public:
    explicit HeaderSymbol(const Themes& themes)
        : m_themes(themes)
    {
        Accessible::describeAsDecoration(*this);
        setFixedSize(Extent::smallSymbol, Extent::smallSymbol);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        Icons::paint(
            painter, u"camera.viewfinder"_s, rect(), Extent::smallSymbol, m_themes.current().text);
    }

private:
    const Themes& m_themes;
};

} // namespace

PreviewView::PreviewView(
    const Themes& themes, const Prefs& prefs, ShotActions actions, Content content)
    : m_themes(themes)
    , m_prefs(prefs)
    , m_actions(std::move(actions))
    , m_content(std::move(content))
    , m_hint(new TextLabel(themes, TextStyle::Caption, TextLabel::Role::Secondary))
{
    makeThumbnail();
    auto* info = new TextLabel(themes, TextStyle::Callout);
    info->setText(m_content.info);
    info->setAlignment(Qt::AlignCenter);
    m_hint->setAlignment(Qt::AlignCenter);
    setStatus({});

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, Space::related, 0, Space::inner);
    column->setSpacing(0);
    column->addLayout(header());
    column->addWidget(m_thumbnail, 0, Qt::AlignHCenter);
    column->addSpacing(Space::tiny);
    column->addWidget(info);
    column->addSpacing(Space::tiny / 2);
    column->addWidget(m_hint);
    column->addSpacing(Space::related);
    column->addLayout(actionRow());
    setFixedWidth(enlarged(cardWidth, themes.current()));

    m_statusSeen.setSingleShot(true);
    m_statusSeen.setInterval(statusShown);
    m_statusSeen.callOnTimeout([this] { setStatus({}); });
    m_tick.setInterval(int(PreviewCountdown::tick * 1000));
    m_tick.callOnTimeout([this] { tick(); });
    m_tick.start();
}

void PreviewView::makeThumbnail()
{
    m_thumbnail = new PreviewThumbnail(m_themes, m_content.capture.shot);
    if (m_actions.edit)
        Accessible::describe(*m_thumbnail, {QAccessible::Button, [this] { edit(); }});
    else
        Accessible::describe(*m_thumbnail, {QAccessible::Graphic});
    m_thumbnail->setAccessibleName(m_actions.edit ? tr("Edit") : m_content.info);
    if (const auto effect = EffectBorder::effect(m_prefs.get(Prefs::keys.previewEffect)))
        m_thumbnail->setBorder(std::make_unique<EffectBorder>(*effect,
            EffectPalette::colours(
                m_prefs.get(Prefs::keys.effectColors), m_themes.current().accent),
            Radius::thumbnail));
    connect(m_thumbnail, &PreviewThumbnail::clicked, this, &PreviewView::edit);
    connect(m_thumbnail, &PreviewThumbnail::dragged, this, &PreviewView::drag);
}

QLayout* PreviewView::header()
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(mirrored(QMargins(Space::group, 0, Space::tiny, 0), *this));
    row->setSpacing(Space::related);
    row->addWidget(new HeaderSymbol(m_themes));
    auto* name = new QLabel(u"Pixmallow"_s);
    name->setFont(m_themes.current().font(TextStyle::Headline));
    QPalette colours = name->palette();
    colours.setColor(QPalette::WindowText, m_themes.current().text);
    name->setPalette(colours);
    row->addWidget(name);
    if (m_content.reaction)
        row->addWidget(new ReactionPill(m_themes, *m_content.reaction));
    row->addStretch();
    auto* close
        = GlassButton::ofSymbol(m_themes, u"xmark"_s, tr("Close"), GlassButton::Look::Plain);
    close->setSymbolExtent({Extent::control, Extent::control});
    connect(close, &QAbstractButton::clicked, this, &PreviewView::closeRequested);
    row->addWidget(close);
    return row;
}

QLayout* PreviewView::actionRow()
{
    const FinishedCapture& capture = m_content.capture;
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Space::inner, 0, Space::inner, 0);
    const auto add = [&](const QString& symbol, const QString& title, bool offered, auto action) {
        GlassButton* const button = addAction(*row, symbol, title, std::move(action));
        button->setEnabled(offered);
        return button;
    };
    add(u"pencil"_s, tr("Edit"), bool(m_actions.edit), [this] { edit(); });
    add(u"doc.on.doc"_s, tr("Copy"), bool(m_actions.copy),
        [this, capture] { follow(m_actions.copy(capture)); });
    add(u"square.and.arrow.down"_s, tr("Save As…"), bool(m_actions.saveAs),
        [this, capture] { follow(m_actions.saveAs(capture, this)); });
    add(u"pin"_s, tr("Pin on top"), bool(m_actions.pin),
        [this, capture] { m_actions.pin(capture); });
    auto* const share = add(u"square.and.arrow.up"_s, tr("Share"), bool(m_actions.share), [] {});
    connect(share, &QAbstractButton::clicked, this,
        [this, capture, share] { follow(m_actions.share(capture, share)); });
    add(u"folder"_s, m_content.revealTitle, bool(m_actions.reveal),
        [this, capture] { m_actions.reveal(capture); });
    return row;
}

GlassButton* PreviewView::addAction(
    QLayout& row, const QString& symbol, const QString& title, std::function<void()> action)
{
    auto* button = GlassButton::ofSymbol(m_themes, symbol, title);
    connect(button, &QAbstractButton::clicked, this, std::move(action));
    row.addWidget(button);
    return button;
}

void PreviewView::edit()
{
    if (!m_actions.edit)
        return;
    m_actions.edit(m_content.capture);
    Q_EMIT closeRequested();
}

void PreviewView::drag()
{
    const auto file = m_actions.file ? m_actions.file(m_content.capture) : std::nullopt;
    if (!file)
        return;
    const Hold held = hold();
    auto* dragged = new QMimeData;
    dragged->setUrls({QUrl::fromLocalFile(*file)});
    dragged->setImageData(m_content.capture.shot.image);
    auto* drag = new QDrag(this); // Deletes itself, and lives on should the card be closed.
    drag->setMimeData(dragged);
    const QPixmap picture = m_thumbnail->pixmap();
    drag->setPixmap(picture);
    drag->setHotSpot(QRectF({}, picture.deviceIndependentSize()).center().toPoint());
    drag->exec(Qt::CopyAction);
}

void PreviewView::follow(ShotActions::Told told)
{
    // The card may be closed before the answer comes.
    const QPointer<PreviewView> view(this);
    std::move(told).then([view, held = hold()](const Result<QString>& result) {
        if (view && (result || !result.error().isCancelled()))
            view->setStatus(result ? *result : result.error().message);
    });
}

void PreviewView::setStatus(const QString& status)
{
    m_status = status;
    const QString hint
        = m_actions.edit ? tr("Click to edit • Drag into any app") : tr("Drag into any app");
    m_hint->setText(status.isEmpty() ? hint : status);
    if (status.isEmpty())
        return;
    m_statusSeen.start();
    Accessible::announce(*m_hint);
}

PreviewView::Hold PreviewView::hold()
{
    Hold held = m_held.lock();
    if (!held) {
        held = std::make_shared<int>();
        m_held = held;
    }
    return held;
}

void PreviewView::tick()
{
    if (m_countdown.advance(
            m_prefs.get(Prefs::keys.previewSeconds), underMouse() || !m_held.expired())) {
        m_tick.stop();
        Q_EMIT closeRequested();
    }
    const int foot = int(barHeight) + 1;
    update(0, height() - foot, width(), foot);
}

void PreviewView::paintEvent(QPaintEvent*)
{
    double left = m_countdown.left(m_prefs.get(Prefs::keys.previewSeconds));
    if (left <= 0)
        return;
    if (m_themes.current().reducedMotion)
        left = std::ceil(left * calmSteps) / calmSteps;
    QColor colour = m_themes.current().accent;
    colour.setAlphaF(barOpacity);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(CardFrame::outline(rect()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    const QRectF bar = mirrored(QRectF(0, height() - barHeight, width() * left, barHeight), *this);
    painter.drawRoundedRect(bar, barHeight / 2, barHeight / 2);
}
