// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/CanvasDecorations.h"
#include "editor/CanvasModel.h"
#include "editor/CanvasPicture.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <QTimer>

class TextField;

/// The view in which a screenshot is marked up. Shows a CanvasModel, enlarged or reduced, and hands
/// mouse and keys on to it. The wheel scrolls, with Ctrl it magnifies, as pinching does; space or
/// the middle button drag the picture along. The colours are those of the palette: Highlight for
/// what is selected, Base around the picture, Mid and Shadow for its line and shadow there.
class EditorCanvas final : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit EditorCanvas(const QImage& image, QWidget* parent = nullptr);
    ~EditorCanvas() override;

    const CanvasModel& model() const { return m_model; }

    /// Changes the model after ending what was being typed or dragged, and shows what came of it.
    template <typename Change>
    void edit(Change change)
    {
        finishTyping();
        change(m_model);
        refresh();
    }

    QImage flattened(); ///< What is being typed counts as typed.

    const CenteringClipView& view() const { return m_view; }
    bool isStill() const { return !m_still.isActive(); } ///< All is drawn as sharp as can be.
    void magnify(double magnification); ///< About the middle.
    void magnify(double magnification, QPointF keeping); ///< A point of the viewport.

Q_SIGNALS:
    void changed(); ///< After every undoable change.
    void stickerPlaced();
    void toolChanged(Tool tool); ///< By a key or edit().
    void magnified();
    void closeRequested();

protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void paintFrame(QPainter& painter, QRect picture, const QRegion& wanted) const;
    void press(QMouseEvent* event, CanvasModel::Click click);
    void refresh();
    void showTyping();
    void finishTyping();
    void answer(const std::optional<QString>& text);
    void placeView();
    void viewMoved();
    void updateCursor();
    void pan(QPoint to);

    CanvasModel m_model;
    CanvasPicture m_picture;
    CenteringClipView m_view;
    CanvasDecorations m_decorations;
    QRegion m_damage; ///< Not yet drawn; pixels of the picture.
    QTimer m_still; ///< Runs while the view moves, when painting has to be fast.
    std::optional<std::size_t> m_toldSelected; ///< To those who hear what others see.
    Tool m_shownTool;
    QPointer<TextField> m_field;
    bool m_spaceHeld = false;
    bool m_placing = false; ///< The scroll bars follow the view, not the other way round.
    std::optional<QPoint> m_panFrom;
};
