// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Program.h"
#include "bench/ScreenContent.h"

#include <QRegularExpression>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const Program program(argc, argv);
    const auto content = screenContentNamed(Program::word(1));
    const auto size
        = QRegularExpression(u"^([1-9]\\d{0,4})x([1-9]\\d{0,4})$"_s).match(Program::word(2));
    if (argc != 4 || !content || !size.hasMatch()) {
        std::fputs("usage: screen-content desk|editor|term|photo WxH OUT.png\n", stderr);
        return 2;
    }
    const QSize pixels(size.captured(1).toInt(), size.captured(2).toInt());
    if (drawScreen(*content, pixels).save(Program::word(3), "png"))
        return 0;
    return Program::fail(u"cannot write "_s + Program::word(3));
}
