// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/FaceCovers.h"

#include "base/Words.h"
#include "editor/Stickers.h"

#include <QRectF>

using namespace Qt::StringLiterals;

namespace {

constexpr double sidePerWidth = 1.45;
constexpr double mostDegrees = 10;

} // namespace

std::vector<Annotation> FaceCovers::on(
    const QList<QRectF>& faces, const QString& emoji, std::mt19937& random)
{
    const QStringList& pool = Stickers::faceCovers();
    std::uniform_real_distribution<> angle(-mostDegrees, mostDegrees);
    std::uniform_int_distribution<qsizetype> choice(0, pool.size() - 1);
    std::vector<Annotation> covers;
    for (const QRectF& face : faces) {
        const double half = face.width() * sidePerWidth / 2;
        Annotation it(Tool::Sticker, Qt::white, 4);
        it.a = face.center() - QPointF(half, half);
        it.b = face.center() + QPointF(half, half);
        it.emoji = emoji.isEmpty() ? pool[choice(random)] : emoji;
        it.rotation = angle(random);
        covers.push_back(std::move(it));
    }
    return covers;
}

QString FaceCovers::told(qsizetype faces)
{
    if (faces == 0)
        return Words::tr("No faces found in this image");
    return faces == 1 ? Words::tr("Covered 1 face — select one to move or swap it")
                      : Words::tr("Covered %n faces — select one to move or swap it", nullptr,
                          Words::count(faces));
}
