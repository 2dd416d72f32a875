// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/kinds/Text.h"

#include "editor/Geometry.h"
#include "editor/LaidText.h"
#include "editor/TextStyles.h"

#include <QPainter>

namespace {

/// A text as its style lays it out.
struct Styled {
    explicit Styled(const Annotation& it)
        : style(TextStyles::find(it.style))
        , laid(LaidText::of(style.shown(it.text), style.font(),
              it.centered ? LaidText::Lines::Centred : LaidText::Lines::Natural))
        , scale(it.fontSize / LaidText::em)
        , origin(it.a.x() - (it.centered ? laid->size().width() * scale / 2 : 0), it.a.y())
    {
    }

    QRectF inPicture(const QRectF& rect) const
    {
        return {origin + rect.topLeft() * scale, rect.size() * scale};
    }

    const TextLook& style;
    std::shared_ptr<const LaidText> laid;
    double scale; ///< Pixels of the picture per unit of the layout.
    QPointF origin;
};

} // namespace

void Text::draw(QPainter& painter, const Annotation& it, const QImage&) const
{
    const Styled styled(it);
    painter.save();
    painter.translate(styled.origin);
    painter.scale(styled.scale, styled.scale);
    styled.style.draw(painter, *styled.laid, it.color);
    painter.restore();
}

QRectF Text::bounds(const Annotation& it) const
{
    const Styled styled(it);
    return grown(
        styled.inPicture(QRectF({}, styled.laid->size())), styled.style.padding(it.fontSize));
}

QRectF Text::ink(const Annotation& it) const
{
    const Styled styled(it);
    const QRectF letters = styled.laid->ink() | QRectF({}, styled.laid->size());
    return grown(styled.inPicture(grown(letters, styled.style.reach * LaidText::em)), 2);
}

void Text::begin(Annotation& it, const ToolSettings& settings, int, double) const
{
    it.fontSize = settings.fontSize;
    it.style = settings.textStyle;
}
