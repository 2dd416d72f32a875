// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/CanvasModel.h"

#include "base/ArrowKeys.h"
#include "editor/Colors.h"
#include "editor/Geometry.h"
#include "editor/TextStyles.h"
#include "editor/Tools.h"

#include <array>

namespace {

// Points on the screen.
constexpr double hitTolerance = 6, handleReach = 9;

// Pixels of the picture.
constexpr double leastCrop = 4;
constexpr int nudge = 1, farNudge = 10;

using Making = AnnotationKind::Making;

bool isTyped(const Annotation& it)
{
    return infoOf(it.kind).kind->making() == Making::Typing;
}

} // namespace

CanvasModel::CanvasModel(const QImage& image, unsigned seed)
    : m_document(image)
    , m_random(seed)
{
    m_settings.color = Colors::red;
}

CanvasDocument& CanvasModel::document()
{
    settle();
    return m_document;
}

void CanvasModel::setTool(Tool tool)
{
    settle();
    m_tool = tool;
    if (tool != Tool::Select)
        m_document.select({});
}

void CanvasModel::setColor(const QColor& color)
{
    m_settings.color = color;
    document().editSelected([&](Annotation& it) { it.color = color; });
}

void CanvasModel::setStrokeWidth(double pixels)
{
    m_settings.strokeWidth = pixels;
    document().editSelected([&](Annotation& it) { it.width = pixels; });
}

void CanvasModel::setSticker(const QString& emoji)
{
    m_settings.stickerEmoji = emoji;
    document().editSelected([&](Annotation& it) {
        if (it.kind == Tool::Sticker)
            it.emoji = emoji;
    });
}

void CanvasModel::setTextStyle(const QString& name)
{
    m_settings.textStyle = name;
    document().editSelected([&](Annotation& it) {
        if (it.kind == Tool::Text)
            it.style = name;
    });
}

void CanvasModel::addTextSticker(const QString& phrase)
{
    static constexpr std::array colors {Colors::red, Colors::orange, Colors::yellow, Colors::green,
        Colors::teal, Colors::blue, Colors::purple, Colors::pink};
    constexpr double larger = 1.6; // Than a caption, as it stands for itself.
    const auto styles = TextStyles::all();
    Annotation it(
        Tool::Text, colors[std::size_t(lot() * double(colors.size()))], m_settings.strokeWidth);
    it.style = styles[std::size_t(lot() * double(styles.size()))].name;
    it.text = phrase;
    it.fontSize = m_settings.fontSize * larger;
    it.centered = true;
    it.a = QRectF(m_document.base().rect()).center();
    it.a.ry() -= it.bounds().center().y() - it.a.y();
    settle();
    commit(it);
}

void CanvasModel::press(QPointF at, double magnification, Click click)
{
    settle();
    m_pressed = true;
    m_dragStart = m_lastPoint = at;
    const double tolerance = hitTolerance / magnification;
    const auto move = [this] {
        m_preDrag = m_document.snapshot();
        m_moving = true;
    };
    if (const Annotation* const selected = m_document.selected()) {
        const bool hit = selected->hit(at, tolerance);
        if (click == Click::Double && isTyped(*selected) && hit)
            return prompt(*selected, false);
        if (takeHandle(at, handleReach / magnification))
            return;
        if (hit)
            return move();
    }
    if (m_tool == Tool::Select) {
        m_document.selectTopmost(at, tolerance);
        if (m_document.selected())
            move();
        return;
    }
    m_document.select({});
    if (m_tool == Tool::Crop)
        m_cropRect = QRectF(at, QSizeF());
    else
        make(at);
}

bool CanvasModel::takeHandle(QPointF at, double within)
{
    const auto handles = m_document.selected()->handles();
    for (qsizetype index = 0; index < handles.size(); ++index)
        if (length(handles[index] - at) <= within) {
            m_preDrag = m_document.snapshot();
            m_handle = index;
            return true;
        }
    return false;
}

void CanvasModel::make(QPointF at)
{
    const AnnotationKind& kind = *infoOf(m_tool).kind;
    Annotation it(m_tool, m_settings.color, m_settings.strokeWidth);
    it.a = it.b = at;
    kind.begin(it, m_settings, count(m_tool) + 1, lot());
    switch (kind.making()) {
    case Making::Drag:
        m_document.damage(it.ink());
        m_current = std::move(it);
        break;
    case Making::Press:
        commit(it);
        break;
    case Making::Typing:
        prompt(std::move(it), true);
        break;
    }
}

void CanvasModel::drag(QPointF at, Qt::KeyboardModifiers modifiers)
{
    if (!m_pressed)
        return;
    const QPointF by = at - m_lastPoint;
    m_lastPoint = at;
    if (m_handle) {
        m_document.adjustSelected([&](Annotation& it) { it.setHandle(*m_handle, at); });
    } else if (m_moving) {
        m_document.adjustSelected([&](Annotation& it) { it.move(by.x(), by.y()); });
    } else if (m_cropRect) {
        m_cropRect = spanned(m_dragStart, at);
    } else if (m_current) {
        const bool regular = modifiers & Qt::ShiftModifier;
        m_document.damage(infoOf(m_current->kind).kind->dragTo(*m_current, at, regular));
    }
}

void CanvasModel::release(QPointF at)
{
    if (!m_pressed)
        return;
    if (m_cropRect && m_cropRect->width() > leastCrop && m_cropRect->height() > leastCrop)
        m_document.crop(*m_cropRect);
    if (m_current) {
        m_document.damage(m_current->ink());
        if (infoOf(m_current->kind).kind->finish(*m_current))
            commit(*m_current);
    }
    if (m_preDrag && at == m_dragStart) // A handle may have jumped to the pointer.
        m_document.restoreSelected(*m_preDrag);
    else if (m_preDrag && m_document.isSelectedChangedSince(*m_preDrag))
        m_document.pushUndo(*std::move(m_preDrag));
    idle();
}

void CanvasModel::outlineCrop(const QRectF& rect)
{
    if (!m_cropRect)
        press(rect.topLeft(), 1);
    m_dragStart = rect.topLeft();
    drag(rect.bottomRight());
}

CanvasModel::KeyAnswer CanvasModel::key(
    int key, Qt::KeyboardModifiers modifiers, const QString& typed)
{
    if (m_prompt)
        return KeyAnswer::Ignored; // It is for whoever asks for the text.
    if (key == Qt::Key_Escape)
        return escape();
    if (m_pressed)
        return KeyAnswer::Taken; // One thing at a time.
    const bool selected = m_document.selected();
    if (selected && (key == Qt::Key_Backspace || key == Qt::Key_Delete)) {
        m_document.deleteSelected();
        return KeyAnswer::Taken;
    }
    if (const QPointF way = directionOf(key); selected && !way.isNull()) {
        const QPointF by = way * (modifiers & Qt::ShiftModifier ? farNudge : nudge);
        m_document.editSelected([by](Annotation& it) { it.move(by.x(), by.y()); });
        return KeyAnswer::Taken;
    }
    const bool command = modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (const auto chosen = toolForKey(typed); chosen && !command) {
        setTool(*chosen);
        return KeyAnswer::Taken;
    }
    return KeyAnswer::Ignored;
}

CanvasModel::KeyAnswer CanvasModel::escape()
{
    const bool something = m_pressed || m_document.selected();
    abandon();
    m_document.select({});
    return something ? KeyAnswer::Taken : KeyAnswer::Close;
}

void CanvasModel::prompt(Annotation annotation, bool isNew)
{
    m_document.damage(annotation.ink());
    m_prompt = TextPrompt {std::move(annotation), isNew};
    idle();
}

void CanvasModel::answerPrompt(const std::optional<QString>& text)
{
    if (!m_prompt)
        return;
    TextPrompt asked = *std::exchange(m_prompt, {});
    m_document.damage(asked.annotation.ink());
    if (!text || (asked.isNew && text->isEmpty()))
        return;
    if (asked.isNew) {
        asked.annotation.text = *text;
        commit(asked.annotation);
    } else if (text->isEmpty()) {
        m_document.deleteSelected();
    } else {
        m_document.editSelected([&](Annotation& it) { it.text = *text; });
    }
}

std::vector<const Annotation*> CanvasModel::visible() const
{
    std::vector<const Annotation*> all;
    for (const Mark& mark : m_document.annotations())
        if (!m_prompt || m_prompt->isNew || &*mark != m_document.selected())
            all.push_back(&*mark);
    if (m_current)
        all.push_back(&*m_current);
    return all;
}

void CanvasModel::commit(const Annotation& annotation)
{
    m_document.commit(annotation);
    if (annotation.kind == Tool::Sticker && m_onSticker)
        m_onSticker();
}

/// Ends what the mouse or the keyboard was doing, so that something else can be done.
void CanvasModel::settle()
{
    release(m_lastPoint);
    answerPrompt({});
}

/// The same, as if the mouse had not been pressed.
void CanvasModel::abandon()
{
    if (m_current)
        m_document.damage(m_current->ink());
    if (m_preDrag)
        m_document.restoreSelected(*m_preDrag);
    idle();
}

void CanvasModel::idle()
{
    m_pressed = m_moving = false;
    m_current.reset();
    m_cropRect.reset();
    m_handle.reset();
    m_preDrag.reset();
}

int CanvasModel::count(Tool kind) const
{
    return int(std::ranges::count_if(
        m_document.annotations(), [kind](const Mark& mark) { return mark->kind == kind; }));
}
