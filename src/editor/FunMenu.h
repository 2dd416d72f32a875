// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

/// The playful things that an editor does to its picture.
class FunMenu final : public QMenu {
    Q_OBJECT

public:
    explicit FunMenu(QWidget* parent = nullptr);

Q_SIGNALS:
    void memeChosen();
    void coverChosen(const QString& emoji); ///< Of all faces; empty: by chance, for each its own.
    void stickersChosen();
};
