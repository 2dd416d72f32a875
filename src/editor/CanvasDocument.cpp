// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CanvasDocument.h"

#include <QPainter>

namespace {

QImage with32Bits(const QImage& image)
{
    QImage converted = image.convertToFormat(
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    converted.setDevicePixelRatio(1);
    return converted;
}

} // namespace

CanvasDocument::CanvasDocument(const QImage& image)
    : m_base(with32Bits(image))
{
}

const Annotation* CanvasDocument::selected() const
{
    return m_selected ? &*m_annotations[*m_selected] : nullptr;
}

void CanvasDocument::selectTopmost(QPointF at, double tolerance)
{
    m_selected.reset();
    for (std::size_t index = m_annotations.size(); index-- > 0;)
        if (m_annotations[index]->hit(at, tolerance)) {
            m_selected = index;
            return;
        }
}

void CanvasDocument::adopt(const std::vector<Mark::Copy>& annotations, Adopted adopted)
{
    m_selected.reset();
    setAnnotations(annotations);
    m_dirty = m_dirty || adopted == Adopted::Unsaved;
}

CanvasDocument::Snapshot CanvasDocument::snapshot() const
{
    Snapshot taken {m_base, {}};
    taken.annotations.reserve(m_annotations.size());
    for (const Mark& mark : m_annotations)
        taken.annotations.push_back(mark.copy());
    return taken;
}

void CanvasDocument::pushUndo(Snapshot before)
{
    m_undoStack.push_back(std::move(before));
    m_redoStack.clear();
    changed();
}

void CanvasDocument::step(Stack& from, Stack& to)
{
    if (from.empty())
        return;
    to.push_back(snapshot());
    const Snapshot target = std::move(from.back());
    from.pop_back();
    restore(target);
    changed();
}

void CanvasDocument::restore(const Snapshot& snapshot)
{
    m_selected.reset();
    if (snapshot.image.cacheKey() != m_base.cacheKey())
        setBase(snapshot.image);
    setAnnotations(snapshot.annotations);
}

/// Leaves alone what stays, so that little has to be drawn anew.
void CanvasDocument::setAnnotations(const std::vector<Mark::Copy>& copies)
{
    const std::size_t shorter = std::min(copies.size(), m_annotations.size());
    std::size_t same = 0, sameAtEnd = 0;
    while (same < shorter && m_annotations[same].copy() == copies[same])
        ++same;
    while (sameAtEnd < shorter - same
        && m_annotations[m_annotations.size() - 1 - sameAtEnd].copy()
            == copies[copies.size() - 1 - sameAtEnd])
        ++sameAtEnd;
    for (std::size_t at = same; at < m_annotations.size() - sameAtEnd; ++at)
        damage(m_annotations[at]->ink());
    std::vector<Mark> marks;
    marks.reserve(copies.size());
    for (const Mark::Copy& copy : copies)
        marks.emplace_back(copy);
    m_annotations = std::move(marks);
    for (std::size_t at = same; at < m_annotations.size() - sameAtEnd; ++at)
        damage(m_annotations[at]->ink());
}

void CanvasDocument::append(const Annotation& annotation)
{
    m_annotations.emplace_back(annotation);
    damage(annotation.ink());
}

void CanvasDocument::commit(const Annotation& annotation)
{
    Snapshot before = snapshot();
    append(annotation);
    m_selected = m_annotations.size() - 1;
    pushUndo(std::move(before));
}

void CanvasDocument::add(const std::vector<Annotation>& annotations)
{
    Snapshot before = snapshot();
    for (const Annotation& annotation : annotations)
        append(annotation);
    pushUndo(std::move(before));
}

void CanvasDocument::deleteSelected()
{
    if (!m_selected)
        return;
    Snapshot before = snapshot();
    damage(m_annotations[*m_selected]->ink());
    m_annotations.erase(m_annotations.begin() + std::ptrdiff_t(*m_selected));
    m_selected.reset();
    pushUndo(std::move(before));
}

void CanvasDocument::editSelected(const Change& change)
{
    if (!m_selected)
        return;
    Snapshot before = snapshot();
    adjustSelected(change);
    if (isSelectedChangedSince(before))
        pushUndo(std::move(before));
}

void CanvasDocument::adjustSelected(const Change& change)
{
    if (!m_selected)
        return;
    Mark& mark = m_annotations[*m_selected];
    damage(mark->ink());
    change(mark.change());
    damage(mark->ink());
}

bool CanvasDocument::isSelectedChangedSince(const Snapshot& before) const
{
    return m_selected && *m_annotations[*m_selected] != *before.annotations[*m_selected];
}

void CanvasDocument::restoreSelected(const Snapshot& before)
{
    if (!m_selected)
        return;
    Mark& mark = m_annotations[*m_selected];
    damage(mark->ink());
    mark = Mark(before.annotations[*m_selected]);
    damage(mark->ink());
}

QImage CanvasDocument::flattened() const
{
    QImage image = m_base;
    if (m_annotations.empty())
        return image;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Mark& mark : m_annotations)
        mark->draw(painter, m_base);
    return image;
}

void CanvasDocument::crop(const QRectF& rect)
{
    const QRect kept = (rect & QRectF(m_base.rect())).toAlignedRect();
    if (kept.isEmpty())
        return;
    const QImage piece = flattened().copy(kept);
    Snapshot before = snapshot();
    m_annotations.clear();
    m_selected.reset();
    setBase(piece);
    pushUndo(std::move(before));
}

void CanvasDocument::damage(const QRectF& area)
{
    m_damage += (area & QRectF(m_base.rect())).toAlignedRect();
}

void CanvasDocument::setBase(const QImage& image)
{
    m_base = image;
    m_damage = m_base.rect();
}

void CanvasDocument::changed()
{
    m_dirty = true;
    if (m_onChange)
        m_onChange();
}
