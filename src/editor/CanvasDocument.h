// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/Mark.h"

#include <QRegion>

#include <functional>
#include <vector>

/// A screenshot being marked up: its pixels, its annotations, which of them is selected, and what
/// undo and redo lead to. Knows neither tools nor mouse. Positions are pixels of the picture.
class CanvasDocument final {
public:
    /// Images are shared, and so are copies of annotations that did not change in between.
    struct Snapshot {
        QImage image;
        std::vector<Mark::Copy> annotations;
    };
    using Change = std::function<void(Annotation& it)>;

    explicit CanvasDocument(const QImage& image);

    const QImage& base() const { return m_base; } ///< 32 bits a pixel.
    const std::vector<Mark>& annotations() const { return m_annotations; } ///< Topmost last.
    /// Takes annotations that were made before. No undo step.
    enum class Adopted { Saved, Unsaved }; ///< Unsaved ones make the document dirty.
    void adopt(const std::vector<Mark::Copy>& annotations, Adopted adopted);

    bool isDirty() const { return m_dirty; } ///< Whether anything was changed since setClean().
    void setClean() { m_dirty = false; }

    const Annotation* selected() const; ///< Null if none is.
    std::optional<std::size_t> selectedIndex() const { return m_selected; }
    void select(std::optional<std::size_t> index) { m_selected = index; }
    void selectTopmost(QPointF at, double tolerance); ///< None if there is none.

    Snapshot snapshot() const;
    void pushUndo() { pushUndo(snapshot()); }
    void pushUndo(Snapshot before); ///< What an undo leads back to. Redo becomes empty.
    bool canUndo() const { return !m_undoStack.empty(); }
    bool canRedo() const { return !m_redoStack.empty(); }
    std::size_t undoSteps() const { return m_undoStack.size(); }
    void undo() { step(m_undoStack, m_redoStack); } ///< Does nothing if there is nothing to undo.
    void redo() { step(m_redoStack, m_undoStack); }

    // Each of these is one undo step.
    void commit(const Annotation& annotation); ///< Selects it.
    void add(const std::vector<Annotation>& annotations);
    void deleteSelected();
    void editSelected(const Change& change); ///< None if nothing is selected or changes.

    /// No undo step; for one that goes on, as while the mouse drags.
    void adjustSelected(const Change& change);
    bool isSelectedChangedSince(const Snapshot& before) const;
    void restoreSelected(const Snapshot& before); ///< Takes back what was adjusted since.

    QImage flattened() const; ///< The picture with all annotations burnt in.

    /// Burns the annotations in and keeps a part, made of whole pixels. An undo step too, unless
    /// nothing of the picture would be left.
    void crop(const QRectF& rect);

    void setOnChange(std::function<void()> onChange) { m_onChange = std::move(onChange); }

    void damage(const QRectF& area); ///< What is shown there is not up to date any more.
    QRegion takeDamage() { return std::exchange(m_damage, {}); }

private:
    using Stack = std::vector<Snapshot>;

    void step(Stack& from, Stack& to);
    void restore(const Snapshot& snapshot);
    void setAnnotations(const std::vector<Mark::Copy>& copies);
    void append(const Annotation& annotation);
    void setBase(const QImage& image);
    void changed();

    QImage m_base;
    std::vector<Mark> m_annotations;
    std::optional<std::size_t> m_selected;
    Stack m_undoStack, m_redoStack;
    bool m_dirty = false;
    QRegion m_damage;
    std::function<void()> m_onChange;
};
