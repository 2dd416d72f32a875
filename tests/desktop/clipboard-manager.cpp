// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT

// A clipboard manager as desktops run one: when a program ends and asks for its clipboard to be
// saved (ICCCM selection CLIPBOARD_MANAGER, target SAVE_TARGETS), it takes a copy and owns it.
#include "platform/x11/X11Connection.h"

#include <QAbstractNativeEventFilter>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>
#include <QtGui/qguiapplication_platform.h>

#include <cstdio>
#include <cstring>

namespace {

class Manager final : public QAbstractNativeEventFilter {
public:
    explicit Manager(xcb_connection_t* xcb)
        : m_xcb(xcb)
        , m_window(xcb_generate_id(xcb))
    {
        const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(xcb)).data;
        xcb_create_window(xcb, 0, m_window, screen->root, 0, 0, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, screen->root_visual, 0, nullptr);
        constexpr char name[] = "CLIPBOARD_MANAGER";
        const auto atom = owned(
            xcb_intern_atom_reply(xcb, xcb_intern_atom(xcb, 0, std::strlen(name), name), nullptr));
        xcb_set_selection_owner(xcb, m_window, atom->atom, XCB_CURRENT_TIME);
        xcb_flush(xcb);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        const auto* event = static_cast<xcb_selection_request_event_t*>(message);
        if ((event->response_type & 0x7f) != XCB_SELECTION_REQUEST || event->owner != m_window)
            return false;
        QTimer::singleShot(0, [this, request = *event] { save(request); });
        return true;
    }

private:
    void save(const xcb_selection_request_event_t& request)
    {
        const QMimeData* offered = QGuiApplication::clipboard()->mimeData();
        auto* copy = new QMimeData;
        for (const auto& format : offered->formats())
            copy->setData(format, offered->data(format));
        xcb_selection_notify_event_t done {};
        done.response_type = XCB_SELECTION_NOTIFY;
        done.time = request.time;
        done.requestor = request.requestor;
        done.selection = request.selection;
        done.target = request.target;
        done.property = request.property;
        xcb_send_event(m_xcb, 0, request.requestor, 0, reinterpret_cast<const char*>(&done));
        xcb_flush(m_xcb);
        QGuiApplication::clipboard()->setMimeData(copy);
        std::printf("saved\n");
        std::fflush(stdout);
    }

    xcb_connection_t* m_xcb;
    xcb_window_t m_window;
};

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    Manager manager(application.nativeInterface<QNativeInterface::QX11Application>()->connection());
    application.installNativeEventFilter(&manager);
    std::printf("ready\n");
    std::fflush(stdout);
    return QGuiApplication::exec();
}
