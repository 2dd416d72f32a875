// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryStore.h"
#include "widgets/Theme.h"

#include <QAbstractButton>

class GlassButton;
class RecentActions;

/// One of the last captures, small. Under the pointer or with the focus it shows what is done with
/// it most; its menu offers everything.
class RecentThumbnail final : public QAbstractButton {
    Q_OBJECT

public:
    static constexpr QSize extent {68, 48}; ///< Points.

    RecentThumbnail(const Themes& themes, HistoryItem item, RecentActions& actions);

    const HistoryItem& item() const { return m_item; }
    void setPicture(const QImage& picture);

    QSize sizeHint() const override { return extent; }

Q_SIGNALS:
    void done(); ///< Something was begun with it, so the panel is in the way.

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void addAction(const QString& symbol, const QString& help, std::function<void()> act);
    void showActions();

    const Themes& m_themes;
    const HistoryItem m_item;
    RecentActions& m_actions;
    QPixmap m_picture;
    QWidget* m_bar; ///< The actions, over the picture.
};
