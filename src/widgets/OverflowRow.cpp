// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/OverflowRow.h"

#include "widgets/Mirrored.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

int extentOf(const std::vector<OverflowRules::Control>& controls, const std::vector<bool>& shown)
{
    int extent = 0;
    for (std::size_t index = 0; index < controls.size(); ++index)
        if (shown[index])
            extent += controls[index].width + (extent ? controls[index].gap : 0);
    return extent;
}

} // namespace

std::vector<bool> OverflowRules::shown(
    const std::vector<Control>& controls, int width, Control button)
{
    std::vector<bool> shown(controls.size(), true);
    if (extentOf(controls, shown) <= width)
        return shown;
    const int room = width - button.gap - button.width;
    for (std::size_t left = controls.size(); left > 1 && extentOf(controls, shown) > room; --left) {
        std::size_t least = controls.size();
        for (std::size_t index = 0; index < controls.size(); ++index)
            if (shown[index]
                && (least == controls.size() || controls[index].rank < controls[least].rank))
                least = index;
        shown[least] = false;
    }
    return shown;
}

OverflowRow::OverflowRow(const Themes& themes, QWidget* parent)
    : QWidget(parent)
    , m_more(GlassButton::ofSymbol(themes, u"ellipsis"_s, tr("More"), GlassButton::Look::Plain))
{
    m_more->setParent(this);
    connect(m_more, &QAbstractButton::clicked, this, &OverflowRow::openMenu);
}

void OverflowRow::add(QWidget* control, Gap gap, int rank, Entry entry)
{
    // The Tab key goes through them in this order.
    m_more->setParent(nullptr);
    control->setParent(this);
    m_more->setParent(this);
    m_items.push_back({control, gap == Gap::Group ? Space::inner : 0, rank, std::move(entry)});
    updateGeometry();
}

QWidget& OverflowRow::anchor(QWidget& control)
{
    return control.isVisible() ? control : *m_more;
}

int OverflowRow::widthOf(const Item& item) const
{
    return item.control->sizeHint().width();
}

QSize OverflowRow::sizeHint() const
{
    QSize size(0, m_more->sizeHint().height());
    for (const Item& item : m_items) {
        const QSize control = item.control->sizeHint();
        size.rwidth() += control.width() + (size.width() ? item.gap : 0);
        size.setHeight(std::max(size.height(), control.height()));
    }
    return size;
}

QSize OverflowRow::minimumSizeHint() const
{
    const auto foremost = std::ranges::max_element(m_items, {}, &Item::rank);
    const int width = foremost == m_items.end() ? 0 : widthOf(*foremost);
    return {width + Space::inner + m_more->sizeHint().width(), sizeHint().height()};
}

void OverflowRow::place()
{
    std::vector<OverflowRules::Control> controls;
    for (const Item& item : m_items)
        controls.push_back({widthOf(item), item.gap, item.rank});
    const auto shown = OverflowRules::shown(controls, width(), {m_more->sizeHint().width(), 0, 0});
    const auto put = [this](QWidget& control, int x) {
        const QSize size = control.sizeHint();
        const QRect box(x, (height() - size.height()) / 2, size.width(), size.height());
        control.setGeometry(QStyle::visualRect(layoutDirection(), rect(), box));
    };
    int x = 0;
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        m_items[index].control->setVisible(shown[index]);
        if (!shown[index])
            continue;
        x += x ? m_items[index].gap : 0;
        put(*m_items[index].control, x);
        x += controls[index].width;
    }
    m_more->setVisible(std::ranges::find(shown, false) != shown.end());
    put(*m_more, width() - m_more->sizeHint().width());
}

void OverflowRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

bool OverflowRow::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        place();
    }
    return QWidget::event(event);
}

void OverflowRow::openMenu()
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Item& item : m_items)
        if (!item.control->isVisible())
            item.entry(*menu);
    menu->popup(placeBelow(*m_more, *menu));
}
