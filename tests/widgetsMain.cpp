// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>

/// For tests of widgets, on no display and in letters that look the same everywhere.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans")));
    return RUN_ALL_TESTS();
}
