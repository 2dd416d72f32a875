// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/CanvasDocument.h"
#include "editor/keeping/KeepingThread.h"

#include <memory>

/// What one editor tells of its work, so that none of it is lost. It is on the disk some
/// milliseconds after each change; what is left there when the program ends without close() is
/// offered at its next start. Takes the main thread no more than the copies of what has changed.
/// Main thread only; ends before its KeptEdits.
class EditJournal final {
public:
    /// @param owner the name of its files: a new one, or that of what was left behind.
    EditJournal(KeepingThread& thread, FinishedCapture capture, QString owner);
    ~EditJournal(); ///< Without close(), what was noted stays.
    Q_DISABLE_COPY_MOVE(EditJournal)

    const QString& owner() const { return m_owner; }

    /// After every undoable change.
    void note(const CanvasDocument& document);

    /// Where the picture belongs from now on; either may be empty.
    void moveTo(const QString& path, const QString& historyId);

    /// The picture left the editor, with all annotations burnt in: whoever opens those pixels again
    /// shall find them alive, as far as the user wants that. Costs nothing for a picture as it
    /// came.
    /// @param file that was written; empty where none was. A JPEG's pixels are others.
    void exported(
        const CanvasDocument& document, const QImage& flattened, const QString& file = {});

    /// The editor closes and all is where it belongs: forgets what was noted.
    void close();

private:
    struct Newest;

    KeptEdit editOf(const CanvasDocument& document) const;

    KeepingThread& m_thread;
    FinishedCapture m_capture; ///< Without its image.
    const QString m_owner;
    const std::shared_ptr<Newest> m_newest;
};
