// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/style/FieldStyle.h"

#include "widgets/Icons.h"
#include "widgets/style/MenuStyle.h"
#include "widgets/style/StyleTools.h"

#include <QPainter>

using namespace Qt::StringLiterals;
using StyleTools::has;

namespace {

constexpr int caretSize = 12; // Points.
constexpr int stepsWidth = 22;
constexpr int caretWidth = caretSize + 2 * Space::related;
constexpr int padding = Space::related;

QRect part(const QStyleOptionSpinBox& option, bool isUpper)
{
    const QRect steps = StyleTools::atEnd(option, option.rect.adjusted(2, 2, -2, -2), stepsWidth);
    const int half = steps.height() / 2;
    return isUpper ? steps.adjusted(0, 0, 0, half - steps.height()) : steps.adjusted(0, half, 0, 0);
}

/// Up or down; pale where there is no further.
void paintStep(QPainter& painter, const QStyleOptionSpinBox& option, const Theme& theme,
    QStyle::SubControl step)
{
    const bool isUp = step == QStyle::SC_SpinBoxUp;
    const auto can = isUp ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled;
    const QRect box = FieldStyle::numberPart(option, step);
    if (option.activeSubControls == step && option.stepEnabled.testFlag(can))
        StyleTools::paintBox(painter, box, Radius::chip,
            has(option.state, QStyle::State_Sunken) ? theme.fillPressed : theme.fillHover);
    painter.save();
    if (!option.stepEnabled.testFlag(can))
        painter.setOpacity(painter.opacity() * 0.4);
    painter.translate(QRectF(box).center());
    painter.rotate(isUp ? 180 : 0);
    painter.setPen(QPen(theme.secondary, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{-3, -1.5}, {0, 1.5}, {3, -1.5}}));
    painter.restore();
}

} // namespace

void FieldStyle::paintField(QPainter& painter, const QStyleOption& option, const Theme& theme)
{
    const StyleTools::Stroke stroke(painter, option.state);
    const bool hasFocus = has(option.state, QStyle::State_HasFocus);
    StyleTools::paintBox(painter, option.rect, Radius::cell, option.palette.color(QPalette::Base));
    StyleTools::paintBox(painter, option.rect, Radius::cell, Qt::transparent,
        hasFocus ? theme.accentSymbol : theme.hairline,
        hasFocus ? Extent::focusRing : Extent::hairline);
}

void FieldStyle::paintNumber(
    QPainter& painter, const QStyleOptionSpinBox& option, const Theme& theme)
{
    if (option.frame)
        paintField(painter, option, theme);
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    const StyleTools::Stroke stroke(painter, option.state);
    paintStep(painter, option, theme, QStyle::SC_SpinBoxUp);
    paintStep(painter, option, theme, QStyle::SC_SpinBoxDown);
}

QRect FieldStyle::numberPart(const QStyleOptionSpinBox& option, QStyle::SubControl wanted)
{
    switch (wanted) {
    case QStyle::SC_SpinBoxUp:
        return part(option, true);
    case QStyle::SC_SpinBoxDown:
        return part(option, false);
    case QStyle::SC_SpinBoxEditField: {
        const int steps = option.buttonSymbols == QAbstractSpinBox::NoButtons ? 0 : stepsWidth;
        return StyleTools::atStart(option, option.rect, option.rect.width() - steps)
            .adjusted(padding - 2, 1, 0, -1);
    }
    default:
        return option.rect;
    }
}

void FieldStyle::paintChoice(
    QPainter& painter, const QStyleOptionComboBox& option, const Theme& theme)
{
    if (option.editable) {
        paintField(painter, option, theme);
    } else {
        const StyleTools::Stroke stroke(painter, option.state);
        StyleTools::paintBox(painter, option.rect, Radius::cell,
            StyleTools::fill(
                theme, option.state, option.frame ? theme.fill : QColor(Qt::transparent)));
    }
    const StyleTools::Stroke stroke(painter, option.state);
    Icons::paint(painter, u"chevron.down"_s, choicePart(option, QStyle::SC_ComboBoxArrow),
        caretSize, theme.secondary);
}

void FieldStyle::paintChoiceLabel(
    QPainter& painter, const QStyleOptionComboBox& option, const Theme& theme)
{
    if (option.editable)
        return; // Its line of text shows it.
    const StyleTools::Stroke stroke(painter, option.state);
    QRect box = choicePart(option, QStyle::SC_ComboBoxEditField);
    if (!option.currentIcon.isNull()) {
        const QRect place = QStyle::alignedRect(
            option.direction, Qt::AlignLeft | Qt::AlignVCenter, option.iconSize, box);
        option.currentIcon.paint(&painter, place);
        box = StyleTools::atEnd(option, box, box.width() - place.width() - Space::related);
    }
    painter.setPen(theme.text);
    const QString text
        = option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, box.width());
    painter.drawText(box,
        int(QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter))
            | Qt::TextSingleLine,
        text);
}

QRect FieldStyle::choicePart(const QStyleOptionComboBox& option, QStyle::SubControl wanted)
{
    switch (wanted) {
    case QStyle::SC_ComboBoxArrow:
        return StyleTools::atEnd(option, option.rect, caretWidth);
    case QStyle::SC_ComboBoxEditField:
        return QStyle::visualRect(option.direction, option.rect,
            option.rect.adjusted(option.editable ? padding - 2 : Space::inner, 1, -caretWidth, -1));
    case QStyle::SC_ComboBoxListBoxPopup:
        // So that the chosen text lies where it is read in the control.
        return option.rect.adjusted(Space::inner - MenuStyle::textStart, 0, 0, 0);
    default:
        return option.rect;
    }
}

QSize FieldStyle::lineSize(QSize contents)
{
    return (contents + QSize(2 * padding, Space::related)).expandedTo({0, Extent::control});
}

QSize FieldStyle::numberSize(QSize contents)
{
    // Its line of text has padded itself already.
    return (contents + QSize(stepsWidth + 2 * padding, 0)).expandedTo({0, Extent::control});
}

QSize FieldStyle::choiceSize(QSize contents)
{
    const int sides = Space::inner + caretWidth + Space::tiny; // Some ease, or it ends in dots.
    return (contents + QSize(sides, Space::related)).expandedTo({0, Extent::control});
}
