// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "update/UpdateInfo.h"
#include "widgets/GlassButton.h"
#include "widgets/TextLabel.h"

class QProgressBar;

/// Tells of a new version and what is new in it, and how far its download is. What is chosen here
/// is done by others.
class UpdateView final : public QWidget {
    Q_OBJECT

public:
    UpdateView(const Themes& themes, const UpdateInfo& info, const QString& currentVersion,
        QWidget* parent = nullptr);

    /// While a download runs there is nothing to choose but to cancel it.
    void setInstalling(bool installing);
    void setStage(const QString& stage); ///< A line of text below the notes.
    void setReceived(qint64 bytes, qint64 total); ///< The total is -1 while it is not known.

Q_SIGNALS:
    void skipWanted();
    void laterWanted(); ///< Or to cancel, while installing.
    void installWanted();
    void closed(); ///< By the window manager.

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* header(const UpdateInfo& info, const QString& currentVersion);
    QWidget* notes(const QStringList& lines);

    const Themes& m_themes;
    TextLabel* m_stage;
    QProgressBar* m_progress;
    GlassButton* m_skip;
    GlassButton* m_later;
    GlassButton* m_install;
};
