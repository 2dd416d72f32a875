// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "shortcuts/ShortcutRecorder.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

namespace {

// Virtual key codes.
constexpr std::uint32_t escape = 53;
constexpr std::uint32_t backspace = 51;
constexpr std::uint32_t forwardDelete = 117;

bool clears(std::uint32_t code)
{
    return code == backspace || code == forwardDelete;
}

constexpr int leastWidth = 132; // Points; so that a column of them has one edge.

bool isModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

} // namespace

ShortcutRecorder::ShortcutRecorder(Means means, const PrefKey<QString>& key, QWidget* parent)
    : QPushButton(parent)
    , m_means(std::move(means))
    , m_key(key)
{
    setAutoDefault(false);
    setMinimumWidth(leastWidth);
    connect(this, &QPushButton::clicked, this, [this] { m_recording ? stop() : start(); });
    connect(&m_means.prefs, &Prefs::changed, this, [this](const QString& changed) {
        if (changed == QLatin1String(m_key.name))
            adopt();
    });
    adopt();
}

ShortcutRecorder::~ShortcutRecorder()
{
    stop();
}

void ShortcutRecorder::start()
{
    Q_EMIT recordingStarts();
    m_recording = true;
    m_means.hotkeys.unregisterAll();
    qApp->installEventFilter(this);
    adopt();
}

void ShortcutRecorder::stop()
{
    if (!std::exchange(m_recording, false))
        return;
    qApp->removeEventFilter(this);
    adopt();
    m_means.registerHotkeys();
}

void ShortcutRecorder::adopt()
{
    m_combo = KeyCombo::fromText(m_means.prefs.get(m_key));
    setText(m_recording ? tr("Type shortcut…") : m_combo ? m_combo->display() : tr("None"));
    setToolTip(
        m_combo ? m_combo->spelled() : QString()); // In words for who does not know the signs.
    update();
}

void ShortcutRecorder::hideEvent(QHideEvent* event)
{
    stop();
    QPushButton::hideEvent(event);
}

bool ShortcutRecorder::eventFilter(QObject*, QEvent* event)
{
    // Keys come to the window first, so the first one who is asked has them all. An override that
    // is accepted keeps the window's own shortcuts from being triggered.
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        event->accept();
        if (event->type() == QEvent::KeyPress && !isModifier(key.key()) && !key.isAutoRepeat())
            take(KeyDown::of(key));
        return true;
    }
    return false;
}

void ShortcutRecorder::take(const KeyDown& key)
{
    const auto code = key.keyCode();
    if (code == escape) {
        stop();
    } else if (code && clears(*code)) {
        m_means.prefs.set(m_key, u""_s); // Not removed, or the default would be back.
        stop();
    } else if (const auto combo = KeyCombo::fromKeyDown(key)) {
        m_means.prefs.set(m_key, combo->text());
        stop();
    }
}

void ShortcutRecorder::initStyleOption(QStyleOptionButton* option) const
{
    QPushButton::initStyleOption(option);
    if (m_recording)
        option->features |= QStyleOptionButton::DefaultButton; // On the accent.
}
