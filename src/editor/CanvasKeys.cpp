// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CanvasKeys.h"

#include "base/ArrowKeys.h"
#include "editor/Tools.h"

#include <algorithm>

namespace {

constexpr double step = 1, farStep = 10; // Pixels.
constexpr double partInSight = 3; // Of what is seen, a new annotation takes one.

void walk(CanvasModel& model, std::ptrdiff_t by)
{
    CanvasDocument& document = model.document();
    const auto count = std::ptrdiff_t(document.annotations().size());
    if (count == 0)
        return;
    const auto now = document.selectedIndex();
    const std::ptrdiff_t from = now ? std::ptrdiff_t(*now) : by > 0 ? -1 : count;
    document.select(std::size_t((from + by + count) % count));
}

/// The end of a line, or the lower right corner of what has corners.
qsizetype handleToPull(const QList<QPointF>& handles)
{
    if (handles.size() <= 2)
        return handles.size() - 1;
    const auto lowest = std::ranges::max_element(
        handles, {}, [](QPointF handle) { return handle.x() + handle.y(); });
    return lowest - handles.begin();
}

void size(CanvasModel& model, QPointF by)
{
    model.document().editSelected([by](Annotation& it) {
        const auto handles = it.handles();
        if (const qsizetype pulled = handleToPull(handles); pulled >= 0)
            it.setHandle(pulled, handles[pulled] + by);
    });
}

QRectF middleOf(const QRectF& seen)
{
    QRectF box({}, seen.size() / partInSight);
    box.moveCenter(seen.center());
    return box;
}

void make(CanvasModel& model, const QRectF& seen)
{
    const QRectF box = middleOf(seen);
    model.document().select({}); // Or the press might move that one.
    model.press(box.topLeft(), 1);
    model.drag(box.bottomRight());
    model.release(box.bottomRight());
}

/// Outlines what is kept, moves and sizes that, and at last cuts the rest off.
bool crop(CanvasModel& model, int key, Qt::KeyboardModifiers modifiers, const QRectF& seen)
{
    const bool control = modifiers & Qt::ControlModifier;
    const bool enters = (key == Qt::Key_Return || key == Qt::Key_Enter) && !control;
    if (!model.cropRect()) {
        if (enters)
            model.outlineCrop(middleOf(seen));
        return enters;
    }
    QRectF box = *model.cropRect();
    if (enters) {
        model.release(box.bottomRight());
        return true;
    }
    const QPointF by = QPointF(directionOf(key)) * (modifiers & Qt::ShiftModifier ? farStep : step);
    const QRectF picture = std::as_const(model).document().base().rect();
    if (control)
        box.setSize((box.size() + QSizeF(by.x(), by.y())).expandedTo({step, step}));
    else
        box.translate(by);
    if (picture.contains(box))
        model.outlineCrop(box);
    return !by.isNull();
}

} // namespace

bool CanvasKeys::take(
    CanvasModel& model, int key, Qt::KeyboardModifiers modifiers, const QRectF& seen)
{
    if (model.textPrompt())
        return false;
    if (model.tool() == Tool::Crop && crop(model, key, modifiers, seen))
        return true;
    if (model.isPressed())
        return false;
    const Annotation* const selected = std::as_const(model).document().selected();
    const bool control = modifiers & Qt::ControlModifier;
    if (control && (key == Qt::Key_Tab || key == Qt::Key_Backtab)) {
        walk(model, key == Qt::Key_Tab && !(modifiers & Qt::ShiftModifier) ? 1 : -1);
        return true;
    }
    if (const QPointF way = directionOf(key); control && selected && !way.isNull()) {
        size(model, way * (modifiers & Qt::ShiftModifier ? farStep : step));
        return true;
    }
    if ((key != Qt::Key_Return && key != Qt::Key_Enter) || control)
        return false;
    if (selected && selected->kind == Tool::Text)
        model.press(selected->bounds().center(), 1, CanvasModel::Click::Double);
    else if (infoOf(model.tool()).kind)
        make(model, seen);
    else
        return false;
    return true;
}
