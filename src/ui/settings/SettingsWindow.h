// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/settings/SettingsMeans.h"

#include <QStackedWidget>
#include <QWidget>

class Sidebar;

/// The window that everything is set in. A page is made when it is first shown.
class SettingsWindow final : public QWidget {
    Q_OBJECT

public:
    /// In the order of the list.
    enum class Page { General, Capture, Preview, Sound, Shortcuts, Fun, Updates, Diagnosis, About };

    explicit SettingsWindow(SettingsMeans means);

    /// Brings it to the front, with the page that it was left with.
    void present();
    void show(Page page);
    using QWidget::show;

    static QStringList pageNames(); ///< In English, in the order of Page.

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showPage(int index);

    const SettingsMeans m_means;
    Sidebar* m_sidebar;
    QStackedWidget* m_pages;
    QList<QWidget*> m_made; ///< Null where not made yet.
};
