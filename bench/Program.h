// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>

#include <cstdio>

/// A benchmark as a program: the toolkit without a screen, and the words of the command line.
class Program final {
public:
    Program(int argc, char** argv)
        : m_isOffscreen(qputenv("QT_QPA_PLATFORM", "offscreen"))
        , m_count(argc)
        , m_application(m_count, argv)
    {
    }

    static QStringList words(int from) { return QGuiApplication::arguments().mid(from); }
    static QString word(int index) { return QGuiApplication::arguments().value(index); }

    /// At least 1.
    static int number(int index, int otherwise)
    {
        bool isNumber = false;
        const int number = word(index).toInt(&isNumber);
        return std::max(1, isNumber ? number : otherwise);
    }

    /// The exit code of a program that says why it fails.
    static int fail(const QString& why)
    {
        std::fprintf(
            stderr, "%s: %s\n", qPrintable(QGuiApplication::applicationName()), qPrintable(why));
        return 1;
    }

private:
    bool m_isOffscreen; // Before the toolkit starts.
    int m_count;
    QGuiApplication m_application;
};
