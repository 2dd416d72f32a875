// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/keeping/EditRecord.h"

/// A folder of kept edits that only its user can read. Each edit is a record, <owner>.<key>.edit,
/// and the picture below its annotations, <owner>.<hash>.png, which records of one owner share. An
/// owner is named by the text of a UUID in upper case, a key by lower case letters and digits.
///
/// Blocks; for one thread at a time. Whoever is killed meanwhile leaves whole files.
class EditFolder final {
public:
    struct Name {
        QString owner, key;

        bool operator==(const Name&) const = default;
    };

    explicit EditFolder(QString path)
        : m_path(std::move(path))
    {
    }

    QList<Name> records() const; ///< In no order.

    /// Replaces the record of that name. The picture is on the disk before the record is.
    Result<void> write(const Name& name, const KeptEdit& edit);

    /// Of a record without its picture.
    Result<EditRecord> readRecord(const Name& name) const;
    /// Fails with a sentence if any of it is missing or damaged.
    Result<KeptEdit> read(const Name& name) const;

    /// What a write that was cut off left behind: only while nobody writes.
    void removeUnfinished() const;

    void rename(const Name& from, const QString& key) const;
    void remove(const Name& name) const;
    void removeOwner(const QString& owner) const; ///< All that is the owner's.
    void removeOwners(const QStringList& owners) const;
    void clear() const; ///< All that is anybody's, and what a killed write left.

    /// Removes the owner's pictures that no record of theirs needs. Where one of the records cannot
    /// be read, none.
    void tidy(const QString& owner) const;

private:
    QString pathOf(const Name& name) const;
    QString picturePath(const QString& owner, const PixelHash& hash) const;
    Result<void> writePicture(const QString& path, const QImage& picture) const;
    PixelHash hashOf(const QImage& picture);

    const QString m_path;
    qint64 m_hashedKey = 0; ///< The cacheKey of the picture that was hashed last.
    PixelHash m_hash;
};
