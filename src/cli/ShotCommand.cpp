// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"
#include "base/FileNames.h"
#include "base/PngWriter.h"
#include "base/Words.h"
#include "cli/Commands.h"
#include "cli/Print.h"
#include "platform/Platform.h"

#include <QDir>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

/// A picture and where on the desktop it was, in device pixels.
struct Taken {
    Frozen picture;
    QRect native;
    double scale = 1;
};

double scaleAt(QRect native, const QList<DisplayInfo>& displays)
{
    const DisplayInfo* display = displayShowingMost(native, displays);
    return display ? display->scale : 1;
}

Result<Taken> takeArea(
    CapturePlatform& platform, QRect native, const QList<Window>& windows, Pointer pointer)
{
    const auto displays = platform.displays->list();
    QRect desktop;
    for (const auto& display : displays)
        desktop |= display.native;
    const QRect area = native & desktop;
    if (area.isEmpty())
        return Error::failed(Words::tr("The area lies outside all screens."));
    auto picture = platform.capture->area(area, ownWindows(windows), pointer).wait();
    if (!picture)
        return picture.error();
    return Taken {*picture, area, scaleAt(area, displays)};
}

Result<Taken> takeWindow(CapturePlatform& platform, WindowId id, const QList<Window>& windows,
    const ShotRequest& request)
{
    const auto window = std::find_if(
        windows.begin(), windows.end(), [id](const Window& each) { return each.id == id; });
    if (window == windows.end())
        return Error::failed(Words::tr("There is no window 0x%1.").arg(qulonglong(id), 0, 16));
    auto picture = platform.capture
                       ->window(id, request.shadow ? WindowShadow::Kept : WindowShadow::Dropped,
                           request.cursor ? Pointer::Drawn : Pointer::Hidden)
                       .wait();
    if (!picture)
        return picture.error();
    return Taken {*picture, window->frame, scaleAt(window->frame, platform.displays->list())};
}

Result<Taken> take(CapturePlatform& platform, const ShotRequest& request)
{
    const auto windows = platform.capture->windows();
    if (!windows)
        return windows.error();
    if (const auto* window = std::get_if<WindowNumber>(&request.target))
        return takeWindow(platform, window->id, *windows, request);

    const auto pointer = request.cursor ? Pointer::Drawn : Pointer::Hidden;
    if (const auto* area = std::get_if<QRect>(&request.target))
        return takeArea(platform, *area, *windows, pointer);
    const auto displays = platform.displays->list();
    if (displays.isEmpty())
        return Error::failed(Words::tr("There is no screen to capture."));
    if (const auto* screen = std::get_if<ScreenNumber>(&request.target)) {
        if (screen->number > displays.size())
            return Error::failed(displays.size() == 1 ? Words::tr("There is only one screen.")
                                                      : Words::tr("There are only %n screens.",
                                                          nullptr, Words::count(displays.size())));
        return takeArea(platform, displays[screen->number - 1].native, *windows, pointer);
    }
    QRect desktop;
    for (const auto& display : displays)
        desktop |= display.native;
    return takeArea(platform, desktop, *windows, pointer);
}

Result<void> writeToStandardOutput(const Taken& taken)
{
    if (isatty(STDOUT_FILENO))
        return Error::failed(
            Words::tr("Standard output is a terminal; a picture is not written to it."));
    return writePng(*taken.picture, taken.scale, [](std::span<const std::uint8_t> bytes) {
        while (!bytes.empty()) {
            const ssize_t written = write(STDOUT_FILENO, bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR)
                return Result<void>(
                    Error::failed(Words::tr("Cannot write to standard output: %1.")
                                      .arg(QString::fromLocal8Bit(std::strerror(errno)))));
            bytes = bytes.subspan(std::size_t(std::max<ssize_t>(written, 0)));
        }
        return Result<void>();
    });
}

Result<void> writeToFile(const Taken& taken, const QString& path, AtomicFile::Existing existing)
{
    AtomicFile file(path, {existing, AtomicFile::Access::Umask});
    if (auto opened = file.open(); !opened)
        return opened;
    const auto sink = [&file](std::span<const std::uint8_t> bytes) { return file.write(bytes); };
    if (auto written = writePng(*taken.picture, taken.scale, sink); !written)
        return written;
    return file.commit();
}

Result<QString> writeToFreshName(const Taken& taken)
{
    const QString base = FileNames::dated(u"Screenshot"_s, QDateTime::currentDateTime());
    for (int number = 1;; ++number) {
        const QString path = FileNames::numbered(base, number, u"png"_s);
        const auto written = writeToFile(taken, path, AtomicFile::Existing::Keep);
        if (written)
            return path;
        if (written.error().kind != Error::Kind::Exists)
            return written.error();
    }
}

QJsonObject toJson(const Taken& taken, const QString& path)
{
    const QSize size = taken.picture->size();
    return {{u"path"_s, QDir::current().absoluteFilePath(path)}, {u"width"_s, size.width()},
        {u"height"_s, size.height()}, {u"scale"_s, taken.scale}, {u"area"_s, toJson(taken.native)}};
}

} // namespace

Result<void> runShot(const ShotRequest& request)
{
    auto platform = makeCapturePlatform(Residency::OneShot);
    if (!platform)
        return platform.error();
    const auto taken = take(*platform, request);
    if (!taken)
        return taken.error();
    if (request.output == u"-"_s)
        return writeToStandardOutput(*taken);

    QString path = request.output;
    if (path.isEmpty()) {
        const auto fresh = writeToFreshName(*taken);
        if (!fresh)
            return fresh.error();
        path = *fresh;
    } else if (auto written = writeToFile(*taken, path, AtomicFile::Existing::Replace); !written) {
        return written;
    }
    if (request.json)
        return print(QJsonValue(toJson(*taken, path)));
    return request.output.isEmpty() ? print(path.toLocal8Bit() + '\n') : Result<void>();
}
