// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/KeptEdits.h"

#include "tests/KilledProcess.h"
#include "tests/campaign/Outcome.h"
#include "tests/editor/keeping/SampleEdits.h"
#include "tests/history/HistoryPlace.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What the document of a seed is after so many changes; some of them crop it or undo.
class Work final {
public:
    explicit Work(unsigned seed)
        : m_random(seed)
        , m_document(SampleEdits::picture(seed, {900, 700}))
    {
    }

    void change()
    {
        const auto size = m_document.base().size();
        switch (m_random() % 8) {
        case 0:
            if (size.width() > 100) {
                m_document.crop(QRectF(3, 2, size.width() - 7, size.height() - 5));
                break;
            }
            [[fallthrough]];
        case 1:
            if (m_document.canUndo()) {
                m_document.undo();
                break;
            }
            [[fallthrough]];
        default:
            m_document.commit(SampleEdits::annotation(m_random));
        }
    }
    const CanvasDocument& document() const { return m_document; }

private:
    std::mt19937 m_random;
    CanvasDocument m_document;
};

/// Marks up a picture until it is killed, and writes a byte for each change that is kept for sure.
[[noreturn]] void workForEver(const QString& root, unsigned seed, int report)
{
    HistoryPlace place(root);
    KeptEdits kept(place.folders(), place.prefs(), place.store());
    Work work(seed);
    const auto journal = kept.journal({{work.document().base(), 1, {}, {}}, {}, {}});
    for (int i = 0;; ++i) {
        work.change();
        journal->note(work.document());
        if (i % 4 != 0)
            continue; // So that some of them meet a write that goes on.
        kept.flush();
        const char changes[4] {1, 1, 1, 1};
        if (write(report, changes, i == 0 ? 1 : 4) < 1)
            _exit(1);
    }
}

/// How many changes a process reported that was killed some time after its first.
int changesOfKilled(const QString& root, unsigned seed, unsigned long microseconds)
{
    return int(
        KilledProcess::reportOf([&](int report) { workForEver(root, seed, report); }, microseconds)
            .size());
}

std::optional<KeptEdit> reopened(const QString& root)
{
    HistoryPlace place(root);
    KeptEdits kept(place.folders(), place.prefs(), place.store());
    std::optional<KeptEdit> found;
    std::unique_ptr<EditJournal> journal;
    EXPECT_EQ(kept.leftBehind(), 1);
    kept.reopen([&](const KeptEdit& edit, std::unique_ptr<EditJournal> its) {
        found = edit;
        journal = std::move(its);
    });
    EXPECT_TRUE(comesTrue([&] { return journal != nullptr; }));
    if (journal)
        journal->close();
    return found;
}

bool shows(const KeptEdit& edit, const CanvasDocument& document)
{
    return edit.capture.shot.image.convertToFormat(document.base().format()) == document.base()
        && SampleEdits::areEqual(edit.annotations, document.snapshot().annotations);
}

} // namespace

TEST(JournalCrashTest, bringsTheLastChangesBackAfterBeingKilled)
{
    Outcome outcome(u"Kills while pictures are edited"_s);
    const QTemporaryDir root;
    std::mt19937 random(2);
    for (int round = 0; round < soaked(20); ++round, ++outcome.done) {
        const auto seed = unsigned(random());
        SCOPED_TRACE(testing::Message() << "round " << round << ", seed " << seed);
        const int sure = changesOfKilled(root.path(), seed, random() % 150'000);
        const auto edit = reopened(root.path());
        ASSERT_TRUE(edit);
        // What was changed last may be on the disk without having been reported.
        Work work(seed);
        for (int i = 0; i < sure; ++i)
            work.change();
        bool isThere = shows(*edit, work.document());
        for (int more = 0; more < 8 && !isThere; ++more) {
            work.change();
            isThere = shows(*edit, work.document());
        }
        EXPECT_TRUE(isThere) << "after " << sure << " changes for sure";
        const QDir journals(root.filePath(u"data/Pixmallow/Journals"_s));
        EXPECT_EQ(journals.entryList({u"*.edit"_s, u"*.png"_s}).size(), 0);
    }
}
