// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/ShotFile.h"
#include "editor/EditKeeper.h"
#include "tests/TestFiles.h"
#include "tests/editor/EditorWorld.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using ClosingRules::Plan;
using ClosingRules::Situation;
using enum ClosingRules::Plan::Write;
using Entry = ClosingRules::Plan::Entry;

class EditKeeperTest : public testing::Test, protected EditorWorld {
protected:
    Result<EditKeeper::Kept> keep(const Plan& plan, const QString& path, const QString& id = {})
    {
        return EditKeeper::keep(means, {{edited, 2, u"Terminal"_s, {}}, path, id}, plan);
    }
    static QRgb colourIn(const QString& path) { return QImage(path).pixel(5, 5) | 0xff000000; }
    QString at(const QString& name) const { return home.path() + u'/' + name; }
    QString save(const QString& name) const
    {
        EXPECT_TRUE(plain(Qt::red).save(at(name)));
        return at(name);
    }

    const QImage edited = plain(Qt::blue, {50, 30});
};

} // namespace

TEST(ClosingRulesTest, decideWhatBecomesOfAnEdit)
{
    struct Row {
        const char* name;
        Situation situation;
        Plan plan;
    };
    const auto file
        = [](const QString& path) { return Situation {.isEdited = true, .path = path}; };
    const auto with = [](Situation situation, auto change) {
        change(situation);
        return situation;
    };
    const Situation png = file(u"/p/a.png"_s), webp = file(u"/p/a.webp"_s), none = file({});
    const auto inHistory = [](Situation& it) { it.isInHistory = true; };
    const auto noHistory = [](Situation& it) { it.keepsHistory = false; };
    const auto copied = [](Situation& it) { it.isCopied = true; };
    const auto noCopies = [](Situation& it) { it.copies = false; };
    const auto elsewhere = [](Situation& it) { it.isSavedElsewhere = true; };
    const auto untouched = [](Situation& it) { it.isEdited = false; };
    const Row rows[] {
        {"unchanged", with(with(png, inHistory), untouched), {}},
        {"png", png, {Replace, Entry::Nothing, true, true}},
        {"JPG", file(u"/p/a.JPG"_s), {Replace, Entry::Nothing, true, true}},
        {"jpeg", file(u"/p/a.b.jpeg"_s), {Replace, Entry::Nothing, true, true}},
        {"other type", webp, {Beside, Entry::Nothing, true, true}},
        {"no extension", file(u"/p/png"_s), {Beside, Entry::Nothing, true, true}},
        {"file of history", with(png, inHistory), {Replace, Entry::Update, true, true}},
        {"copy in history", with(none, inHistory), {Nothing, Entry::Update, true, true}},
        {"copy, history off since", with(with(none, inHistory), noHistory),
            {Nothing, Entry::Update, true, true}},
        {"neither", none, {Nothing, Entry::Add, true, true}},
        {"neither, no history", with(none, noHistory), {NewFile, Entry::Nothing, true, true}},
        {"file, no history", with(png, noHistory), {Replace, Entry::Nothing, true, true}},
        {"copied since", with(png, copied), {Replace, Entry::Nothing, false, true}},
        {"no copies", with(png, noCopies), {Replace, Entry::Nothing, false, true}},
        {"saved elsewhere", with(png, elsewhere), {Nothing, Entry::Nothing, true, true}},
        {"saved elsewhere, no history", with(with(none, noHistory), elsewhere),
            {Nothing, Entry::Nothing, true, true}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ClosingRules::plan(row.situation), row.plan) << row.name;
}

TEST_F(EditKeeperTest, replacesFilesInTheirTypeAndSavesOthersBeside)
{
    const QString png = save(u"a.png"_s), jpeg = save(u"b.jpg"_s), bmp = save(u"c.bmp"_s);
    const QByteArray before = contentOf(bmp);
    save(u"c.png"_s);
    const auto replaced = keep({.write = Replace, .copies = true, .counts = true}, png);
    ASSERT_TRUE(replaced);
    EXPECT_EQ(replaced->path, png);
    EXPECT_EQ(colourIn(png), 0xff0000ffU);
    EXPECT_EQ(readShot(png)->scale, 2);
    EXPECT_EQ(QImage::fromData(platform.fakeClipboard().png).pixel(5, 5), 0xff0000ffU);
    EXPECT_EQ(fun.stats().edits, 1);
    EXPECT_EQ(fun.stats().xp, 5);

    ASSERT_TRUE(keep({.write = Replace}, jpeg));
    EXPECT_TRUE(contentOf(jpeg).startsWith("\xff\xd8\xff")) << "no JPEG any more";
    EXPECT_EQ(QImage(jpeg).size(), edited.size());

    const auto beside = keep({.write = Beside}, bmp);
    ASSERT_TRUE(beside);
    EXPECT_EQ(beside->path, at(u"c (2).png"_s));
    EXPECT_EQ(contentOf(bmp), before);
    EXPECT_EQ(colourIn(at(u"c.png"_s)), 0xffff0000U) << "overwritten";
}

TEST_F(EditKeeperTest, entersEditsInTheHistory)
{
    const QString id = history.add(plain(Qt::red), 2, {}, u"Terminal"_s);
    const auto updated = keep({.entry = Entry::Update}, {}, id);
    ASSERT_TRUE(updated);
    ASSERT_EQ(history.items().size(), 1);
    EXPECT_EQ(colourIn(history.items().first().path), 0xff0000ffU);
    EXPECT_EQ(history.items().first().width, 50);

    const auto added = keep({.entry = Entry::Add}, {});
    ASSERT_TRUE(added);
    EXPECT_EQ(history.items().first().id, added->historyId);
    EXPECT_EQ(history.items().first().app, u"Terminal"_s);

    prefs.set(Prefs::keys.historyEnabled, false); // Meanwhile; the edit is to be somewhere.
    const auto refused = keep({.entry = Entry::Add}, {});
    ASSERT_TRUE(refused);
    EXPECT_EQ(colourIn(refused->path), 0xff0000ffU);
    EXPECT_TRUE(refused->path.startsWith(prefs.saveFolder()));
}

TEST_F(EditKeeperTest, countsAndCopiesNothingWhereTheEditCannotBeWritten)
{
    const QString gone = at(u"no folder/a.png"_s);
    const auto kept = keep({Replace, Entry::Nothing, true, true}, gone);
    ASSERT_FALSE(kept);
    EXPECT_TRUE(kept.error().message.contains(gone)) << kept.error().message.toStdString();
    EXPECT_EQ(fun.stats().edits, 0);
    EXPECT_TRUE(platform.fakeClipboard().image.isNull());
    if (geteuid() == 0)
        return; // May write everything.
    const QString locked = save(u"locked.png"_s);
    QFile::setPermissions(locked, QFile::ReadOwner);
    EXPECT_FALSE(keep({.write = Replace}, locked));
    EXPECT_EQ(colourIn(locked), 0xffff0000U);
}
