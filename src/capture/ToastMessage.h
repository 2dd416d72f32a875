// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>

/// A short notice to the user that goes by itself.
struct ToastMessage {
    QString title;
    QString message {}; ///< May be empty.
    QString symbol; ///< Name of its icon.
    std::chrono::milliseconds shown {3500};

    friend bool operator==(const ToastMessage&, const ToastMessage&) = default;
};
