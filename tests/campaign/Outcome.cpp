// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/Outcome.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

Outcome::Outcome(QString what)
    : m_what(std::move(what))
{
    m_time.start();
}

Outcome::~Outcome()
{
    const QString path = qEnvironmentVariable("PIXMALLOW_OUTCOMES");
    if (path.isEmpty())
        return;
    const QString result = testing::Test::HasFailure() ? u"failed"_s
        : testing::Test::IsSkipped()                   ? u"skipped"_s
                                                       : u"passed"_s;
    const QStringList columns {m_what, QString::number(done), result, details,
        QString::number(double(m_time.elapsed()) / 1000, 'f', 1)};
    QFile file(path);
    const QByteArray line = columns.join(u'\t').toUtf8() + '\n';
    EXPECT_TRUE(file.open(QIODevice::Append) && file.write(line) == line.size());
}
