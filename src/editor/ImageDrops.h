// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

/// Lets files be dropped on a widget or what is in it. The widget's child.
class ImageDrops final : public QObject {
    Q_OBJECT

public:
    using Dropped = std::function<void(const QStringList& paths)>;

    /// @param dropped is told the local files of a drop, from the event loop: by then whoever
    /// dragged them has its answer.
    ImageDrops(QWidget& widget, Dropped dropped);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const Dropped m_dropped;
};
