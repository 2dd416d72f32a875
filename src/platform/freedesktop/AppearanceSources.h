// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Appearance.h"

#include <QMap>
#include <QVariantMap>

/// What one of the places says where desktops keep their look; empty where it says nothing.
struct PartialLook {
    std::optional<bool> dark {};
    std::optional<QColor> accent {};
    std::optional<bool> reducedMotion {};
    std::optional<bool> highContrast {};
    std::optional<double> textScale {};

    /// This, and what it lacks from the other.
    PartialLook orElse(const PartialLook& other) const;
    DesktopLook complete() const;
};

/// Reads those places. All are plain functions over their content.
namespace AppearanceSources {

/// Settings by group and key, as the portal's Settings interface hands them out.
using PortalSettings = QMap<QString, QVariantMap>;
PartialLook fromPortal(const PortalSettings& settings);

/// A theme's name as GTK has it in the environment, "Adwaita-dark" or "Adwaita:dark".
PartialLook fromGtkTheme(const QString& name);
/// @param settings the content of gtk-3.0/settings.ini or gtk-4.0/settings.ini
PartialLook fromGtkSettings(const QString& settings);
/// @param settings the content of kdeglobals
PartialLook fromKdeGlobals(const QString& settings);

} // namespace AppearanceSources
