// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "overlay/OverlayPool.h"

#include <QObject>

class QKeyEvent;
class QMouseEvent;

/// Lets the user select a rectangle on the frozen pictures of all screens, each covered by a
/// window. Made anew for each selection; when it is destroyed before the end, the answer is
/// Cancelled. The pool outlives it.
class RegionOverlay final : public QObject {
    Q_OBJECT

public:
    RegionOverlay(OverlayPool& pool, const Displays& displays, const OverlayStyle& style);
    ~RegionOverlay() override;

    /// Once. Cancelled by the user, or when a screen comes, goes or changes meanwhile.
    Pending<RegionResult> select(const RegionQuestion& question);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void show(const RegionQuestion& question);
    void watchScreens();
    void handleMouse(const QMouseEvent& event, const QWindow& window);
    bool handleKey(const QKeyEvent& event);
    void showScenes();
    void finish(Result<RegionResult> result);

    OverlayPool& m_pool;
    const Displays& m_displays;
    OverlayStyle m_style;
    std::optional<OverlayModel> m_model;
    std::vector<std::unique_ptr<OverlayWindow>> m_windows; ///< One per screen, in their order.
    Pending<RegionResult>::Answer m_answer;
};
