// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "update/UpdateView.h"
#include "update/Updater.h"

/// The window that tells of a new version. There is one at a time; closed, it is gone, and what it
/// was downloading with it. Lives on the main thread.
class UpdatePanel final : public QObject {
    Q_OBJECT

public:
    UpdatePanel(const Themes& themes, Updater& updater);
    ~UpdatePanel() override;

    void show(const UpdateInfo& info);

private:
    void install(const UpdateInfo& info);
    void close();

    const Themes& m_themes;
    Updater& m_updater;
    std::unique_ptr<UpdateView, QScopedPointerDeleteLater> m_view;
    bool m_installing = false;
};
