// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryIndex.h"
#include "tests/history/HistoryPlace.h"

#include <gmock/gmock.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

/// A store, and beside it what it ought to hold; both do the same random things.
class Model : public HistoryPlace {
public:
    explicit Model(unsigned seed)
        : m_random(seed)
    {
    }

    void step()
    {
        const int kind = below(100);
        if (kind < 40)
            add();
        else if (kind < 60)
            update();
        else if (kind < 78)
            remove();
        else if (kind < 80)
            clear();
        else if (kind < 88)
            loseAFile();
        else if (kind < 92)
            prefs().set(Prefs::keys.historyMax, below(25));
        else
            restart();
    }

    void check(bool isAtRest)
    {
        ASSERT_EQ(store().items(), m_items);
        QStringList expected {u"index.json"_s};
        for (const auto& item : m_items)
            if (item.cached)
                expected.append(item.id + u".png"_s);
        expected.sort();
        if (m_hasIndex) {
            ASSERT_EQ(names(folder()), expected);
        }
        for (auto copy = m_copies.cbegin(); copy != m_copies.cend(); ++copy)
            ASSERT_EQ(contentOf(copyPath(copy.key())), copy.value());
        ASSERT_EQ(names(pictures()).size(), m_files.size());
        for (const QString& file : m_files)
            ASSERT_EQ(contentOf(file), file.toUtf8()) << "a file of the user";
        const auto rested = isAtRest ? names(thumbnails()) : QStringList();
        for (const QString& name : rested)
            ASSERT_TRUE(std::ranges::any_of(
                m_items, [&](const auto& item) { return name.startsWith(item.id); }));
    }

    void restart()
    {
        stop();
        m_items.removeIf([&](const auto& item) { return m_lost.contains(item.path); });
        store();
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }
    HistoryItem& any() { return m_items[below(int(m_items.size()))]; }

    QString newFile()
    {
        const QString path = pictures() + u'/' + QString::number(++m_count);
        m_files.append(savedFile(QString::number(m_count), path.toUtf8()));
        return path;
    }
    QByteArray newPng() { return pngOf(sampleImage(++m_count)); }

    void add()
    {
        now = now.addMSecs(below(100'000'000));
        const QImage image = sampleImage(m_count, {1 + below(9), 1 + below(9)});
        const QString file = below(2) == 0 ? newFile() : QString();
        const QByteArray png = newPng();
        const QString app = below(2) == 0 ? u"Ä \"B\""_s : QString();
        const double scale = 1 + below(8) / 4.0;
        const QString id = store().add(image, scale, file, app, png);
        ASSERT_TRUE(isHistoryId(id));
        m_items.prepend({id, historyDate(now), file.isEmpty() ? copyPath(id) : file, image.width(),
            image.height(), scale, app, file.isEmpty()});
        if (file.isEmpty())
            m_copies.insert(id, png);
        while (m_items.size() > std::max(10, prefs().get(Prefs::keys.historyMax)))
            m_copies.remove(m_items.takeLast().id);
        m_hasIndex = true;
    }

    void update()
    {
        if (m_items.isEmpty())
            return;
        auto& item = any();
        const QImage image = sampleImage(m_count, {1 + below(9), 1 + below(9)});
        const QString file = below(2) == 0 ? newFile() : QString();
        const QByteArray png = newPng();
        store().update(item.id, image, 2, file, png);
        item.cached = file.isEmpty();
        item.path = item.cached ? copyPath(item.id) : file;
        item.width = image.width();
        item.height = image.height();
        item.scale = 2;
        m_copies.remove(item.id);
        if (item.cached)
            m_copies.insert(item.id, png);
    }

    void remove()
    {
        if (m_items.isEmpty())
            return;
        const HistoryItem item = any();
        using enum HistoryStore::Persist;
        store().remove(item, below(2) == 0 ? Now : Later);
        m_items.removeOne(item);
        m_copies.remove(item.id);
    }

    void clear()
    {
        store().clear();
        m_items.clear();
        m_copies.clear();
        m_hasIndex = true;
    }

    /// Somebody else removes a file.
    void loseAFile()
    {
        if (m_files.isEmpty())
            return;
        m_lost.insert(m_files.takeAt(below(int(m_files.size()))));
        for (const QString& path : m_lost)
            QFile::remove(path);
    }

    std::mt19937 m_random;
    QList<HistoryItem> m_items;
    QHash<QString, QByteArray> m_copies; ///< Content by id.
    QStringList m_files; ///< The user's; each holds its own path.
    QSet<QString> m_lost;
    int m_count = 0;
    bool m_hasIndex = false;
};

/// Index texts as a failing disk or an eager editor would make them.
QByteArray damaged(QByteArray text, std::mt19937& random)
{
    const QByteArrayList pieces {"[", "]", "{", "}", ",", ":", "\"", "\\", "\\u0000", "null",
        "true", "-1", "1e400", "../", "\xff", "\"cached\":true,", "\"id\":\"\","};
    const auto below = [&](qsizetype limit) { return qsizetype(random() % quint64(limit)); };
    for (auto changes = 1 + below(6); changes > 0 && !text.isEmpty(); --changes) {
        const auto at = below(text.size()),
                   length = below(std::min(text.size() - at, qsizetype(40)) + 1);
        switch (below(6)) {
        case 0:
            text[at] = char(random());
            break;
        case 1:
            text.remove(at, length);
            break;
        case 2:
            text.insert(at, text.mid(below(text.size()), length));
            break;
        case 3:
            text.insert(at, pieces.at(below(pieces.size())));
            break;
        case 4:
            text.replace("false", "true");
            break;
        default:
            text.truncate(below(8) == 0 ? at : text.size());
        }
    }
    return text;
}

} // namespace

TEST(HistoryModelTest, holdsAfterAnyOrderOfThings)
{
    for (int seed = 0; seed < soaked(6); ++seed) {
        SCOPED_TRACE(seed);
        Model model {unsigned(seed)};
        for (int i = 0; i < 80; ++i) {
            ASSERT_NO_FATAL_FAILURE(model.step()) << i;
            ASSERT_NO_FATAL_FAILURE(model.check(false)) << i;
        }
        model.restart();
        model.stop();
        model.restart();
        ASSERT_NO_FATAL_FAILURE(model.check(true));
    }
}

TEST(HistoryModelTest, survivesAnyIndex)
{
    HistoryPlace place;
    const QStringList files {place.savedFile(u"a.png"_s), place.savedFile(u"b.png"_s)};
    const QString copied = newHistoryId();
    const QList<HistoryItem> sound {{newHistoryId(), 1.5, files.at(0), 6, 4, 1, u"Editor"_s, false,
                                        {{u"note"_s, "[{\"x\":1}]"}}},
        {copied, 2, place.copyPath(copied), 6, 4, 2, {}, true},
        {newHistoryId(), 3, files.at(1), 6, 4, 1, u"Ä"_s, false}};
    int kept = 0, refused = 0;
    for (int seed = 0; seed < soaked(150); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random {unsigned(seed)};
        QDir(place.folder()).removeRecursively();
        HistoryPlace::put(place.copyPath(copied), pngOf(sampleImage(1)));
        const QByteArray text = damaged(HistoryIndex::toJson(sound), random);
        HistoryPlace::put(place.indexPath(), text);

        auto& store = place.store();
        const auto expected = HistoryIndex::parse(text);
        ++(expected ? kept : refused);
        const auto aside = QDir(place.folder()).entryList({u"index.json.damaged-*"_s});
        ASSERT_EQ(aside.size(), expected ? 0 : 1);
        for (const QString& name : aside)
            ASSERT_EQ(place.contentOf(place.folder() + u'/' + name), text);
        const auto items = store.items();
        for (const auto& item : items) {
            ASSERT_TRUE(expected->contains(item) || item.path == place.copyPath(item.id));
            store.thumbnail(item);
            if (random() % 4 == 0)
                store.update(item.id, sampleImage(2), 1, {}, "edited");
            else
                store.remove(item, HistoryStore::Persist::Later);
        }
        ASSERT_FALSE(store.add(sampleImage(1), 1, files.at(0), {}).isEmpty());
        ASSERT_EQ(HistoryIndex::parse(place.contentOf(place.indexPath())), store.items());
        if (random() % 2 == 0)
            store.clear();
        place.stop();
        for (const QString& file : files)
            ASSERT_EQ(place.contentOf(file), "the user's");
    }
    EXPECT_GT(kept, 15);
    EXPECT_GT(refused, 15);
}
