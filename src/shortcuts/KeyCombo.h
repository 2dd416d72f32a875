// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyCodes.h"

#include <QString>

class QKeyEvent;

/// One press of a key, as far as a shortcut can be made of it.
struct KeyDown {
    /// What a toolkit event tells.
    static KeyDown of(const QKeyEvent& event);

    std::uint32_t position = 0; ///< A KeyPosition; 0 when unknown.
    Qt::KeyboardModifiers modifiers;
    QString characters; ///< Of the key without modifiers; may be empty.

    std::optional<std::uint32_t> keyCode() const { return keyCodeAt(position); }
};

/// A shortcut: a key, the modifiers held with it, and what the key is called.
struct KeyCombo {
    /// From the text that preferences hold. None for an empty or malformed one.
    static std::optional<KeyCombo> fromText(QStringView text);

    /// None for a plain key: only F1 to F19 are shortcuts without modifiers.
    static std::optional<KeyCombo> fromKeyDown(const KeyDown& event);

    std::uint32_t keyCode = 0; ///< A virtual key code.
    std::uint32_t modifiers = 0; ///< Of KeyChord::Modifier.
    QString key;

    KeyChord chord() const { return {keyCode, modifiers}; }

    QString text() const; ///< "18:4608:1", as preferences hold it.
    QString display() const; ///< "⌃⇧1"
    QString spelled() const; ///< "Ctrl+Shift+1", for tooltips and for those who listen.

    friend bool operator==(const KeyCombo&, const KeyCombo&) = default;
};
