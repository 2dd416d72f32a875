// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/CanvasDocument.h"
#include "editor/keeping/EditRecord.h"

#include <QPainter>

#include <algorithm>

#include <random>

/// Pictures and annotations, the same for the same seed.
namespace SampleEdits {

inline QImage picture(
    unsigned seed, QSize size = {240, 160}, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    std::mt19937 random(seed);
    image.fill(QColor::fromRgb(QRgb(random()) | 0xff000000));
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int i = 0; i < 30; ++i)
        painter.fillRect(
            int(random() % 200), int(random() % 120), 60, 40, QColor::fromRgba(QRgb(random())));
    return image;
}

/// One of any kind, with every field its own.
inline Annotation annotation(std::mt19937& random)
{
    const auto number = [&](int most) { return double(random() % unsigned(most * 64)) / 64; };
    const QStringList texts {QString(), QStringLiteral("Größe 😀\n\"two\" lines"),
        QStringLiteral("a"), QString(300, u'x')};
    Annotation it(Tool(1 + random() % 11), QColor::fromRgba(QRgb(random())), number(40));
    it.a = {number(300) - 30, number(200) - 30};
    it.b = {number(300), number(200)};
    for (int i = int(random() % 40); i > 0; --i)
        it.points.append({number(240) / 3, number(160) / 7});
    it.text = texts[qsizetype(random() % 4)];
    it.fontSize = 8 + number(90);
    it.number = int(random() % 100) - 5;
    it.emoji = texts[qsizetype(1 + random() % 3)];
    it.rotation = number(720) - 360;
    it.style = random() % 2 ? QStringLiteral("Neon") : QStringLiteral("no such style");
    it.centered = random() % 2;
    return it;
}

inline std::vector<Annotation> annotations(unsigned seed, int count)
{
    std::mt19937 random(seed);
    std::vector<Annotation> all;
    for (int i = 0; i < count; ++i)
        all.push_back(annotation(random));
    return all;
}

inline KeptEdit edit(unsigned seed, const QString& historyId = {})
{
    KeptEdit edit {{{picture(seed), 1.5, QStringLiteral("Terminal “x”"), {}},
                       QStringLiteral("/home/somebody/a picture.png"), historyId},
        {}};
    for (const auto& each : annotations(seed, int(seed % 9)))
        edit.annotations.push_back(std::make_shared<const Annotation>(each));
    return edit;
}

inline bool areEqual(const std::vector<Mark::Copy>& one, const std::vector<Mark::Copy>& other)
{
    return std::ranges::equal(one, other,
        [](const Mark::Copy& left, const Mark::Copy& right) { return *left == *right; });
}

} // namespace SampleEdits
