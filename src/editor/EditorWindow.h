// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditKeeper.h"
#include "editor/EditorCommands.h"

class EditorCanvas;
class EditorFun;
class EditorNotice;
class EditorToolbar;
class TextLabel;

/// What an editor goes on with from an earlier time.
struct ResumedEdit {
    std::vector<Mark::Copy> annotations {};
    CanvasDocument::Adopted adopted = CanvasDocument::Adopted::Saved;
    std::unique_ptr<EditJournal> journal {}; ///< None: a new one.
};

/// Shows one picture in a canvas, with tools and what can be done with the result. Closing keeps
/// what was edited, as ClosingRules say, and nobody is asked; where that fails, the window stays
/// and says why.
class EditorWindow final : public QWidget {
    Q_OBJECT

public:
    EditorWindow(
        const EditorMeans& means, const FinishedCapture& capture, ResumedEdit resumed = {});
    ~EditorWindow() override;

    /// Shows it in the middle of the screen under the pointer.
    void open();

    /// What would be lost if it ended now; false again once everything was undone.
    bool isEdited() const;

    /// Writes what was edited to where it belongs. Does nothing where nothing was.
    Result<void> keepEdit();

    /// The same for a program that must end now: what cannot be written to its place goes to a new
    /// file in the save folder.
    Result<void> rescueEdit();
    void discardEdit(); ///< And closes.

    const QString& path() const { return m_path; } ///< Of the picture's file; may be empty.
    const QString& historyId() const { return m_historyId; } ///< May be empty.

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    void connectCommands();
    void connectCanvas();
    void connectToolbar();
    void adoptTheme();

    void refresh();
    void showStatus(const QString& status);
    void setStatus(const QString& status); ///< Until the next refresh().
    void showMagnification();
    template <typename Change>
    void choose(Change change);

    void fit();
    void zoom(double factor);
    void pin();
    void copy();
    void saveAs();
    void share();
    void showStickers();

    Shot flattened();
    Shot exported();
    bool hasEdits() const;
    ClosingRules::Situation situation() const;
    Result<void> carryOut(const ClosingRules::Plan& plan, const Shot& shot);

    const EditorMeans m_means;
    const double m_scale; ///< Pixels per point.
    const QString m_app;
    QString m_path;
    QString m_historyId;
    const std::unique_ptr<EditJournal> m_journal;
    const bool m_isReopened; ///< With edits that are nowhere yet.
    EditorCommands m_commands;
    EditorCanvas* m_canvas;
    EditorFun* m_fun;
    EditorToolbar* m_toolbar;
    EditorNotice* m_notice;
    TextLabel* m_subtitle;
    TextLabel* m_magnification;
    bool m_isCopied = false; ///< Since the last edit.
    bool m_isFailed = false; ///< The edit could not be written.
    bool m_isSavedElsewhere = false; ///< Since then, and since the last edit.
    bool m_isFitted = true; ///< Until the user zooms.
};
