// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorWindow.h"

/// The editors that are open. One lives from open() until its window closes.
class Editors final : public QObject {
    Q_OBJECT

public:
    explicit Editors(EditorMeans means);
    ~Editors() override;

    /// Shows a picture in an editor, with its annotations alive if it is known. Answers when its
    /// window is there.
    Pending<void> edit(const FinishedCapture& capture);

    /// What the program left behind when it ended last.
    void reopen(const KeptEdit& edit, std::unique_ptr<EditJournal> journal);

    /// Shows a picture in an editor; in the one that has it already, if it came from the same file
    /// or entry of the history.
    EditorWindow& open(const FinishedCapture& capture, ResumedEdit resumed = {});

    const QList<EditorWindow*>& windows() const { return m_windows; } ///< The oldest first.

    /// For a program that is about to be ended by others: all are closed, by the closing rule
    /// or, where that fails, with their edit in a new file.
    void closeNow();

Q_SIGNALS:
    void filesDropped(
        const QStringList& paths); ///< On an editor, to be opened in one of their own.

private:
    EditorWindow* showing(const FinishedCapture& capture) const;

    const EditorMeans m_means;
    QList<EditorWindow*> m_windows;
};
