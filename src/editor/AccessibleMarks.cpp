// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/AccessibleMarks.h"

#include "base/Words.h"
#include "editor/EditorCanvas.h"
#include "editor/Tools.h"

using namespace Qt::StringLiterals;

namespace {

/// The tooltip of a tool tells its key as well.
QString kindOf(const Annotation& mark)
{
    return Words::tr(infoOf(mark.kind).tooltip).section(u" ("_s, 0, 0);
}

QString contentOf(const Annotation& mark)
{
    switch (mark.kind) {
    case Tool::Text:
        return mark.text.simplified();
    case Tool::Step:
        return QString::number(mark.number);
    case Tool::Sticker:
        return mark.emoji;
    default:
        return {};
    }
}

} // namespace

int AccessibleMarks::count() const
{
    return int(m_canvas.model().document().annotations().size());
}

int AccessibleMarks::current() const
{
    const auto index = m_canvas.model().document().selectedIndex();
    return index ? int(*index) : -1;
}

AccessiblePart AccessibleMarks::part(int index) const
{
    const Annotation& mark = *m_canvas.model().document().annotations().at(std::size_t(index));
    const QRect bounds = mark.bounds().toAlignedRect();
    QStringList words {kindOf(mark), contentOf(mark),
        EditorCanvas::tr("%1 × %2 at %3, %4")
            .arg(bounds.width())
            .arg(bounds.height())
            .arg(bounds.x())
            .arg(bounds.y())};
    words.removeAll({});
    return {QAccessible::Graphic, words.join(u", "_s),
        m_canvas.view().toView(mark.bounds()).toAlignedRect(), index == current()};
}

int AccessibleMarks::partAt(QPoint place) const
{
    const auto& marks = m_canvas.model().document().annotations();
    const QPointF at = m_canvas.view().toPicture(place);
    for (std::size_t index = marks.size(); index-- > 0;)
        if (marks[index]->hit(at, 0))
            return int(index);
    return -1;
}

void AccessibleMarks::goTo(int index)
{
    m_canvas.edit([index](CanvasModel& model) { model.document().select(std::size_t(index)); });
}
