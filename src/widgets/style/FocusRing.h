// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFocusFrame>
#include <QPointer>

/// The ring around the toolkit's control that has the focus. It is left away where a click brought
/// the focus, and where a control shows that by itself, as fields do.
class FocusRing final : public QObject {
    Q_OBJECT

public:
    FocusRing();
    ~FocusRing() override;

    /// For those of our own that do not paint one. Around what scrolls it is inside of the edge.
    static void wantedBy(QWidget& widget);

private:
    void follow(QWidget* focused);

    QPointer<QFocusFrame> m_frame; ///< Goes with the window that it is in.
};
