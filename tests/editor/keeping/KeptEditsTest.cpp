// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/KeptEdits.h"

#include "tests/TestFiles.h"
#include "tests/editor/keeping/SampleEdits.h"
#include "tests/history/HistoryPlace.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using SampleEdits::areEqual;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// A picture being marked up, with the journal that its window would have.
struct Editing {
    Editing(KeptEdits& kept, const FinishedCapture& capture, const QImage& picture)
        : document(picture)
        , journal(kept.journal(capture))
    {
        document.setOnChange([this] { journal->note(document); });
    }
    void mark(unsigned seed) { document.add(SampleEdits::annotations(seed, 3)); }
    QImage finish()
    {
        const QImage flattened = document.flattened();
        journal->exported(document, flattened);
        journal->close();
        return flattened;
    }

    CanvasDocument document;
    std::unique_ptr<EditJournal> journal;
};

class KeptEditsTest : public testing::Test {
protected:
    KeptEditsTest() { start(); }

    void start()
    {
        kept = std::make_unique<KeptEdits>(place.folders(), place.prefs(), place.store());
        QObject::connect(
            kept.get(), &KeptEdits::failed, [this](const QString& why) { failures.append(why); });
    }
    /// As if the program had been killed: what is open is not closed.
    void restart()
    {
        kept.reset();
        place.stop();
        start();
    }
    void settle() { kept->flush(); }

    QString addToHistory()
    {
        return place.store().add(picture, 1.5, {}, u"Terminal"_s, pngOf(picture));
    }
    std::optional<KeptEdit> found(const QImage& image, const QString& historyId = {})
    {
        return *kept->find({{image, 1, {}, {}}, {}, historyId}).wait();
    }
    std::vector<KeptEdit> reopened()
    {
        std::vector<KeptEdit> edits;
        const auto expected = std::size_t(kept->leftBehind());
        kept->reopen([&](const KeptEdit& edit, std::unique_ptr<EditJournal> journal) {
            edits.push_back(edit);
            journals.push_back(std::move(journal));
        });
        EXPECT_TRUE(
            comesTrue([&] { return edits.size() + std::size_t(failures.size()) >= expected; }));
        return edits;
    }
    QStringList files(const QString& folder) const
    {
        return place.names(place.folders().data + u'/' + folder);
    }

    HistoryPlace place;
    QStringList failures;
    std::vector<std::unique_ptr<EditJournal>> journals; ///< Of reopened edits.
    std::unique_ptr<KeptEdits> kept;
    const QImage picture = SampleEdits::picture(1);
};

} // namespace

TEST_F(KeptEditsTest, bringsAnnotationsOfAnExportedPictureBack)
{
    const QString id = addToHistory();
    Editing editing(*kept, {{picture, 1.5, u"Terminal"_s, {}}, {}, id}, picture);
    editing.mark(3);
    const auto halfway = editing.document.snapshot().annotations;
    const QImage shared = editing.document.flattened();
    editing.journal->exported(editing.document, shared);
    editing.mark(4);
    const auto final = editing.document.snapshot().annotations;
    const QImage closed = editing.finish();

    for (const QString& asked : {id, QString()}) {
        const auto edit = found(QImage::fromData(pngOf(closed)), asked);
        ASSERT_TRUE(edit);
        EXPECT_TRUE(areEqual(edit->annotations, final));
        EXPECT_EQ(edit->capture.shot.image.convertToFormat(picture.format()), picture);
        EXPECT_EQ(edit->capture.shot.scale, 1.5);
    }
    const auto earlier = found(shared);
    ASSERT_TRUE(earlier);
    EXPECT_TRUE(areEqual(earlier->annotations, halfway));

    const auto stale = found(picture, id);
    ASSERT_TRUE(stale) << "what shows the entry from before the edit opens the entry as it is now";
    EXPECT_TRUE(areEqual(stale->annotations, final));
    EXPECT_FALSE(found(picture)) << "but nobody's picture is not an export";
    EXPECT_FALSE(found(SampleEdits::picture(2), id));
    EXPECT_THAT(files(u"Journals"_s), IsEmpty());
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(KeptEditsTest, knowsAJpegThatWasWritten)
{
    const QString id = addToHistory(), file = place.pictures() + u"/a.jpg"_s;
    Editing editing(*kept, {{picture, 1, {}, {}}, file, id}, picture);
    editing.mark(3);
    const QImage flattened = editing.document.flattened();
    ASSERT_TRUE(Files::write(flattened, file, 1));
    editing.journal->exported(editing.document, flattened, file);
    editing.journal->close();
    const auto edit = found(QImage(file), id);
    ASSERT_TRUE(edit);
    EXPECT_THAT(edit->annotations, SizeIs(3));
    EXPECT_TRUE(found(flattened, id));
}

TEST_F(KeptEditsTest, keepsTheBaseOfACropAndOfAPictureWithAlpha)
{
    const QImage clear = SampleEdits::picture(6, {240, 160}, QImage::Format_ARGB32_Premultiplied);
    Editing editing(*kept, {{clear, 1, {}, {}}, u"/tmp/a.png"_s, {}}, clear);
    editing.mark(1);
    editing.document.crop({10, 10, 100, 90});
    editing.mark(2);
    settle();
    const auto final = editing.document.snapshot();
    restart();
    ASSERT_EQ(kept->leftBehind(), 1);
    const auto edits = reopened();
    ASSERT_THAT(edits, SizeIs(1));
    EXPECT_EQ(edits[0].capture.shot.image.convertToFormat(final.image.format()), final.image);
    EXPECT_TRUE(areEqual(edits[0].annotations, final.annotations));
    EXPECT_EQ(edits[0].capture.path, u"/tmp/a.png"_s);
}

TEST_F(KeptEditsTest, offersWhatWasLeftBehindUntilItIsClosed)
{
    {
        Editing one(*kept, {{picture, 1, {}, {}}, {}, {}}, picture);
        one.mark(1);
        one.mark(2);
        Editing closed(*kept, {{picture, 1, {}, {}}, {}, {}}, picture);
        closed.mark(7);
        closed.finish();
        settle();
    }
    EXPECT_EQ(kept->leftBehind(), 0) << "what is open now is nothing that was left";
    restart();
    ASSERT_EQ(kept->leftBehind(), 1);
    ASSERT_THAT(reopened(), SizeIs(1));
    EXPECT_EQ(kept->leftBehind(), 0);
    journals.clear();
    restart();
    ASSERT_EQ(kept->leftBehind(), 1) << "reopened, then killed once more";
    ASSERT_THAT(reopened(), SizeIs(1));
    journals.front()->close();
    restart();
    EXPECT_EQ(kept->leftBehind(), 0);
    EXPECT_THAT(files(u"Journals"_s), IsEmpty());
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(KeptEditsTest, doesNotOfferForEverWhatMakesTheProgramCrash)
{
    {
        Editing one(*kept, {{picture, 1, {}, {}}, {}, {}}, picture);
        one.mark(1);
        settle();
    }
    for (int crash = 0; crash < 2; ++crash) {
        restart();
        ASSERT_THAT(reopened(), SizeIs(1));
    }
    restart();
    EXPECT_EQ(kept->leftBehind(), 0);
    EXPECT_TRUE(comesTrue([&] { return failures.size() == 1; }));
    restart();
    settle();
    EXPECT_THAT(failures, SizeIs(1)) << "said once";
    EXPECT_THAT(files(u"Journals"_s), SizeIs(2)) << "but it is still there";
}

TEST_F(KeptEditsTest, whatWasChangedAfterReopeningCountsAsNew)
{
    {
        Editing one(*kept, {{picture, 1, {}, {}}, {}, {}}, picture);
        one.mark(1);
        settle();
    }
    for (int crash = 0; crash < 4; ++crash) {
        restart();
        const auto edits = reopened();
        ASSERT_THAT(edits, SizeIs(1));
        CanvasDocument document(edits[0].capture.shot.image);
        document.adopt(edits[0].annotations, CanvasDocument::Adopted::Unsaved);
        EXPECT_TRUE(document.isDirty());
        document.add(SampleEdits::annotations(9, 1));
        journals.back()->note(document);
        settle();
        ASSERT_THAT(edits[0].annotations, SizeIs(3 + crash));
    }
}

TEST_F(KeptEditsTest, goesWithTheEntryAndWithTheHistory)
{
    const QString staying = addToHistory(), removed = addToHistory();
    const auto edit = [&](unsigned seed, const QString& id) {
        Editing editing(*kept, {{picture, 1, {}, {}}, {}, id}, picture);
        editing.mark(seed);
        return editing.finish();
    };
    const QImage ofKept = edit(1, staying), ofRemoved = edit(2, removed), ofFile = edit(3, {});
    {
        Editing left(*kept, {{picture, 1, {}, {}}, {}, removed}, picture);
        left.mark(5);
        settle();
    }
    restart();
    ASSERT_EQ(kept->leftBehind(), 1);
    place.store().remove(place.store().items().first());
    EXPECT_TRUE(comesTrue([&] { return kept->leftBehind() == 0; }));
    EXPECT_TRUE(found(ofKept) && found(ofFile) && !found(ofRemoved));
    EXPECT_THAT(files(u"Journals"_s), IsEmpty());
    place.store().clear();
    EXPECT_FALSE(found(ofKept) || found(ofFile));
    EXPECT_THAT(files(u"Layers"_s), IsEmpty());
}

TEST_F(KeptEditsTest, goesWithAPrunedEntryAndForgetsOldExports)
{
    place.prefs().set(Prefs::keys.historyMax, 10);
    const QString id = addToHistory();
    Editing editing(*kept, {{picture, 1, {}, {}}, {}, id}, picture);
    std::vector<QImage> exports;
    for (unsigned i = 0; i < 12; ++i) {
        editing.mark(i);
        exports.push_back(editing.document.flattened());
        editing.journal->exported(editing.document, exports.back());
        settle();
    }
    EXPECT_TRUE(found(exports.back()));
    EXPECT_FALSE(found(exports.front()));
    EXPECT_THAT(files(u"Layers"_s), SizeIs(8 + 1)) << "one picture for all";
    editing.journal->close();
    for (int i = 0; i < 10; ++i)
        addToHistory();
    settle();
    EXPECT_THAT(files(u"Layers"_s), IsEmpty());
}

TEST_F(KeptEditsTest, keepsNothingThatTheUserDoesNotWant)
{
    const auto edit = [&](unsigned seed) {
        Editing editing(*kept, {{picture, 1, {}, {}}, {}, {}}, picture);
        editing.mark(seed);
        settle();
        const auto noted = files(u"Journals"_s).size();
        editing.finish();
        return noted;
    };
    EXPECT_GT(edit(1), 0);
    settle();
    EXPECT_FALSE(files(u"Layers"_s).isEmpty());
    place.prefs().set(Prefs::keys.keepEditsEditable, false);
    EXPECT_GT(edit(2), 0) << "a crash still loses nothing";
    kept.reset();
    EXPECT_THAT(files(u"Layers"_s), IsEmpty()) << "old ones neither";
    place.prefs().set(Prefs::keys.keepEditsEditable, true);
    start();
    Editing open(*kept, {{picture, 1, {}, {}}, {}, {}}, picture);
    open.mark(2);
    place.prefs().set(Prefs::keys.historyEnabled, false);
    EXPECT_EQ(edit(3), 0);
    settle();
    EXPECT_THAT(files(u"Layers"_s) + files(u"Journals"_s), IsEmpty());
}

TEST_F(KeptEditsTest, letsNobodyElseReadAndPutsNothingIntoTheExport)
{
    const QString id = addToHistory();
    Editing editing(*kept, {{picture, 1, {}, {}}, {}, id}, picture);
    editing.mark(1);
    settle();
    editing.journal->exported(editing.document, editing.document.flattened());
    settle();
    for (const QString& folder : {u"Layers"_s, u"Journals"_s}) {
        const QString path = place.folders().data + u'/' + folder;
        EXPECT_EQ(modeOf(path), 0700u);
        EXPECT_THAT(files(folder), SizeIs(2));
        for (const QString& name : files(folder))
            EXPECT_EQ(modeOf(path + u'/' + name), 0600u);
    }
    const QImage copy(editing.document.flattened());
    EXPECT_TRUE(copy.textKeys().isEmpty());
}

TEST_F(KeptEditsTest, doesWithoutWhatIsDamaged)
{
    const QString id = addToHistory();
    const QString layers = place.folders().data + u"/Layers/"_s;
    for (const QString& suffix : {u".edit"_s, u".png"_s}) {
        Editing editing(*kept, {{picture, 1, {}, {}}, {}, id}, picture);
        editing.mark(1);
        const QImage closed = editing.finish();
        ASSERT_TRUE(found(closed, id));
        for (const QString& name : files(u"Layers"_s))
            if (name.endsWith(suffix))
                ::put(layers + name, ::contentOf(layers + name).chopped(9));
        EXPECT_FALSE(found(closed, id));
        QFile::remove(layers + files(u"Layers"_s).last());
    }
}

TEST_F(KeptEditsTest, removesAtStartWhatAKilledWriteLeft)
{
    const QString id = addToHistory();
    Editing editing(*kept, {{picture, 1, {}, {}}, {}, id}, picture);
    editing.mark(1);
    const QImage closed = editing.finish();
    settle();
    const QString hash = PixelHash::of(picture).text();
    const QString gone = u"0F3F6B3A-0000-4000-8000-000000000001."_s;
    for (const QString& folder : {u"/Layers/"_s, u"/Journals/"_s})
        ::put(place.folders().data + folder + gone + hash + u".png"_s, "a picture without record");
    ::put(place.folders().data + u"/Layers/notes.txt"_s, "somebody's");
    restart();
    settle();
    EXPECT_THAT(files(u"Journals"_s), IsEmpty());
    EXPECT_THAT(files(u"Layers"_s), SizeIs(3));
    EXPECT_TRUE(found(closed, id));
}

TEST_F(KeptEditsTest, saysOnceThatNothingCanBeWritten)
{
    ::put(place.folders().data + u"/Journals"_s, "in the way");
    Editing editing(*kept, {{picture, 1, {}, {}}, {}, {}}, picture);
    for (unsigned i = 0; i < 5; ++i) {
        editing.mark(i);
        settle();
    }
    EXPECT_TRUE(comesTrue([&] { return !failures.isEmpty(); }));
    EXPECT_THAT(failures, SizeIs(1));
}
