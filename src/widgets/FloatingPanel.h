// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SurfaceTraits.h"
#include "widgets/CardFrame.h"

#include <QVariantAnimation>
#include <QWidget>

#include <functional>
#include <optional>

/// What our floating surfaces have in common and need.
struct Surroundings {
    const Themes& themes;
    SurfaceTraits& surfaces;
};

/// A card that floats above all windows, full-screen ones included, on every desktop. It takes no
/// focus when shown; a click into it does, and hiding gives it back. It can be dragged by its
/// background. The window is larger than its card by the shadow, through which clicks pass; where
/// windows are not blended it is cut to the card instead.
class FloatingPanel : public QWidget {
    Q_OBJECT

public:
    /// @param name for screen readers
    FloatingPanel(const Surroundings& surroundings, const QString& name);
    ~FloatingPanel() override;

    /// Shows this in the card, at the size that it asks for. Takes it over.
    void host(QWidget* content);

    /// Rises into the bottom right corner of the work area under the pointer.
    /// @param margin points to its edges
    void presentBottomRight(int margin);
    /// Drops into the top right corner of that work area.
    void presentTopRight(int margin);
    /// Appears in the middle of the screen under the pointer.
    void presentCentered();
    /// Fades away, then hides and tells so.
    void fadeOut(std::function<void()> hidden);

    QRect card() const; ///< In points of the desktop, y down.

Q_SIGNALS:
    void escaped(); ///< The Escape key was pressed, and nobody in it needed that.

protected:
    const Theme& theme() const { return m_surroundings.themes.current(); }

    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void glide(QRect target, int fromBelow); ///< Points.
    void placeCard(QRect card); ///< In points of the desktop, y down.
    void setOpacity(double opacity);
    void followBlending();
    void takeFocus();

    Surroundings m_surroundings;
    QWidget* m_content = nullptr;
    QVariantAnimation m_motion; ///< 0 to 1, of what is under way.
    std::optional<QPoint> m_grip; ///< Where it is held while it is dragged, in the window.
    bool m_hasFocus = false;
};
