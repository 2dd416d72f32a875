// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AnnotationKind.h"
#include "editor/CanvasDocument.h"

#include <random>

/// A screenshot, the tool in hand, and what mouse and keys do with them. Has no window: events come
/// in with positions in pixels of the picture, y down; what to show is asked for afterwards.
class CanvasModel final {
public:
    /// A text that the user has to type before its annotation exists or changes.
    struct TextPrompt {
        Annotation annotation; ///< As it will be, but for the text.
        bool isNew;
    };
    enum class Click { Single, Double };
    enum class KeyAnswer { Ignored, Taken, Close }; ///< Close: the editor is to be closed.

    /// @param seed of what is left to chance, as the angles of stickers.
    explicit CanvasModel(const QImage& image, unsigned seed = std::random_device()());

    const CanvasDocument& document() const { return m_document; }
    CanvasDocument& document(); ///< To be changed: ends what the mouse was doing.
    QRegion takeDamage() { return m_document.takeDamage(); } ///< What to draw anew, in pixels.

    Tool tool() const { return m_tool; }
    void setTool(Tool tool);

    const ToolSettings& settings() const { return m_settings; }
    // For new annotations, and for the selected one if it has such a thing, undoably.
    void setColor(const QColor& color);
    void setStrokeWidth(double pixels);
    void setSticker(const QString& emoji);
    void setTextStyle(const QString& name);
    void setFontSize(double pixels) { m_settings.fontSize = pixels; } ///< For new ones only.

    void addTextSticker(const QString& phrase); ///< In a style and colour left to chance.

    /// @param magnification points on the screen per pixel of the picture.
    void press(QPointF at, double magnification, Click click = Click::Single);
    void drag(QPointF at, Qt::KeyboardModifiers modifiers = {});
    void release(QPointF at);
    void outlineCrop(const QRectF& rect); ///< As if the mouse had been dragged along it so far.
    bool isPressed() const { return m_pressed; } ///< The mouse is making or changing something.
    KeyAnswer key(int key, Qt::KeyboardModifiers modifiers, const QString& typed = {});

    const std::optional<TextPrompt>& textPrompt() const { return m_prompt; }
    void answerPrompt(const std::optional<QString>& text); ///< None: cancelled.

    std::vector<const Annotation*> visible() const; ///< What to draw, topmost last.
    const std::optional<Annotation>& current() const { return m_current; } ///< Being drawn.
    const std::optional<QRectF>& cropRect() const { return m_cropRect; }

    /// Called for each sticker that is placed.
    void setOnSticker(std::function<void()> onSticker) { m_onSticker = std::move(onSticker); }

private:
    void make(QPointF at);
    bool takeHandle(QPointF at, double within);
    void commit(const Annotation& annotation);
    void prompt(Annotation annotation, bool isNew);
    void settle();
    void abandon();
    void idle();
    KeyAnswer escape();
    int count(Tool kind) const;
    double lot() { return std::uniform_real_distribution<>()(m_random); }

    CanvasDocument m_document;
    Tool m_tool = Tool::Arrow;
    ToolSettings m_settings;
    std::mt19937 m_random;
    std::optional<TextPrompt> m_prompt;

    // What the mouse is doing; all of it empty between a release and the next press.
    bool m_pressed = false;
    QPointF m_dragStart, m_lastPoint;
    std::optional<Annotation> m_current;
    std::optional<QRectF> m_cropRect;
    std::optional<qsizetype> m_handle; ///< Of the selected annotation.
    bool m_moving = false; ///< The selected annotation.
    std::optional<CanvasDocument::Snapshot> m_preDrag; ///< Before it was moved or pulled.

    std::function<void()> m_onSticker;
};
