// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/Files.h"
#include "history/HistoryStore.h"
#include "tests/Soak.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QTemporaryDir>

/// Folders of a user who has taken no capture yet, and a store in them that can be started anew.
class HistoryPlace {
public:
    HistoryPlace()
        : HistoryPlace(std::make_unique<QTemporaryDir>())
    {
    }
    /// In a folder that is there; it stays.
    explicit HistoryPlace(const QString& root)
        : HistoryPlace(nullptr, root)
    {
    }

    QString root() const { return m_root; }
    QString pictures() const { return root() + QStringLiteral("/pictures"); }
    QString folder() const { return root() + QStringLiteral("/data/Pixmallow/History"); }
    QString thumbnails() const { return root() + QStringLiteral("/cache/Pixmallow/Thumbnails"); }
    QString indexPath() const { return folder() + QStringLiteral("/index.json"); }
    Folders folders() const
    {
        return {.configuration = root() + QStringLiteral("/config"),
            .data = root() + QStringLiteral("/data/Pixmallow"),
            .cache = root() + QStringLiteral("/cache/Pixmallow"),
            .pictures = pictures()};
    }

    Prefs& prefs() { return m_prefs; }
    HistoryStore& store()
    {
        if (!m_store)
            m_store = std::make_unique<HistoryStore>(folders(), m_prefs, [this] { return now; });
        return *m_store;
    }
    void stop() { m_store.reset(); }

    QString copyPath(const QString& id) const
    {
        return folder() + u'/' + id + QStringLiteral(".png");
    }
    QString savedFile(const QString& name, const QByteArray& content = "the user's")
    {
        const QString path = pictures() + u'/' + name;
        put(path, content);
        return path;
    }
    QStringList names(const QString& folder) const
    {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static void put(const QString& path, const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(content);
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    QDateTime now {QDate(2023, 3, 8), QTime(20, 26, 40, 500), Qt::UTC};

private:
    explicit HistoryPlace(std::unique_ptr<QTemporaryDir> temporary, const QString& root = {})
        : m_temporary(std::move(temporary))
        , m_root(m_temporary ? m_temporary->path() : root)
    {
        m_prefs.registerDefaults();
        QDir().mkpath(pictures());
    }

    const std::unique_ptr<QTemporaryDir> m_temporary;
    const QString m_root;
    Prefs m_prefs {folders(), Prefs::Watch::Nothing};
    std::unique_ptr<HistoryStore> m_store;
};

/// A capture that is told apart by its number.
inline QImage sampleImage(int number, QSize size = {6, 4})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(number * 37 % 360, 200, 200));
    return image;
}

inline QByteArray pngOf(const QImage& image)
{
    return *Files::encode(image, ImageType::Png, 1);
}

/// Runs the event loop until something has come true, for at most ten seconds.
inline bool comesTrue(const std::function<bool()>& condition)
{
    const QDeadlineTimer deadline(10'000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return condition();
}
