// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/HouseStyle.h"

#include "widgets/Switch.h"
#include "widgets/style/ButtonStyle.h"
#include "widgets/style/CheckStyle.h"
#include "widgets/style/FieldStyle.h"
#include "widgets/style/FrameStyle.h"
#include "widgets/style/RangeStyle.h"

#include <QAbstractScrollArea>
#include <QFocusFrame>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

namespace {

/// The option as the kind that the element comes with, or nothing.
template <typename T>
const T* as(const QStyleOption* option)
{
    return qstyleoption_cast<const T*>(option);
}

/// The row of a combo box's list, which has no margin of its own, unlike a menu.
QStyleOptionMenuItem row(const QStyleOptionMenuItem& option, const QWidget* widget)
{
    QStyleOptionMenuItem row = option;
    if (!qobject_cast<const QMenu*>(widget)) {
        row.rect.adjust(MenuStyle::margin, 0, -MenuStyle::margin, 0);
        row.maxIconWidth = row.icon.isNull() ? 0 : row.maxIconWidth; // The toolkit always has room.
    }
    return row;
}

QColor groundIn(const QWidget* frame)
{
    const auto* area = qobject_cast<const QAbstractScrollArea*>(frame);
    if (!area)
        return Qt::transparent;
    return area->viewport()->palette().color(area->viewport()->backgroundRole());
}

/// It may fill its window, so the ring has to be inside.
bool isAroundScrolled(const QWidget* ring)
{
    const auto* frame = qobject_cast<const QFocusFrame*>(ring);
    return frame && qobject_cast<const QAbstractScrollArea*>(frame->widget());
}

/// The corner radius of what a focus ring is around.
double cornersIn(const QWidget* ring)
{
    if (isAroundScrolled(ring))
        return 0;
    const auto* frame = qobject_cast<const QFocusFrame*>(ring);
    const auto* toggle = frame ? qobject_cast<const Switch*>(frame->widget()) : nullptr;
    return toggle ? toggle->height() / 2.0 : Radius::cell;
}

QRegion rounded(QRect box, double radius)
{
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return QRegion(path.toFillPolygon().toPolygon());
}

} // namespace

HouseStyle::HouseStyle(const Theme& theme, MenuStyle::Corners corners)
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) // It takes all colours from palettes.
    , m_theme(theme)
    , m_corners(corners)
{
}

void HouseStyle::wear(const Theme& theme, MenuStyle::Corners corners)
{
    m_theme = theme;
    m_corners = corners;
}

void HouseStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QMenu*>(widget) || widget->inherits("QTipLabel")
        || widget->inherits("QComboBoxPrivateContainer")) {
        widget->setAttribute(Qt::WA_TranslucentBackground, m_corners == MenuStyle::Corners::Round);
        widget->setWindowFlag(Qt::FramelessWindowHint);
        widget->setWindowFlag(
            Qt::NoDropShadowWindowHint); // It would follow the corners it has not.
    } else if (widget->inherits("QToolButton") || widget->inherits("QScrollBar")) {
        widget->setAttribute(Qt::WA_Hover);
    }
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
    QPainter* painter, const QWidget* widget) const
{
    if (!paintPrimitive(element, *option, *painter, widget))
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

bool HouseStyle::paintPrimitive(PrimitiveElement element, const QStyleOption& option,
    QPainter& painter, const QWidget* widget) const
{
    switch (element) {
    case PE_FrameFocusRect: // FocusRing is around the control instead.
    case PE_FrameMenu:
    case PE_FrameLineEdit:
    case PE_FrameStatusBarItem:
    case PE_PanelScrollAreaCorner:
    case PE_PanelToolBar:
        return true;
    case PE_PanelLineEdit:
        if (const auto* frame = as<QStyleOptionFrame>(&option); frame && frame->lineWidth > 0)
            FieldStyle::paintField(painter, option, m_theme);
        return true;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        CheckStyle::paintBox(painter, option, m_theme);
        return true;
    case PE_IndicatorRadioButton:
        CheckStyle::paintRadio(painter, option, m_theme);
        return true;
    case PE_PanelMenu:
        MenuStyle::paintCard(painter, option.rect, m_theme, Radius::thumbnail, m_corners);
        return true;
    case PE_PanelTipLabel:
        MenuStyle::paintCard(painter, option.rect, m_theme, Radius::chip, m_corners);
        return true;
    case PE_Frame:
        FrameStyle::paintFrame(painter, option, m_theme, groundIn(widget));
        return true;
    case PE_PanelItemViewRow:
        return true;
    case PE_PanelItemViewItem:
        FrameStyle::paintItem(painter, option, m_theme);
        return true;
    case PE_IndicatorToolBarSeparator:
        FrameStyle::paintSeparator(painter, option, m_theme);
        return true;
    default:
        return false;
    }
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
    const QWidget* widget) const
{
    if (!paintControl(element, *option, *painter, widget))
        QProxyStyle::drawControl(element, option, painter, widget);
}

bool HouseStyle::paintControl(ControlElement element, const QStyleOption& option, QPainter& painter,
    const QWidget* widget) const
{
    switch (element) {
    case CE_ToolBar:
    case CE_MenuEmptyArea:
        return true;
    case CE_PushButtonBevel:
        if (const auto* button = as<QStyleOptionButton>(&option))
            ButtonStyle::paintGround(painter, *button, m_theme);
        return true;
    case CE_PushButtonLabel:
        if (const auto* button = as<QStyleOptionButton>(&option))
            ButtonStyle::paintLabel(painter, *button, m_theme);
        return true;
    case CE_ComboBoxLabel:
        if (const auto* box = as<QStyleOptionComboBox>(&option))
            FieldStyle::paintChoiceLabel(painter, *box, m_theme);
        return true;
    case CE_MenuItem:
        if (const auto* item = as<QStyleOptionMenuItem>(&option)) {
            if (!qobject_cast<const QMenu*>(widget)) // The toolkit has painted over the card.
                MenuStyle::paintMiddle(painter, option.rect, m_theme);
            MenuStyle::paintItem(painter, row(*item, widget), m_theme);
        }
        return true;
    case CE_ProgressBar:
        if (const auto* bar = as<QStyleOptionProgressBar>(&option))
            RangeStyle::paintProgress(painter, *bar, m_theme);
        return true;
    case CE_FocusFrame:
        FrameStyle::paintFocus(painter, option, m_theme, cornersIn(widget));
        return true;
    case CE_ShapedFrame:
        return FrameStyle::paintLine(painter, option, m_theme);
    default:
        return false;
    }
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
    QPainter* painter, const QWidget* widget) const
{
    if (const auto* tool = as<QStyleOptionToolButton>(option); tool && control == CC_ToolButton) {
        ButtonStyle::paintTool(*painter, *tool, m_theme);
    } else if (const auto* choice = as<QStyleOptionComboBox>(option);
               choice && control == CC_ComboBox) {
        FieldStyle::paintChoice(*painter, *choice, m_theme);
    } else if (const auto* number = as<QStyleOptionSpinBox>(option);
               number && control == CC_SpinBox) {
        FieldStyle::paintNumber(*painter, *number, m_theme);
    } else if (const auto* range = as<QStyleOptionSlider>(option); range && control == CC_Slider) {
        const QRect knob = subControlRect(CC_Slider, range, SC_SliderHandle, widget);
        RangeStyle::paintSlider(*painter, *range, knob, m_theme);
    } else if (const auto* bar = as<QStyleOptionSlider>(option); bar && control == CC_ScrollBar) {
        RangeStyle::paintScrollBar(
            *painter, *bar, RangeStyle::scrollPart(*bar, SC_ScrollBarSlider), m_theme);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect HouseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
    SubControl part, const QWidget* widget) const
{
    if (const auto* choice = as<QStyleOptionComboBox>(option); choice && control == CC_ComboBox)
        return FieldStyle::choicePart(*choice, part);
    if (const auto* number = as<QStyleOptionSpinBox>(option); number && control == CC_SpinBox)
        return FieldStyle::numberPart(*number, part);
    if (const auto* bar = as<QStyleOptionSlider>(option); bar && control == CC_ScrollBar)
        return RangeStyle::scrollPart(*bar, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect HouseStyle::subElementRect(
    SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents) {
        const auto* frame = as<QStyleOptionFrame>(option);
        const int padding = frame && frame->lineWidth > 0 ? Space::related - 2 : 0;
        return option->rect.adjusted(padding, 0, -padding, 0);
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
    const QSize& contents, const QWidget* widget) const
{
    if (const auto* button = as<QStyleOptionButton>(option); button && type == CT_PushButton)
        return ButtonStyle::size(*button, contents);
    if (const auto* tool = as<QStyleOptionToolButton>(option); tool && type == CT_ToolButton)
        return ButtonStyle::toolSize(*tool, contents);
    if (const auto* item = as<QStyleOptionMenuItem>(option); item && type == CT_MenuItem) {
        const int margins = qobject_cast<const QMenu*>(widget) ? 0 : 2 * MenuStyle::margin;
        return MenuStyle::itemSize(row(*item, widget), contents) + QSize(margins, 0);
    }
    switch (type) {
    case CT_ComboBox:
        return FieldStyle::choiceSize(contents);
    case CT_SpinBox:
        return FieldStyle::numberSize(contents);
    case CT_LineEdit:
        return FieldStyle::lineSize(contents);
    case CT_ItemViewItem:
        return FrameStyle::itemSize(QProxyStyle::sizeFromContents(type, option, contents, widget));
    default:
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
}

int HouseStyle::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_MenuPanelWidth:
    case PM_ComboBoxFrameWidth:
    case PM_ToolBarFrameWidth:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_ScrollView_ScrollBarSpacing:
    case PM_SubMenuOverlap:
        return 0;
    case PM_DefaultFrameWidth:
        return qobject_cast<const QAbstractScrollArea*>(widget)
            ? FrameStyle::width
            : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return MenuStyle::margin;
    case PM_ToolTipLabelFrameWidth:
    case PM_ToolBarItemMargin:
        return Space::tiny;
    case PM_ToolBarItemSpacing:
        return 2;
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return isAroundScrolled(widget) ? 0 : int(2 * Extent::focusRing);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return CheckStyle::extent;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return Space::related;
    case PM_SliderLength:
        return RangeStyle::knob;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return RangeStyle::knob + 2;
    case PM_ScrollBarExtent:
        return RangeStyle::scrollExtent;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
        return Extent::smallSymbol;
    case PM_ToolBarIconSize:
        return Extent::symbol;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
    QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_ScrollBar_Transient:
    case SH_FocusFrame_Mask:
        return 0;
    case SH_Widget_Animation_Duration:
        return m_theme.reducedMotion ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    case SH_FocusFrame_AboveWidget:
    case SH_ScrollBar_LeftClickAbsolutePosition:
        return 1;
    case SH_Slider_AbsoluteSetButtons:
        return Qt::LeftButton;
    case SH_ToolTipLabel_Opacity:
        return 255;
    case SH_ComboBox_PopupFrameStyle:
        return QFrame::NoFrame;
    case SH_Menu_Mask:
        if (!qobject_cast<const QMenu*>(widget))
            return 0; // The toolkit paints no card for a list that is cut to its shape.
        [[fallthrough]];
    case SH_ToolTip_Mask:
        if (auto* mask = qstyleoption_cast<QStyleHintReturnMask*>(returned);
            mask && option && m_corners == MenuStyle::Corners::Cut) {
            mask->region
                = rounded(option->rect, hint == SH_Menu_Mask ? Radius::thumbnail : Radius::chip);
            return 1;
        }
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}
