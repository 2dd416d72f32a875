// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ToolkitClipboard.h"
#include "tests/desktop/DesktopTest.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

/// No encoder makes these: whoever reads them has them from us.
const QByteArray png("\x89PNG exact\0bytes", 16);
const QString text = u"Grüße, 中文 🐈"_s;
const QStringList files {u"/tmp/Büro/a b.png"_s, u"/tmp/c#d.png"_s};

using ClipboardTest = DesktopTest<>;

/// What another program of the desktop reads.
QByteArray read(const VirtualDesktop& desktop, const QString& type)
{
    const auto finished
        = desktop.run(u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-o"_s, u"-t"_s, type});
    return finished ? finished->output : QByteArray();
}

/// Owns the clipboard of the desktop until it is ended, one content after the other.
int ownClipboard(int count, char** arguments)
{
    const QGuiApplication application(count, arguments);
    ToolkitClipboard clipboard;
    const auto content = QGuiApplication::arguments().value(2);
    if (content == u"image"_s)
        clipboard.setImage(QImage(40, 30, QImage::Format_RGB32), png);
    else if (content == u"text"_s)
        clipboard.setText(text);
    else
        clipboard.setFiles(files);
    QGuiApplication::sync();
    std::puts("ready");
    std::fflush(stdout);
    return QGuiApplication::exec();
}

} // namespace

TEST_F(ClipboardTest, givesOtherProgramsExactlyWhatWasCopied)
{
    const QByteArray first = "file:///tmp/B%C3%BCro/a%20b.png", second = "file:///tmp/c%23d.png";
    struct Case {
        QString content, type;
        QByteArray expected;
    };
    for (const auto& [content, type, expected] : {
             Case {u"image"_s, u"image/png"_s, png},
             Case {u"text"_s, u"UTF8_STRING"_s, text.toUtf8()},
             Case {u"files"_s, u"text/uri-list"_s, first + "\r\n" + second + "\r\n"},
             Case {u"files"_s, u"x-special/gnome-copied-files"_s, "copy\n" + first + '\n' + second},
             Case {u"files"_s, u"application/x-kde-cutselection"_s, "0"},
         }) {
        auto owner = desktop().launch(
            QCoreApplication::applicationFilePath(), {u"--own-clipboard"_s, content});
        ASSERT_TRUE(owner);
        ASSERT_FALSE((*owner)->waitForLine("ready").isNull());
        EXPECT_EQ(read(desktop(), type), expected) << qPrintable(type);
    }
}

int main(int count, char** arguments)
{
    if (count > 1 && std::strcmp(arguments[1], "--own-clipboard") == 0)
        return ownClipboard(count, arguments);
    testing::InitGoogleTest(&count, arguments);
    const QCoreApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
