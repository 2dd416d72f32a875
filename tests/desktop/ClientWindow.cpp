// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/ClientWindow.h"

#include <gtest/gtest.h>

ClientWindow openWindow(const VirtualDesktop& desktop, const QStringList& arguments)
{
    ClientWindow window;
    auto client = desktop.launch(QStringLiteral("desktop-client"), arguments);
    if (!client) {
        ADD_FAILURE() << client.error().message.toStdString();
        return window;
    }
    const QByteArray mapped = (*client)->waitForLine("mapped ");
    if (mapped.isNull()) {
        ADD_FAILURE() << "no window appeared: " << (*client)->errors().toStdString();
        return window;
    }
    window.id = mapped.sliced(7).toUInt(nullptr, 16);
    window.client = *std::move(client);
    if (window.client->output().contains("geometry ")) // One that begins minimized has none.
        window.geometry = waitForGeometry(*window.client);
    return window;
}

QRect waitForGeometry(Client& client)
{
    QByteArray last = client.waitForLine("geometry ");
    for (QByteArray next = last; !next.isNull(); next = client.waitForLine("geometry ", {}))
        last = next;
    int x = 0, y = 0, width = 0, height = 0;
    const int found
        = std::sscanf(last.constData(), "geometry %d,%d,%dx%d", &x, &y, &width, &height);
    return found == 4 ? QRect(x, y, width, height) : QRect();
}
