// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "platform/Appearance.h"

/// A theme that sets colours, preview effect, capture sound and animation in one go.
struct Skin {
    QString id; ///< As kept in the preferences.
    const char* englishName;
    QString emoji;
    const char* englishDesc;
    std::optional<QString> mode; ///< "light" or "dark"; none follows the desktop.
    std::optional<QString> accentHex; ///< #RRGGBB; none leaves the desktop's accent.
    std::optional<QString> tintHex; ///< #RRGGBB, of backgrounds.
    double tintAmount; ///< 0 to 1.
    QString effect; ///< Of the preview card.
    QString effectColors;
    QString sound;
    QString animation; ///< Of the capture.

    QString name() const; ///< In the language of the user.
    QString desc() const;
    std::optional<QColor> accent() const;
    std::optional<QColor> tint() const;
};

/// The skins there are, and the one that is worn. Lives on the main thread.
class Skins final : public QObject {
    Q_OBJECT

public:
    /// Wears the current skin from the first apply() on.
    Skins(Prefs& prefs, const Appearance& appearance);

    static Skins& shared(); ///< The one that install() was called on.
    void install();

    static const QList<Skin>& all(); ///< In the order in which they are shown; the default first.
    static const Skin& find(const std::optional<QString>& id); ///< Else the default one.

    const Skin& current() const;
    bool isDark() const { return m_dark; } ///< How the surfaces are to look now.

    /// Puts a skin on. All but the default bring their effect, sound and animation, which stay when
    /// the default comes back.
    void use(const QString& id);

    /// Makes isDark() what the current skin asks for; where it says nothing, what the desktop has.
    /// Happens by itself when either changes.
    void apply();

Q_SIGNALS:
    void applied(); ///< Another skin, or another look of the desktop around it.

private:
    struct Worn {
        QString skin;
        DesktopLook desktop;
        bool operator==(const Worn&) const = default;
    };

    Prefs& m_prefs;
    const Appearance& m_appearance;
    std::optional<Worn> m_worn; ///< None before the first apply().
    bool m_dark = false;
};
