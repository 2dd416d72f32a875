// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/ShotActions.h"
#include "capture/ToastMessage.h"
#include "history/HistoryStore.h"
#include "platform/Clipboard.h"
#include "platform/PlatformWords.h"
#include "platform/Workspace.h"
#include "widgets/Theme.h"

class QMenu;

/// Does with entries what the history offers. Their pictures are read on another thread; what comes
/// of it, where that is not seen by itself, is told in a few words.
class HistoryActions final : public QObject {
    Q_OBJECT

public:
    struct Means {
        const Themes& themes;
        const Prefs& prefs;
        HistoryStore& store;
        Clipboard& clipboard;
        Workspace& workspace;
        const PlatformWords& words;
        ShotActions shots; ///< What is empty is not offered.
        std::function<void(ToastMessage)> tell;
    };

    explicit HistoryActions(Means means);

    bool canEdit() const { return bool(m_means.shots.edit); }

    void edit(const HistoryItem& item);
    void pin(const HistoryItem& item);
    void reveal(const HistoryItem& item);
    /// One as a picture, several as files.
    void copy(const QList<HistoryItem>& items);
    /// Their files, into whatever takes them. Returns when they have been dropped.
    void drag(const QList<HistoryItem>& items, QWidget& from);
    /// More than one only after asking.
    void remove(const QList<HistoryItem>& items, QWidget& asking);

    /// Asks first, and says how many there are.
    void clear(QWidget& asking);
    void openFolder(); ///< Where captures are saved.

    void fill(QMenu& menu, const QList<HistoryItem>& items, QWidget& asking);

private:
    void withShot(const HistoryItem& item, std::function<void(FinishedCapture)> act);
    void tell(const QString& title, const QString& symbol, const QString& message = {}) const;
    void ask(QWidget& asking, const QString& question, const QString& action,
        std::function<void()> confirmed);

    const Means m_means;
};
