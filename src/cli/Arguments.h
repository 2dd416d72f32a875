// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Control.h"
#include "base/Result.h"

#include <QRect>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <variant>

/// What to take a picture of; nothing chosen means all screens.
struct WholeDesktop { };
struct ScreenNumber {
    int number; ///< As `list screens` counts, from 1.
};
struct WindowNumber {
    std::uint32_t id;
};
using ShotTarget = std::variant<WholeDesktop, ScreenNumber, WindowNumber, QRect>;

struct ShotRequest {
    ShotTarget target;
    QString output; ///< "-" is standard output; empty: a dated name in the current folder.
    bool cursor = false;
    bool shadow = false; ///< Only of a window.
    bool json = false;
};

struct ListRequest {
    enum class What { Screens, Windows, History } what = What::Screens;
    bool json = false;
    std::optional<QString> search {}; ///< Of the history: only where this is found.
};

struct CaptureRequest {
    CaptureKind kind = CaptureKind::Region;
    bool wait = false; ///< For the end of the capture.
    bool json = false;
};

struct TextRequest {
    QStringList files;
    bool json = false;
};

struct DoctorRequest {
    bool online = false; ///< Asks the address of updates, too.
    bool json = false;
};

/// Becoming the resident program, with the options it is given.
struct LaunchRequest {
    QStringList options;
};

struct PinRequest {
    QStringList files;
};

struct EditRequest {
    QStringList files;
};

/// Opening a window of the resident program.
struct ShowRequest {
    Control::Show::What what = Control::Show::What::History;
};

struct QuitRequest { };
struct HelpRequest { };
struct VersionRequest { };

using Request = std::variant<ShotRequest, ListRequest, CaptureRequest, TextRequest, DoctorRequest,
    LaunchRequest, PinRequest, EditRequest, ShowRequest, QuitRequest, HelpRequest, VersionRequest>;

/// What the words behind the program's name ask for, or one line that says what is wrong with them.
Result<Request> parseArguments(const QStringList& arguments);

/// "X,Y,WxH", whole numbers, neither extent 0.
std::optional<QRect> parseArea(const QString& text);

QString helpText();

/// What can be typed, for whoever checks that documents and completions know all of it.
struct CommandWords {
    QString name; ///< Empty for the one without a name.
    QStringList options; ///< Without dashes.
};
QList<CommandWords> commandWords();
