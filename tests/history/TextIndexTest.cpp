// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/TextIndexer.h"

#include "history/HistoryCatalogue.h"
#include "platform/fake/FakeTextRecognizer.h"
#include "tests/capture/SurfaceTest.h"
#include "tests/history/HistoryPlace.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class TextIndexTest : public testing::Test, protected HistoryPlace {
protected:
    void start()
    {
        end();
        store();
        index = std::make_unique<TextIndex>(folders());
        ocr = std::make_unique<OCR>(recognizer);
        indexer = std::make_unique<TextIndexer>(TextIndexer::Means {store(), *index, prefs(),
            [this](const HistoryItem& item) { return ocr->recognize(decoded(item.path)); },
            [this] { ocr->cancel(); }, [this] { return isPlugged; }, time.callLater()});
        EXPECT_TRUE(comesTrue([this] { return index->isReady(); }));
    }
    void end()
    {
        indexer.reset();
        ocr.reset();
        index.reset();
        stop();
    }
    QString add(int number) { return store().add(sampleImage(number), 1, {}, u"Mail"_s); }
    void say(const QString& text) { recognizer->answer = RecognisedText {{{text, {}}}, {}}; }
    /// Waits for the next one to be read, or until the reader has settled.
    bool reads(int times)
    {
        return comesTrue([&] {
            time.pass(TextIndexer::rest);
            return recognizer->reading >= times;
        });
    }
    bool knows(qsizetype count)
    {
        return comesTrue([&] {
            time.pass(TextIndexer::rest);
            return index->count() == count && texts().size() == count;
        });
    }
    QStringList texts() const { return names(folder() + u"/Texts"_s); }
    void settle()
    {
        for (int i = 0; i < 20; ++i) {
            time.pass(TextIndexer::rest);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        }
    }

    HandTime time;
    bool isPlugged = true;
    const std::shared_ptr<FakeTextRecognizer> recognizer = std::make_shared<FakeTextRecognizer>();
    std::unique_ptr<TextIndex> index;
    std::unique_ptr<OCR> ocr;
    std::unique_ptr<TextIndexer> indexer;
};

} // namespace

TEST_F(TextIndexTest, readsEachCaptureOnceAndKeepsWhatItSaysToTheUser)
{
    start();
    say(u"Invoice 4711\nfor Zoë"_s);
    const QString first = add(1), second = add(2);
    ASSERT_TRUE(knows(2));
    EXPECT_EQ(index->text(first), u"Invoice 4711\nfor Zoë"_s);
    struct stat status { };
    for (const QString& path :
        {folder() + u"/Texts"_s, folder() + u"/Texts/"_s + texts().first()}) {
        ASSERT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0077, 0u) << path.toStdString();
    }
    start(); // Again, and nothing is to be read.
    settle();
    EXPECT_EQ(recognizer->reading, 2);
    QHash<QString, QByteArray> loaded;
    QObject::connect(index.get(), &TextIndex::loaded,
        [&loaded](const QHash<QString, QByteArray>& texts) { loaded.insert(texts); });
    index->load();
    EXPECT_TRUE(comesTrue([&] { return loaded.size() == 2; }));
    EXPECT_EQ(loaded[second], searchable(u"invoice 4711 for zoë"_s));
}

TEST_F(TextIndexTest, whatACaptureSaysGoesWithItAndChangesWithIt)
{
    start();
    say(u"before"_s);
    const QString removed = add(1), edited = add(2), kept = add(3);
    ASSERT_TRUE(knows(3));
    say(u"after"_s);
    store().remove(store().items().last());
    store().update(edited, sampleImage(4), 1, {});
    ASSERT_TRUE(knows(2) && reads(4) && knows(2));
    EXPECT_EQ(texts().join(u' ').contains(removed), false);
    EXPECT_EQ(index->text(edited), u"after"_s);
    EXPECT_EQ(index->text(kept), u"before"_s);

    recognizer->holdsBack = true; // Removed while it is being read.
    add(5);
    ASSERT_TRUE(reads(5));
    store().remove(store().items().first());
    recognizer->holdsBack = false;
    settle();
    EXPECT_EQ(texts().size(), 2);
    store().clear();
    EXPECT_TRUE(knows(0));
}

TEST_F(TextIndexTest, cleansUpAfterAKilledProgram)
{
    start();
    say(u"text"_s);
    const QString id = add(1);
    ASSERT_TRUE(knows(1));
    end();
    const QString folder = HistoryPlace::folder() + u"/Texts/"_s;
    const QString gone = newHistoryId() + u".txt"_s;
    put(folder + gone, "of an entry that is no more");
    put(folder + u"notes.md"_s, "somebody else's");
    start();
    EXPECT_TRUE(comesTrue([&] { return !texts().contains(gone); }));
    EXPECT_EQ(texts(), QStringList({id + u".txt"_s, u"notes.md"_s}));
    EXPECT_EQ(index->text(u"../index"_s), QString());
}

TEST_F(TextIndexTest, waitsForPowerAndGivesWayToCaptures)
{
    isPlugged = false;
    start();
    say(u"text"_s);
    add(1);
    settle();
    EXPECT_EQ(recognizer->reading, 0);
    isPlugged = true;
    time.pass(TextIndexer::powerPause);
    ASSERT_TRUE(knows(1));

    recognizer->holdsBack = true;
    add(2);
    ASSERT_TRUE(reads(2));
    indexer->captureBegins(); // Given up at once, and not begun again meanwhile.
    recognizer->holdsBack = false;
    settle();
    EXPECT_EQ(recognizer->reading, 2);
    EXPECT_EQ(texts().size(), 1);
    indexer->captureEnded();
    EXPECT_TRUE(knows(2));
    EXPECT_EQ(recognizer->reading, 3);
}

TEST_F(TextIndexTest, whoDoesNotWantItHasNothingOnTheDisk)
{
    start();
    say(u"text"_s);
    add(1);
    ASSERT_TRUE(knows(1));
    recognizer->holdsBack = true;
    add(2);
    ASSERT_TRUE(reads(2));
    prefs().set(Prefs::keys.findByText, false);
    recognizer->holdsBack = false;
    settle();
    EXPECT_TRUE(comesTrue([this] { return !QFileInfo::exists(folder() + u"/Texts"_s); }));
    add(3);
    settle();
    EXPECT_EQ(recognizer->reading, 2);
    start();
    settle();
    EXPECT_EQ(recognizer->reading, 2);
    prefs().set(Prefs::keys.findByText, true);
    EXPECT_TRUE(knows(3));
}
