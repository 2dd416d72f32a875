// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/AppearanceSources.h"

#include <QDBusArgument>
#include <QHash>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// "group/key" to value. Not QSettings, which splits values at commas.
QHash<QString, QString> readIni(const QString& content)
{
    QHash<QString, QString> values;
    QString group;
    const auto lines = content.split(u'\n');
    for (const auto& raw : lines) {
        const auto line = raw.trimmed();
        if (line.startsWith(u'[') && line.endsWith(u']'))
            group = line.mid(1, line.size() - 2) + u'/';
        const auto equals = line.indexOf(u'=');
        if (equals > 0 && !line.startsWith(u'#'))
            values.insert(group + line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    return values;
}

/// "61,174,233"
std::optional<QColor> colorOf(const QString& text)
{
    const auto parts = text.split(u',');
    if (parts.size() < 3)
        return std::nullopt;
    const QColor color(parts[0].toInt(), parts[1].toInt(), parts[2].toInt());
    return color.isValid() ? std::optional(color) : std::nullopt;
}

/// Three parts from 0 to 1; anything outside means that no colour is set.
std::optional<QColor> portalColor(const QVariant& value)
{
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != "(ddd)"_L1)
        return std::nullopt;
    std::array<double, 3> parts {};
    argument.beginStructure();
    argument >> parts[0] >> parts[1] >> parts[2];
    argument.endStructure();
    if (!std::ranges::all_of(parts, [](double part) { return part >= 0 && part <= 1; }))
        return std::nullopt;
    return QColor::fromRgbF(float(parts[0]), float(parts[1]), float(parts[2]));
}

std::optional<bool> darkOf(const QVariant& colorScheme)
{
    const uint scheme = colorScheme.toUInt();
    return scheme == 1 || scheme == 2 ? std::optional(scheme == 1) : std::nullopt;
}

/// Of a setting that is 1, or else no preference.
std::optional<bool> preferred(const QVariant& value)
{
    return value.toUInt() == 1 ? std::optional(true) : std::nullopt;
}

std::optional<double> scaleOf(const QVariant& value)
{
    const double scale = value.toDouble();
    return scale >= 0.5 && scale <= 4 ? std::optional(scale) : std::nullopt;
}

std::optional<bool> flagOf(const QString& text)
{
    if (text == u"1"_s || text.compare(u"true"_s, Qt::CaseInsensitive) == 0)
        return true;
    if (text == u"0"_s || text.compare(u"false"_s, Qt::CaseInsensitive) == 0)
        return false;
    return std::nullopt;
}

std::optional<bool> negated(std::optional<bool> flag)
{
    return flag ? std::optional(!*flag) : std::nullopt;
}

} // namespace

PartialLook PartialLook::orElse(const PartialLook& other) const
{
    return {dark ? dark : other.dark, accent ? accent : other.accent,
        reducedMotion ? reducedMotion : other.reducedMotion,
        highContrast ? highContrast : other.highContrast, textScale ? textScale : other.textScale};
}

DesktopLook PartialLook::complete() const
{
    return {dark.value_or(false), accent, reducedMotion.value_or(false),
        highContrast.value_or(false), textScale.value_or(1)};
}

// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
PartialLook AppearanceSources::fromPortal(const PortalSettings& settings)
{
    const auto common = settings.value(u"org.freedesktop.appearance"_s);
    const PartialLook look {darkOf(common.value(u"color-scheme"_s)),
        portalColor(common.value(u"accent-color"_s)), preferred(common.value(u"reduced-motion"_s)),
        preferred(common.value(u"contrast"_s)), {}};

    PartialLook own; // What desktops had before the common settings.
    const auto gnome = settings.value(u"org.gnome.desktop.interface"_s);
    if (const auto animations = gnome.value(u"enable-animations"_s); animations.isValid())
        own.reducedMotion = !animations.toBool();
    own.textScale = scaleOf(gnome.value(u"text-scaling-factor"_s));
    if (const auto kde = settings.value(u"org.kde.kdeglobals.KDE"_s);
        kde.contains(u"AnimationDurationFactor"_s))
        own.reducedMotion = kde.value(u"AnimationDurationFactor"_s).toDouble() == 0;
    own.accent = colorOf(
        settings.value(u"org.kde.kdeglobals.General"_s).value(u"AccentColor"_s).toString());
    const auto gtk = fromGtkTheme(gnome.value(u"gtk-theme"_s).toString());
    return look.orElse(own).orElse(gtk);
}

PartialLook AppearanceSources::fromGtkTheme(const QString& name)
{
    PartialLook look;
    if (name.contains("HighContrast"_L1))
        look.highContrast = true;
    // Names of light themes say nothing; the setting that prefers dark ones may still. What is only
    // "darker" has dark title bars around light windows.
    const bool isDark = name.contains("dark"_L1, Qt::CaseInsensitive)
        && !name.contains("darker"_L1, Qt::CaseInsensitive);
    if (isDark || name.endsWith("Inverse"_L1))
        look.dark = true;
    return look;
}

PartialLook AppearanceSources::fromGtkSettings(const QString& settings)
{
    const auto values = readIni(settings);
    PartialLook look = fromGtkTheme(values.value(u"Settings/gtk-theme-name"_s));
    if (!look.dark)
        look.dark = flagOf(values.value(u"Settings/gtk-application-prefer-dark-theme"_s));
    look.reducedMotion = negated(flagOf(values.value(u"Settings/gtk-enable-animations"_s)));
    return look;
}

PartialLook AppearanceSources::fromKdeGlobals(const QString& settings)
{
    const auto values = readIni(settings);
    PartialLook look;
    if (const auto window = colorOf(values.value(u"Colors:Window/BackgroundNormal"_s)))
        look.dark = window->lightness() < 128;
    else if (const auto scheme = values.value(u"General/ColorScheme"_s); !scheme.isEmpty())
        look.dark = scheme.contains("dark"_L1, Qt::CaseInsensitive);
    look.accent = colorOf(values.value(u"General/AccentColor"_s));
    if (const auto factor = values.value(u"KDE/AnimationDurationFactor"_s); !factor.isEmpty())
        look.reducedMotion = factor.toDouble() == 0;
    return look;
}
