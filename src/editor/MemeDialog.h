// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QDialog>

class QLineEdit;

/// Asks for the two captions of a meme.
class MemeDialog final : public QDialog {
    Q_OBJECT

public:
    explicit MemeDialog(const Themes& themes, QWidget* parent = nullptr);

Q_SIGNALS:
    void captioned(const QString& top, const QString& bottom); ///< At least one is not empty.

private:
    QLineEdit* m_top;
    QLineEdit* m_bottom;
};
