// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Control.h"
#include "base/Descriptor.h"

#include <chrono>

/// A connection to the resident program for one request. Blocks the thread it is used on: made for
/// programs that have nothing else to do.
class ControlClient final {
public:
    /// None when no resident program runs.
    static Result<std::optional<ControlClient>> connect(const Folders& folders);

    /// Sends the request and returns the answer: to a capture that is waited for whenever it comes,
    /// to all else within ten seconds or an error.
    Result<Control::Answer> ask(const Control::Request& request);

    /// After a Quit was accepted: returns when the resident program has ended.
    Result<void> waitForEnd(std::chrono::milliseconds most);

private:
    explicit ControlClient(Descriptor socket)
        : m_socket(std::move(socket))
    {
    }
    Result<QByteArray> receiveLine();

    Descriptor m_socket;
};

/// Ends the resident program, if one runs, and returns when another one may take its place.
Result<void> askResidentToQuitAndWait(const Folders& folders, std::chrono::milliseconds most);
