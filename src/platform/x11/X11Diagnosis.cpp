// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11Diagnosis.h"

#include "base/Words.h"
#include "platform/freedesktop/ModuleFaceDetector.h"
#include "platform/freedesktop/ModuleTextLanguages.h"
#include "platform/freedesktop/SoundServer.h"
#include "platform/x11/SelectionExchange.h"

namespace {

/// Bytes of every value.
QByteArray sample()
{
    QByteArray bytes(32 * 1024, Qt::Uninitialized);
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = char(i * 7 + i / 256);
    return bytes;
}

} // namespace

X11Diagnosis::X11Diagnosis(QStringList languages)
    : m_languages(std::move(languages))
{
}

Result<void> X11Diagnosis::exchangeCopies()
{
    const auto giver = X11Connection::open(), taker = X11Connection::open();
    if (!giver || !taker)
        return giver ? taker.error() : giver.error();
    const QByteArray given = sample();
    const auto taken = SelectionExchange(*giver, *taker).exchange(given);
    if (!taken)
        return taken.error();
    return *taken == given
        ? Result<void>()
        : Error::failed(Words::tr("What a program copies reaches another one changed."));
}

bool X11Diagnosis::keepsCopies()
{
    const auto connection = X11Connection::open();
    if (!connection)
        return false;
    xcb_connection_t* xcb = (*connection)->xcb();
    const auto owner = owned(xcb_get_selection_owner_reply(
        xcb, xcb_get_selection_owner(xcb, (*connection)->atom("CLIPBOARD_MANAGER")), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

Result<QString> X11Diagnosis::soundServer()
{
    return findSoundServer();
}

Result<void> X11Diagnosis::faceDetection()
{
    QImage blank(96, 96, QImage::Format_RGB32);
    blank.fill(Qt::white);
    const auto faces = ModuleFaceDetector().detect(blank);
    return faces ? Result<void>() : faces.error();
}

Result<TextLanguages> X11Diagnosis::textLanguages()
{
    return moduleTextLanguages(m_languages);
}
