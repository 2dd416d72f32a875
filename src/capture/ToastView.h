// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/ToastMessage.h"
#include "widgets/TextLabel.h"

/// What a toast shows: a symbol beside a title and, below it, a message. 320 points wide and 80
/// high; higher when the message needs it, up to a few lines, of which the last one is cut.
class ToastView final : public QWidget {
    Q_OBJECT

public:
    ToastView(const Themes& themes, const ToastMessage& toast, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void fitMessage();

    const Themes& m_themes;
    const ToastMessage m_toast;
    TextLabel* m_message = nullptr; ///< None where there is no message.
};
