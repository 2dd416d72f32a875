// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "overlay/OverlayModel.h"

#include "overlay/OverlayGeometry.h"

#include <algorithm>

OverlayModel::OverlayModel(const RegionQuestion& question, QPoint pointer)
{
    for (const auto& screen : question.screens)
        m_screens.push_back({screen, OverlayGeometry::windowsOn(screen, question.windows)});
    follow(pointer);
}

void OverlayModel::move(QPoint pointer)
{
    follow(pointer);
    m_hover = OverlayGeometry::windowAt(m_pointer, active().windows);
}

void OverlayModel::press(QPoint pointer)
{
    m_start.reset(); // Also one that a key began: this one may be on another screen.
    move(pointer);
    m_start = m_pointer;
}

void OverlayModel::release(QPoint pointer)
{
    follow(pointer);
    if (!m_start)
        return;
    const QRect selected = selection();
    m_start.reset();
    m_hover = OverlayGeometry::windowAt(m_pointer, active().windows);
    if (OverlayGeometry::isDrag(selected.size(), OverlayGeometry::pixelsPerPoint(active().frozen)))
        finish(selected);
    else if (m_hover)
        finish(*m_hover);
}

void OverlayModel::pressRight()
{
    if (m_start)
        m_start.reset();
    else
        finish(Error::cancelled());
}

void OverlayModel::key(OverlayKey key)
{
    switch (key) {
    case OverlayKey::Take:
        if (const QRect selected = selection(); selected.width() > 0)
            finish(selected);
        break;
    case OverlayKey::WholeScreen:
        finish(QRect({}, active().frozen.image.size()));
        break;
    case OverlayKey::Cancel:
        finish(Error::cancelled());
        break;
    case OverlayKey::FirstCorner:
        if (isOnScreen())
            m_start = m_pointer;
        break;
    case OverlayKey::NextWindow:
        walk(1);
        break;
    case OverlayKey::PreviousWindow:
        walk(-1);
        break;
    }
}

QPoint OverlayModel::stepped(QPoint step) const
{
    const QSize size = active().frozen.image.size();
    const QPoint to = m_pointer + step;
    return active().frozen.display.native.topLeft()
        + QPoint(std::clamp(to.x(), 0, size.width() - 1), std::clamp(to.y(), 0, size.height() - 1));
}

OverlayScene OverlayModel::scene(qsizetype screen) const
{
    if (screen != m_screen)
        return {};
    OverlayScene scene {selection(), m_start.has_value(), {}};
    if (isOnScreen())
        scene.pointer = m_pointer;
    return scene;
}

/// A drag stays on its screen wherever the pointer goes.
void OverlayModel::follow(QPoint pointer)
{
    if (!m_start) {
        const auto found
            = std::find_if(m_screens.begin(), m_screens.end(), [pointer](const Screen& screen) {
                  return screen.frozen.display.native.contains(pointer);
              });
        if (found != m_screens.end())
            m_screen = found - m_screens.begin();
    }
    m_pointer = pointer - active().frozen.display.native.topLeft();
}

void OverlayModel::walk(qsizetype step)
{
    const auto& windows = active().windows;
    if (m_start || windows.isEmpty())
        return;
    const qsizetype count = windows.size();
    const qsizetype from = m_hover ? windows.indexOf(*m_hover) : step > 0 ? -1 : count;
    m_hover = windows[(from + step + count) % count];
}

QRect OverlayModel::selection() const
{
    if (!m_start)
        return m_hover.value_or(QRect());
    const auto shape = m_square ? OverlayGeometry::Shape::Square : OverlayGeometry::Shape::Free;
    return OverlayGeometry::dragged(*m_start, m_pointer, shape, active().frozen.image.size());
}

void OverlayModel::finish(Result<RegionResult> result)
{
    if (!m_outcome)
        m_outcome = std::move(result);
}

void OverlayModel::finish(QRect selected)
{
    finish(RegionResult {m_screen, OverlayGeometry::toPoints(selected, active().frozen)});
}
