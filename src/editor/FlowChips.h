// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QWidget>

#include <functional>

/// Phrases as buttons with round ends, in rows of a fixed number. The arrow keys lead from one to
/// the next.
class FlowChips final : public QWidget {
public:
    using Action = std::function<void(const QString& phrase)>;

    FlowChips(const Themes& themes, const QStringList& items, const Action& action,
        QWidget* parent = nullptr);
};
