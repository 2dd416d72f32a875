// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QJsonValue>
#include <QVariant>

#include <array>
#include <span>
#include <type_traits>
#include <variant>

/// One row of the table of preferences, whatever its type: bool, int, double, QString or QDateTime.
struct AnyPrefKey {
    /// When the default counts. Where none does, an absent value reads as false, 0 or empty.
    enum class Counts { OnceRegistered, WhenAbsent, OnceRegisteredAndWhenAbsent };

    const char* name;
    QMetaType type;
    std::variant<std::monostate, bool, int, double, const char*> standard;
    Counts counts;

    bool isRegistered() const { return counts != Counts::WhenAbsent; }
    QVariant defaultValue() const; ///< For a date without one, the distant past.
    QVariant fromJson(const QJsonValue& value) const; ///< Invalid where the type is another.
    QJsonValue toJson(const QVariant& value) const; ///< A date as ISO 8601 text in UTC.
};

/// The rows in their order, gathered at compile time while they are made.
class PrefTable {
public:
    constexpr std::span<const AnyPrefKey* const> all() const { return {m_rows.data(), m_count}; }
    const AnyPrefKey* find(QStringView name) const; ///< Null where there is no such preference.

private:
    template <typename T>
    friend struct PrefKey;

    std::array<const AnyPrefKey*, 48> m_rows {}; // One too many does not compile.
    std::size_t m_count = 0;
};

/// A preference that is read and written as a T.
template <typename T>
struct PrefKey final : AnyPrefKey {
    using Standard = std::conditional_t<std::is_same_v<T, QString>, const char*,
        std::conditional_t<std::is_same_v<T, QDateTime>, std::monostate, T>>;

    constexpr PrefKey(PrefTable& table, const char* key, Standard value,
        Counts valueCounts = Counts::OnceRegistered)
        : AnyPrefKey {key, QMetaType::fromType<T>(), value, valueCounts}
    {
        table.m_rows[table.m_count++] = this;
    }
};

/// Every preference there is, one line each: what it is called in the file, and its default.
struct PrefKeys final : PrefTable {
    using enum AnyPrefKey::Counts;

    PrefKey<QString> hkRegion {*this, "hk.region", "18:4608:1"}; ///< Key code, modifiers, label.
    PrefKey<QString> hkWindow {*this, "hk.window", "19:4608:2"};
    PrefKey<QString> hkScreen {*this, "hk.screen", "20:4608:3"};
    PrefKey<QString> hkDelayed {*this, "hk.delayed", "21:4608:4"};
    PrefKey<QString> hkText {*this, "hk.text", "23:4608:5"};
    PrefKey<int> delaySeconds {*this, "delaySeconds", 3};
    PrefKey<bool> includeCursor {*this, "includeCursor", false};
    PrefKey<bool> showMagnifier {*this, "showMagnifier", true};
    PrefKey<bool> showCrosshair {*this, "showCrosshair", true};
    PrefKey<bool> windowShadow {*this, "windowShadow", true};
    PrefKey<bool> copyToClipboard {*this, "copyToClipboard", true};
    PrefKey<bool> autoSave {*this, "autoSave", true};
    PrefKey<QString> saveFolder {*this, "saveFolder", ""}; ///< Registered as the default folder.
    PrefKey<QString> imageFormat {*this, "imageFormat", "png"};
    PrefKey<QString> afterCapture {*this, "afterCapture", "preview"};
    PrefKey<int> previewSeconds {*this, "previewSeconds", 6};
    PrefKey<QString> previewEffect {*this, "previewEffect", "comet"};
    PrefKey<QString> effectColors {*this, "effectColors", "accent"};
    PrefKey<bool> playSound {*this, "playSound", true};
    PrefKey<QString> sound {*this, "sound", "Screen Capture"};
    PrefKey<double> soundVolume {*this, "soundVolume", 0.8}; ///< 0 to 1.
    PrefKey<bool> historyEnabled {*this, "historyEnabled", true};
    PrefKey<int> historyMax {*this, "historyMax", 200};
    PrefKey<QString> skin {*this, "skin", "default"};
    PrefKey<QString> captureAnimation {
        *this, "captureAnimation", "flash", OnceRegisteredAndWhenAbsent};
    PrefKey<bool> trayPet {*this, "trayPet", true};
    PrefKey<bool> petReactions {*this, "petReactions", true};
    PrefKey<bool> achievementToasts {*this, "achievementToasts", true, OnceRegisteredAndWhenAbsent};
    PrefKey<bool> autoUpdate {*this, "autoUpdate", true, WhenAbsent};
    PrefKey<QDateTime> lastUpdateCheck {*this, "lastUpdateCheck", {}, WhenAbsent};
    PrefKey<QString> skipVersion {*this, "skipVersion", "", WhenAbsent};
    // The order above is settled; whatever comes later stands below this line.
    /// Whether shortcuts also work while an open menu has the keyboard.
    PrefKey<bool> captureOpenMenus {*this, "captureOpenMenus", false, WhenAbsent};
    /// Whether the user has been shown how to begin.
    PrefKey<bool> welcomed {*this, "welcomed", false, WhenAbsent};
    /// Whether annotations come back to life when their picture is opened again. What is under them
    /// stays readable in the data folder then, even where they cover it.
    PrefKey<bool> keepEditsEditable {*this, "keepEditsEditable", true, WhenAbsent};
    /// Whether the text of captures is recognised in idle time, for the history to search it.
    PrefKey<bool> findByText {*this, "findByText", true, WhenAbsent};

    /// The shortcut of a capture kind, given as its text such as "region"; null for any other text.
    const PrefKey<QString>* hotkey(QStringView kind) const;
};
