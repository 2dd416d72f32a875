// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Appearance.h"
#include "skins/Skins.h"

#include <QFont>
#include <QPalette>

/// Distances in points, on a grid of four.
namespace Space {
constexpr int tiny = 4;
constexpr int related = 8;
constexpr int inner = 12;
constexpr int group = 16;
constexpr int window = 20;
constexpr int wide = 28;
} // namespace Space

/// Corner radii in points. Where one shape nests in another, the inner radius is the outer one less
/// the distance between them.
namespace Radius {
constexpr double chip = 6;
constexpr double cell = 8;
constexpr double thumbnail = 10;
constexpr double tile = 12;
constexpr double card = 18;
} // namespace Radius

/// Extents of controls in points.
namespace Extent {
constexpr int control = 28;
constexpr int toolbar = 32;
constexpr int smallSymbol = 16;
constexpr int symbol = 20;
constexpr double hairline = 1;
constexpr double focusRing = 2; ///< Wide, and as far outside the control.
} // namespace Extent

enum class TextStyle { Caption, Callout, Body, Headline, Title3, Title2, Title1, Countdown };
enum class SystemColour {
    Red,
    Orange,
    Yellow,
    Green,
    Mint,
    Teal,
    Cyan,
    Blue,
    Indigo,
    Purple,
    Pink,
    Brown,
};

/// All colours and letters of the surfaces, computed from a skin and the desktop's look. No surface
/// has a colour, size or duration of its own. Text reaches 4.5 : 1 on card and window.
struct Theme {
    static Theme of(const Skin& skin, bool dark, const DesktopLook& desktop);

    static QColor system(SystemColour colour);
    QFont font(TextStyle style) const; ///< The desktop's font for interfaces.
    int lineHeight(TextStyle style) const; ///< Points from one line of text to the next.
    QPalette palette() const; ///< For the toolkit's own dialogs and menus.

    bool dark = false;
    bool reducedMotion = false;
    double textScale = 1;

    QColor card; ///< Translucent; opaque where nothing blends windows.
    QColor window, sidebar, well; ///< Opaque; the well is what pictures lie in.
    QColor text, secondary;
    QColor hairline;
    QColor fill, fillHover, fillPressed; ///< Of controls, over card or window.
    QColor accent; ///< For fills, one thing of a surface.
    QColor accentHover, accentPressed;
    QColor onAccent; ///< Text and symbols on the accent.
    QColor accentSymbol; ///< The accent, readable as a symbol on card and window.
    QColor failure; ///< Likewise for what went wrong.
    QColor shadow;

    bool operator==(const Theme&) const = default;
};

/// The theme that is worn now. Lives on the main thread.
class Themes final : public QObject {
    Q_OBJECT

public:
    Themes(const Skins& skins, const Appearance& appearance);

    const Theme& current() const { return m_current; }

Q_SIGNALS:
    void changed();

private:
    void update();

    const Skins& m_skins;
    const Appearance& m_appearance;
    Theme m_current;
};
