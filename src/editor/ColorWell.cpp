// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/ColorWell.h"

#include "base/Words.h"
#include "editor/Colors.h"
#include "widgets/GlassButton.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

struct Named {
    QColor color;
    const char* name;
};

const std::array offered {Named {Colors::red, QT_TRANSLATE_NOOP("Words", "Red")},
    Named {Colors::orange, QT_TRANSLATE_NOOP("Words", "Orange")},
    Named {Colors::yellow, QT_TRANSLATE_NOOP("Words", "Yellow")},
    Named {Colors::green, QT_TRANSLATE_NOOP("Words", "Green")},
    Named {Colors::teal, QT_TRANSLATE_NOOP("Words", "Teal")},
    Named {Colors::blue, QT_TRANSLATE_NOOP("Words", "Blue")},
    Named {Colors::purple, QT_TRANSLATE_NOOP("Words", "Purple")},
    Named {Colors::pink, QT_TRANSLATE_NOOP("Words", "Pink")},
    Named {Qt::white, QT_TRANSLATE_NOOP("Words", "White")},
    Named {Qt::black, QT_TRANSLATE_NOOP("Words", "Black")}};

constexpr int columns = 5;

/// A dot of the colour, with a line around it that shows on any ground.
void paintDot(QPainter& painter, const QRectF& box, const QColor& color, const Theme& theme)
{
    const double half = Extent::hairline / 2;
    painter.setPen(QPen(theme.fillPressed, Extent::hairline));
    painter.setBrush(color);
    painter.drawEllipse(box.adjusted(half, half, -half, -half));
}

void paintRing(QPainter& painter, const QRectF& box, const QColor& color)
{
    const double half = Extent::focusRing / 2;
    painter.setPen(QPen(color, Extent::focusRing));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(box.adjusted(half, half, -half, -half));
}

class Swatch final : public QAbstractButton {
public:
    Swatch(const Themes& themes, const Named& shown, bool isCurrent)
        : m_themes(themes)
        , m_color(shown.color)
    {
        setToolTip(Words::tr(shown.name));
        setAccessibleName(Words::tr(shown.name));
        setCheckable(true);
        setAutoExclusive(true);
        setChecked(isCurrent);
        setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override { return {Extent::toolbar, Extent::toolbar}; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = m_themes.current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (isChecked() || hasFocus())
            paintRing(painter, rect(), hasFocus() ? theme.accentSymbol : theme.secondary);
        const double in = underMouse() ? Space::tiny - 1 : Space::tiny;
        paintDot(painter, QRectF(rect()).adjusted(in, in, -in, -in), m_color, theme);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QAbstractButton::keyPressEvent(event);
    }

private:
    const Themes& m_themes;
    const QColor m_color;
};

} // namespace

ColorWell::ColorWell(const Surroundings& surroundings, QWidget* parent)
    : QAbstractButton(parent)
    , m_surroundings(surroundings)
{
    setToolTip(tr("Colour"));
    setAccessibleName(tr("Colour"));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::clicked, this, [this] { open(*this); });
    connect(&m_surroundings.themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

void ColorWell::setColor(const QColor& color)
{
    m_color = color;
    setAccessibleDescription(color.name());
    update();
}

QSize ColorWell::sizeHint() const
{
    return {Extent::toolbar, Extent::toolbar};
}

void ColorWell::open(const QWidget& anchor)
{
    auto* popover = new Popover(m_surroundings, tr("Colour"), swatches(), window());
    popover->openAt(anchor);
}

QWidget* ColorWell::swatches()
{
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins({});
    grid->setSpacing(Space::tiny);
    int index = 0;
    for (const Named& each : offered) {
        auto* swatch = new Swatch(m_surroundings.themes, each, each.color == m_color);
        connect(swatch, &QAbstractButton::clicked, this, [this, swatch, color = each.color] {
            swatch->window()->close();
            choose(color);
        });
        grid->addWidget(swatch, index / columns, index % columns);
        if (index == 0 || each.color == m_color)
            content->setFocusProxy(swatch);
        ++index;
    }
    auto* more = GlassButton::ofText(m_surroundings.themes, tr("Other Colour…"));
    connect(more, &QAbstractButton::clicked, this, [this, more] {
        more->window()->close();
        openDialog();
    });
    grid->addWidget(more, index / columns + 1, 0, 1, columns, Qt::AlignHCenter);
    return content;
}

void ColorWell::choose(const QColor& color)
{
    setColor(color);
    Q_EMIT chosen(color);
}

void ColorWell::openDialog()
{
    auto* dialog = new QColorDialog(m_color, window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Colour"));
    connect(dialog, &QColorDialog::colorSelected, this, &ColorWell::choose);
    dialog->open();
}

void ColorWell::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_surroundings.themes.current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() ? theme.fillPressed
            : underMouse()    ? theme.fillHover
                              : QColor(Qt::transparent));
    painter.drawRoundedRect(rect(), Radius::cell, Radius::cell);
    const QRectF box
        = QRectF(rect()).adjusted(Space::tiny, Space::tiny, -Space::tiny, -Space::tiny);
    if (hasFocus())
        paintRing(painter, box, theme.accentSymbol);
    const double in = Extent::focusRing + 1;
    paintDot(painter, box.adjusted(in, in, -in, -in), m_color, theme);
}

void ColorWell::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
