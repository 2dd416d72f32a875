// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/TextField.h"

#include "editor/Annotation.h"
#include "editor/CenteringClipView.h"
#include "editor/Colors.h"
#include "editor/TextStyles.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr int margin = 4; // Points around the text.

/// The colour that the text is typed in, and one that it can be read on.
QPalette paletteFor(QPalette palette, const QColor& color)
{
    const QColor text = Colors::withAlpha(color, 1);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Base, Colors::withAlpha(Colors::contrasting(text), 0.85));
    return palette;
}

} // namespace

TextField::TextField(QWidget* canvas, const Annotation& annotation)
    : QTextEdit(canvas)
    , m_anchor(annotation.a)
    , m_centered(annotation.centered)
    , m_fontSize(annotation.fontSize)
{
    setFrameShape(QFrame::NoFrame);
    setAcceptRichText(false);
    setLineWrapMode(NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setPalette(paletteFor(palette(), annotation.color));
    document()->setDocumentMargin(margin);
    setFont(TextStyles::find(annotation.style).font());
    QTextOption option = document()->defaultTextOption();
    option.setAlignment(m_centered ? Qt::AlignHCenter : Qt::AlignLeading);
    document()->setDefaultTextOption(option);
    setPlainText(annotation.text);
    selectAll();
    connect(this, &QTextEdit::textChanged, this, &TextField::fit);
}

void TextField::place(const CenteringClipView& view)
{
    m_origin = view.toView(m_anchor).toPoint();
    QFont scaled = font();
    scaled.setPixelSize(std::max(1, qRound(m_fontSize * view.magnification())));
    setFont(scaled);
    fit();
}

void TextField::fit()
{
    const double room
        = QFontMetricsF(font()).averageCharWidth(); // For the cursor and the next one.
    const int width = int(std::ceil(document()->idealWidth() + room));
    const int height = int(std::ceil(document()->size().height()));
    const int left = m_origin.x() - (m_centered ? width / 2 : margin);
    setGeometry(left, m_origin.y() - margin, width, height);
}

void TextField::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        Q_EMIT cancelled();
    else if (isReturn && !(event->modifiers() & Qt::ShiftModifier))
        Q_EMIT done();
    else
        QTextEdit::keyPressEvent(event);
    event->accept(); // None of them is for the canvas.
}

void TextField::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // It is for the canvas.
}
