// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Folders.h"
#include "base/PrefKeys.h"
#include "base/Result.h"

#include <QFileSystemWatcher>
#include <QJsonObject>
#include <QObject>
#include <QTimer>

/// The user's preferences, kept in preferences.json in the configuration folder: one JSON object
/// from the names of PrefKeys to their values, holding only what was set. A date is ISO 8601 text
/// in UTC. Names that are not ours stay as they are, and so does a value of another type than its
/// key's, which reads as absent, until the key is set.
///
/// A value that is set is seen at once here, by other processes once it is in the file, a moment
/// later; what they set arrives the same way. Processes that set different keys keep one another's.
/// When the file cannot be written, the value still holds until the program ends, and the next
/// set() tries again. A file that is no JSON object is moved to preferences.json.damaged-<date>.
///
/// Lives on the main thread.
class Prefs final : public QObject {
    Q_OBJECT

public:
    static constexpr PrefKeys keys {};

    /// Whether the file is watched for what other processes write. A program that ends at once does
    /// without: to end the watch takes the kernel 11 ms.
    enum class Watch { File, Nothing };

    explicit Prefs(const Folders& folders, Watch watched = Watch::File);
    ~Prefs() override; ///< Writes what is not yet written.

    static Prefs& shared(); ///< The one that install() was called on.
    void install();

    /// Supplies the registered defaults where nothing is set. Once at start, before the first
    /// reader.
    void registerDefaults();

    template <typename T>
    T get(const PrefKey<T>& key) const
    {
        return value(key).template value<T>();
    }
    template <typename T>
    void set(const PrefKey<T>& key, const std::type_identity_t<T>& value)
    {
        store(key, key.toJson(QVariant::fromValue(value)));
    }

    /// For whoever goes through the table by name; invalid where nothing is set and no default
    /// counts.
    QVariant value(const AnyPrefKey& key) const;
    /// Fails if the value has not exactly the type of the key.
    Result<void> setValue(const AnyPrefKey& key, const QVariant& value);
    void unset(const AnyPrefKey& key);

    /// Writes at once what would be written a moment later.
    Result<void> flush();

    QString saveFolder() const; ///< Where captures are saved: never empty.
    QString defaultFolder() const { return m_defaultFolder; }
    QString imageFormat() const; ///< "jpg" or "png".

Q_SIGNALS:
    void changed(const QString& key); ///< Reads differently now, whoever set it.
    void saveFailed(const QString& message); ///< A whole sentence.

private:
    void store(const AnyPrefKey& key, const QJsonValue& value);
    void adopt(const QJsonObject& values);
    void reread();
    void watchAgain();
    QJsonObject withUnsaved(QJsonObject values) const;
    /// Of the file, if damaged the last known after moving it away. Only while holding the lock.
    Result<QJsonObject> recoveredContent() const;

    const QString m_folder;
    const QString m_path;
    const QString m_defaultFolder;
    const Watch m_watched;
    QVariantHash m_registered;
    QJsonObject m_values; ///< Of the file when it was last readable, and over them the unsaved.
    QHash<QString, QJsonValue> m_unsaved; ///< Undefined where a key is to be removed.
    QFileSystemWatcher m_watcher;
    QTimer m_rereadTimer;
    QTimer m_flushTimer;
};
