// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/Client.h"
#include "tests/platform/SampleCodes.h"
#include "tests/platform/TextCorpus.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The real programs, where there is no desktop.
class TextCommandTest : public testing::Test {
protected:
    struct Finished {
        int exitCode;
        QByteArray output, errors;
    };

    Finished run(const QStringList& arguments) const
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"DISPLAY"_s);
        environment.remove(u"QT_QPA_PLATFORM"_s);
        Client client(environment);
        const auto started = client.start(QCoreApplication::applicationDirPath() + u"/pixmallow"_s,
            QStringList {u"text"_s} + arguments);
        EXPECT_TRUE(started) << started.error().message.toStdString();
        EXPECT_TRUE(client.waitForEnd());
        return {client.exitCode(), client.output(), client.errors()};
    }

    QString save(const QString& name, const QImage& image) const
    {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path, "png"));
        return path;
    }

    QTemporaryDir folder;
    const QString letter = save(u"ä letter.png"_s, page({u"Dear reader,"_s, u"good night."_s}));

    static QImage page(const QStringList& lines)
    {
        return TextCorpus::page(lines, {u"DejaVu Sans"_s, 16, 1, false});
    }
};

} // namespace

TEST_F(TextCommandTest, printsTheTextOrWhatACodeSays)
{
    const auto one = run({letter});
    EXPECT_EQ(one.exitCode, 0) << one.errors.toStdString();
    EXPECT_EQ(one.output, "Dear reader,\ngood night.\n");
    const auto code = run({save(u"code"_s, SampleCodes::qrCode(4))});
    EXPECT_EQ(code.output, SampleCodes::qrText.toUtf8() + '\n');
}

TEST_F(TextCommandTest, saysWhichFilesHaveNoTextAndGoesOn)
{
    const QString broken = folder.filePath(u"broken.png"_s), missing = folder.filePath(u"none"_s);
    QFile whole(letter), part(broken);
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly) && part.open(QIODevice::WriteOnly));
    part.write(whole.read(whole.size() / 3));
    part.close();
    QImage blank(50, 50, QImage::Format_RGB32);
    blank.fill(Qt::gray);
    const QString empty = save(u"empty.png"_s, blank);

    const auto all = run({broken, missing, empty, letter});
    EXPECT_EQ(all.exitCode, 2);
    EXPECT_EQ(all.output, "==> " + letter.toUtf8() + " <==\nDear reader,\ngood night.\n");
    for (const auto& path : {broken, missing, empty})
        EXPECT_TRUE(all.errors.contains("“" + path.toUtf8() + "”")) << all.errors.toStdString();
    EXPECT_TRUE(all.errors.contains("No text found in “" + empty.toUtf8()));

    const auto json = run({u"--json"_s, u"--"_s, letter, broken});
    EXPECT_EQ(json.exitCode, 2);
    const auto lines = json.output.split('\n');
    ASSERT_EQ(lines.size(), 3);
    const QJsonObject expected {
        {u"file"_s, letter}, {u"text"_s, u"Dear reader,\ngood night."_s}, {u"lines"_s, 2}};
    EXPECT_EQ(QJsonDocument::fromJson(lines[0]).object(), expected);
    const auto failed = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(failed[u"file"_s], broken);
    EXPECT_TRUE(failed[u"reason"_s].toString().contains(u"is no picture that can be read"_s));
}
