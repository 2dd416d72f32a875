// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/ScreenContent.h"

#include <QGuiApplication>
#include <QRegularExpression>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto arguments = QGuiApplication::arguments();
    const auto content = screenContentNamed(arguments.value(1));
    const auto size
        = QRegularExpression(u"^([1-9]\\d{0,4})x([1-9]\\d{0,4})$"_s).match(arguments.value(2));
    if (arguments.size() != 4 || !content || !size.hasMatch()) {
        std::fputs("usage: screen-content desk|editor|term|photo WxH OUT.png\n", stderr);
        return 2;
    }
    const QSize pixels(size.captured(1).toInt(), size.captured(2).toInt());
    if (drawScreen(*content, pixels).save(arguments[3], "png"))
        return 0;
    std::fprintf(stderr, "screen-content: cannot write %s\n", qPrintable(arguments[3]));
    return 1;
}
