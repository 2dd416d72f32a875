// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11ScreenCapture.h"

#include "base/Words.h"
#include "platform/DrawnShadow.h"
#include "platform/x11/FrozenPixmap.h"
#include "platform/x11/Recomposition.h"
#include "platform/x11/WindowContents.h"

#include <xcb/composite.h>
#include <xcb/shape.h>
#include <xcb/shm.h>

#include <array>

namespace {

/// Two strips, one arriving while the other is encoded. A small segment that stays warm beats one
/// for the whole picture: page faults on fresh memory cost more than the copy.
constexpr std::size_t segmentBytes = std::size_t(4) << 20;

/// No other client draws or moves anything as long as it lives. Never held while encoding.
class ServerGrab {
public:
    explicit ServerGrab(xcb_connection_t* xcb)
        : m_xcb(xcb)
    {
        xcb_grab_server(m_xcb);
    }
    ~ServerGrab()
    {
        xcb_ungrab_server(m_xcb);
        xcb_flush(m_xcb);
    }
    ServerGrab(const ServerGrab&) = delete;
    ServerGrab& operator=(const ServerGrab&) = delete;

private:
    xcb_connection_t* m_xcb;
};

/// Makes what lies outside the window's shape transparent and everything else opaque where the
/// window itself has no alpha.
Bitmap cutToShape(X11Connection& connection, const X11Window& window, QRect rect, Bitmap picture)
{
    xcb_connection_t* xcb = connection.xcb();
    const auto extents = owned(
        xcb_shape_query_extents_reply(xcb, xcb_shape_query_extents(xcb, window.topLevel), nullptr));
    if (!extents || !extents->bounding_shaped)
        return picture;
    const auto shape = owned(xcb_shape_get_rectangles_reply(
        xcb, xcb_shape_get_rectangles(xcb, window.topLevel, XCB_SHAPE_SK_BOUNDING), nullptr));
    if (!shape)
        return picture;

    Bitmap cut(picture.size(), PixelFormat::Argb32Premultiplied);
    std::fill_n(cut.row(0), qsizetype(cut.size().width()) * cut.size().height(), 0u);
    const std::uint32_t opaque = picture.format() == PixelFormat::Rgb32 ? 0xff000000 : 0;
    for (auto it = xcb_shape_get_rectangles_rectangles_iterator(shape.get()); it.rem;
         xcb_rectangle_next(&it)) {
        const QRect part = QRect(it.data->x, it.data->y, it.data->width, it.data->height)
                               .translated(window.topLevelRect.topLeft() - rect.topLeft())
            & QRect({}, picture.size());
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                cut.row(y)[x] = picture.row(y)[x] | opaque;
    }
    return cut;
}

} // namespace

X11ScreenCapture::X11ScreenCapture(std::shared_ptr<X11Connection> connection, Residency residency)
    : m_connection(std::move(connection))
    , m_displays(m_connection)
    , m_windows(m_connection)
{
    xcb_prefetch_extension_data(m_connection->xcb(), &xcb_shm_id);
    if (residency == Residency::OneShot)
        return;
    // From now on the server keeps the pixels of every window off screen: covered windows are
    // complete even when their programs hang, and own windows can be left out at once.
    xcb_composite_query_version(m_connection->xcb(), 0, 4);
    xcb_composite_redirect_subwindows(
        m_connection->xcb(), m_connection->root(), XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    xcb_flush(m_connection->xcb());
}

Result<QList<Window>> X11ScreenCapture::windows()
{
    auto windows = m_windows.list();
    m_connection->discardEvents();
    if (xcb_connection_has_error(m_connection->xcb()))
        return m_connection->failure({});
    return windows;
}

QHash<WindowId, int> X11ScreenCapture::frontToBackOrder()
{
    return m_windows.frontToBackOrder();
}

Pending<Frozen> X11ScreenCapture::area(QRect native, QList<WindowId> excluded, Pointer pointer)
{
    return Pending<Frozen>::answered(readArea(native, excluded, pointer));
}

Pending<Frozen> X11ScreenCapture::window(WindowId id, WindowShadow shadow, Pointer pointer)
{
    return Pending<Frozen>::answered(readWindow(id, shadow, pointer));
}

Result<Frozen> X11ScreenCapture::readArea(
    QRect native, const QList<WindowId>& excluded, Pointer pointer)
{
    const QRect area = native & QRect({}, m_connection->rootSize());
    if (area.isEmpty())
        return m_connection->failure(Words::tr("The area lies outside all screens."));

    const std::vector<xcb_window_t> ids(excluded.begin(), excluded.end());
    QSet<xcb_window_t> topLevels;
    for (const auto& window : m_windows.locate(ids))
        topLevels.insert(window.topLevel);
    auto frozen = freeze(area, topLevels);
    if (!frozen)
        return frozen.error();
    prepare(**frozen, pointer);
    return Frozen(*frozen);
}

Result<std::shared_ptr<FrozenPixmap>> X11ScreenCapture::freeze(
    QRect area, const QSet<xcb_window_t>& excludedTopLevels)
{
    std::optional<ServerGrab> grab; // One instant for the screen and for what is behind.
    if (!excludedTopLevels.isEmpty())
        grab.emplace(m_connection->xcb());
    auto frozen = FrozenPixmap::copy(m_connection, m_connection->root(),
        m_connection->screen().root_depth, area, area.topLeft());
    if (frozen && grab)
        paintWithout(*m_connection, m_windows, (*frozen)->pixmap(), area, excludedTopLevels);
    return frozen;
}

Result<Frozen> X11ScreenCapture::readWindow(WindowId id, WindowShadow shadow, Pointer pointer)
{
    const auto window = m_windows.locate(std::array {xcb_window_t(id)}).front();
    if (!window.topLevel)
        return m_connection->failure(Words::tr("There is no window %1.").arg(id));
    if (!window.viewable)
        return m_connection->failure(
            Words::tr("The window is not on screen: it is minimised or on another desktop."));
    const auto contents = WindowContents::of(m_connection, m_windows, window);
    if (!contents)
        return contents.error();

    const bool keepsOwnShadow = shadow == WindowShadow::Kept && !window.ownShadow.isNull();
    const QRect rect = (keepsOwnShadow ? window.clientRect : window.frame()) & window.topLevelRect;
    if (rect.isEmpty())
        return Error::failed(Words::tr("The window shows nothing that could be captured."));
    auto frozen = FrozenPixmap::copy(m_connection, contents->pixmap(), window.topLevelDepth,
        rect.translated(-window.topLevelRect.topLeft()), rect.topLeft());
    if (!frozen)
        return frozen.error();
    prepare(**frozen, pointer);
    auto bitmap = Bitmap::read(**frozen);
    if (!bitmap)
        return bitmap.error();

    auto picture = cutToShape(*m_connection, window, rect, *std::move(bitmap));
    if (shadow == WindowShadow::Kept && !keepsOwnShadow) {
        const auto displays = m_displays.list();
        const DisplayInfo* display = displayShowingMost(window.frame(), displays);
        picture = withDrawnShadow(picture, display ? display->scale : 1);
    }
    return Frozen(std::make_shared<BitmapRows>(std::move(picture)));
}

/// Gives a picture the means to be read fast, and the pointer if it is wanted.
void X11ScreenCapture::prepare(FrozenPixmap& frozen, Pointer pointer)
{
    if (m_segment.use_count() <= 1) {
        if (!m_segment)
            m_segment = SharedSegment::create(m_connection, segmentBytes);
        frozen.readThrough(m_segment);
    }
    if (pointer == Pointer::Drawn)
        if (auto cursor = CursorImage::current(*m_connection))
            frozen.draw(*std::move(cursor));
}
