// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/PointerTrail.h"

#include "platform/x11/X11Connection.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <algorithm>
#include <xcb/xinput.h>

PointerTrail::PointerTrail(xcb_connection_t* xcb)
{
    constexpr char name[] = "XInputExtension";
    const auto reply = owned(
        xcb_query_extension_reply(xcb, xcb_query_extension(xcb, sizeof name - 1, name), nullptr));
    if (reply && reply->present)
        m_inputExtension = reply->major_opcode;
    QCoreApplication::instance()->installNativeEventFilter(this);
}

PointerTrail::~PointerTrail()
{
    if (auto* const application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

bool PointerTrail::nativeEventFilter(const QByteArray&, void* message, qintptr*)
{
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    const auto addCore = [&](Kind kind) { // These events share one layout.
        const auto* const core = reinterpret_cast<const xcb_motion_notify_event_t*>(event);
        add(kind, core->time, {core->root_x, core->root_y});
    };
    const auto addExtended = [&](Kind kind) {
        const auto* const input = reinterpret_cast<const xcb_input_motion_event_t*>(event);
        add(kind, input->time, {input->root_x >> 16, input->root_y >> 16}); // 16.16 fixed point.
    };
    switch (event->response_type & 0x7f) {
    case XCB_MOTION_NOTIFY:
        addCore(Kind::Move);
        break;
    case XCB_BUTTON_PRESS:
        addCore(Kind::Press);
        break;
    case XCB_BUTTON_RELEASE:
        addCore(Kind::Release);
        break;
    case XCB_GE_GENERIC: {
        const auto* const generic = reinterpret_cast<const xcb_ge_generic_event_t*>(event);
        if (generic->extension != m_inputExtension)
            break;
        if (generic->event_type == XCB_INPUT_MOTION)
            addExtended(Kind::Move);
        else if (generic->event_type == XCB_INPUT_BUTTON_PRESS)
            addExtended(Kind::Press);
        else if (generic->event_type == XCB_INPUT_BUTTON_RELEASE)
            addExtended(Kind::Release);
        break;
    }
    }
    return false;
}

std::optional<QPoint> PointerTrail::find(const QMouseEvent& event, QPointF rounded) const
{
    const Kind kind = event.type() == QEvent::MouseButtonPress ? Kind::Press
        : event.type() == QEvent::MouseButtonRelease           ? Kind::Release
                                                               : Kind::Move;
    // Several events may have the same time. The toolkit also makes moves of presses and releases
    // elsewhere than the last event, so that the kind only decides between equals.
    const Point* best = nullptr;
    double least = 0;
    const std::size_t kept = std::min(m_count, m_points.size());
    for (std::size_t age = 1; age <= kept; ++age) {
        const Point& point = m_points[(m_count - age) % m_points.size()];
        if (point.time != xcb_timestamp_t(event.timestamp()))
            continue;
        const double distance
            = (QPointF(point.position) - rounded).manhattanLength() + (point.kind == kind ? 0 : 8);
        if (!best || distance < least) {
            best = &point;
            least = distance;
        }
    }
    return best ? std::optional(best->position) : std::nullopt;
}

void PointerTrail::add(Kind kind, xcb_timestamp_t time, QPoint position)
{
    m_points[m_count++ % m_points.size()] = {kind, time, position};
}
