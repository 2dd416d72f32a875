// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CaptureKind.h"
#include "base/CaptureReport.h"
#include "base/Folders.h"

#include <QStringList>
#include <QVariantMap>

#include <variant>

/// How other programs of the user talk to the resident one: they connect to a socket, send one
/// request and read one answer. Each is a line of UTF-8 that holds a JSON object. Members that are
/// not known are ignored, so that either side may be the newer one.
namespace Control {

struct ShowPanel { };
struct Capture {
    CaptureKind kind = CaptureKind::Region;
    bool wait = false; ///< The answer comes when the capture has ended.
};
struct Quit { };
/// Opens image files as pins; the answer comes when they are open.
struct Pin {
    QStringList paths; ///< Absolute.
};
/// Opens image files in the editor; the answer comes when they are open.
struct Edit {
    QStringList paths; ///< Absolute.
};
/// Opens one of the windows.
struct Show {
    enum class What { History, Gallery, Settings } what = What::History;
};
/// Asks which shortcuts the system refused.
struct Shortcuts { };
using Request = std::variant<ShowPanel, Capture, Quit, Pin, Edit, Show, Shortcuts>;

/// What was asked for has begun.
struct Accepted { };
struct ShortcutReport {
    QList<CaptureKind> refused; ///< Kinds that have a shortcut which the system refused.
};
/// A request that cannot be followed is answered by a report of its failure.
using Answer = std::variant<Accepted, CaptureReport, ShortcutReport>;

/// Lengths of lines in bytes, without the newline. Recognised text may be long.
inline constexpr qsizetype longestRequest = 64 * 1024;
inline constexpr qsizetype longestAnswer = 8 * 1024 * 1024;

/// With the newline. An answer that is too long becomes a failure that says so.
QByteArray toLine(const Request& request);
QByteArray toLine(const Answer& answer);

/// From a line without its newline; an error is a sentence for the other side or the user.
Result<Request> requestFrom(const QByteArray& line);
Result<Answer> answerFrom(const QByteArray& line);

/// What an answer to a request tells; an error is a failure.
CaptureReport reportOf(const Result<CaptureReport>& result);

/// As programs are told of it, in JSON or over the session bus: outcome, path, width, height,
/// scale, app, historyId, text, reason; what is empty is left out.
QVariantMap valuesOf(const CaptureReport& report);

/// The window that requests and actions of the desktop call "history", "gallery" or "settings".
std::optional<Show::What> windowNamed(QStringView name);

/// What a program that waited for the report ends with: 0 done, 1 cancelled, 2 failed, 3 busy.
int exitCode(const CaptureReport& report);

/// In the runtime folder, which must be private.
QString socketPath(const Folders& folders);

} // namespace Control
