// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>

#include <optional>

/// How the user has set the desktop to look and move.
struct DesktopLook {
    bool dark = false;
    std::optional<QColor> accent {}; ///< None where the desktop has no such setting.
    bool reducedMotion = false;
    bool highContrast = false;
    double textScale = 1; ///< What letters are to be enlarged by, beyond the screen's own scale.

    bool operator==(const DesktopLook&) const = default;
};

/// Follows the look of the desktop. The first answer is what can be had without waiting, a better
/// one may come a moment later with changed().
class Appearance : public QObject {
    Q_OBJECT

public:
    virtual DesktopLook current() const = 0;

Q_SIGNALS:
    void changed(); ///< current() answers differently now.
};
