// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "shortcuts/HotkeyCenter.h"

#include <QPushButton>

/// The button that shows a shortcut and, when clicked, records the next key press as the new one.
/// While it records, no shortcut is registered, so that one that is there can be recorded, and no
/// key reaches anything else of the program.
class ShortcutRecorder final : public QPushButton {
    Q_OBJECT

public:
    struct Means {
        Prefs& prefs;
        HotkeyCenter& hotkeys;
        std::function<void()> registerHotkeys; ///< All of them anew, from the preferences.
    };

    /// @param key of the preference that it edits
    ShortcutRecorder(Means means, const PrefKey<QString>& key, QWidget* parent = nullptr);
    ~ShortcutRecorder() override;

    bool isRecording() const { return m_recording; }
    void stop(); ///< Without a change; nothing happens unless it records.

Q_SIGNALS:
    void recordingStarts(); ///< Before anything is unregistered.

protected:
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    void start();
    void take(const KeyDown& key);
    void adopt();

    const Means m_means;
    const PrefKey<QString>& m_key;
    std::optional<KeyCombo> m_combo;
    bool m_recording = false;
};
