// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QWidget>

class TextLabel;

/// Says in an editor's window that its edit could not be written, and what can be done about it.
class EditorNotice final : public QWidget {
    Q_OBJECT

public:
    explicit EditorNotice(const Themes& themes, QWidget* parent = nullptr);

    void tell(const QString& reason); ///< And shows itself.

Q_SIGNALS:
    void retryChosen();
    void saveElsewhereChosen();
    void discardChosen();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Themes& m_themes;
    TextLabel* m_reason;
};
