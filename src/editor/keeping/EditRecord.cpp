// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/EditRecord.h"

#include "base/Words.h"
#include "editor/keeping/RecordBytes.h"

#include <xxhash.h>

namespace {

constexpr quint32 magic = 0x45584d50; // "PMXE"
constexpr quint16 version = 1;
constexpr qsizetype checksumSize = sizeof(quint64);

// Beyond what any picture has, and far below what drawing cannot cope with.
constexpr double farthest = 1e6; // Pixels.
constexpr double largestFont = 1e5; // Pixels.
constexpr double largestScale = 100;
constexpr double mostTurned = 1e6; // Degrees.

constexpr qsizetype bytesOfPoint = 2 * sizeof(double);
constexpr qsizetype leastOfAnnotation = 86; // Bytes, with all its texts empty.

quint64 checksum(QByteArrayView bytes)
{
    return XXH3_64bits(bytes.data(), std::size_t(bytes.size()));
}

void write(RecordWriter& to, QPointF point)
{
    to.real(point.x());
    to.real(point.y());
}

void write(RecordWriter& to, const Annotation& it)
{
    to.number(quint8(it.kind));
    to.number(quint64(it.color.rgba64()));
    to.real(it.width);
    write(to, it.a);
    write(to, it.b);
    to.number(quint32(it.points.size()));
    for (const QPointF point : it.points)
        write(to, point);
    to.text(it.text);
    to.real(it.fontSize);
    to.number(qint32(it.number));
    to.text(it.emoji);
    to.real(it.rotation);
    to.text(it.style);
    to.number(quint8(it.centered));
}

QPointF readPoint(RecordReader& from)
{
    const double x = from.real(-farthest, farthest);
    return {x, from.real(-farthest, farthest)};
}

Tool readKind(RecordReader& from)
{
    const auto kind = Tool(from.number<quint8>());
    from.require(kind > Tool::Select && kind < Tool::Crop);
    return kind;
}

bool readBool(RecordReader& from)
{
    const auto value = from.number<quint8>();
    from.require(value <= 1);
    return value == 1;
}

Mark::Copy readAnnotation(RecordReader& from)
{
    const Tool kind = readKind(from);
    const auto color = QColor::fromRgba64(QRgba64::fromRgba64(from.number<quint64>()));
    auto it = std::make_shared<Annotation>(kind, color, from.real(0, farthest));
    it->a = readPoint(from);
    it->b = readPoint(from);
    it->points.resize(from.count(bytesOfPoint));
    for (QPointF& point : it->points)
        point = readPoint(from);
    it->text = from.text();
    it->fontSize = from.real(0, largestFont);
    it->number = from.number<qint32>();
    it->emoji = from.text();
    it->rotation = from.real(-mostTurned, mostTurned);
    it->style = from.text();
    it->centered = readBool(from);
    return it;
}

void readContent(RecordReader& from, EditRecord& record)
{
    record.base.high = from.number<quint64>();
    record.base.low = from.number<quint64>();
    record.time = from.number<qint64>();
    FinishedCapture& capture = record.edit.capture;
    capture.shot.scale = from.real(1 / largestScale, largestScale);
    capture.shot.app = from.text();
    capture.path = from.text();
    capture.historyId = from.text();
    const qsizetype count = from.count(leastOfAnnotation);
    for (qsizetype i = 0; i < count && from.isGood(); ++i)
        record.edit.annotations.push_back(readAnnotation(from));
    from.require(from.left() == 0);
}

} // namespace

QByteArray EditRecord::encoded() const
{
    RecordWriter to;
    to.number(magic);
    to.number(version);
    to.number(base.high);
    to.number(base.low);
    to.number(time);
    const FinishedCapture& capture = edit.capture;
    to.real(capture.shot.scale);
    to.text(capture.shot.app);
    to.text(capture.path);
    to.text(capture.historyId);
    to.number(quint32(edit.annotations.size()));
    for (const auto& annotation : edit.annotations)
        write(to, *annotation);
    to.number(checksum(to.bytes()));
    return to.bytes();
}

Result<EditRecord> EditRecord::decoded(QByteArrayView bytes)
{
    const auto damaged = Error::failed(Words::tr("The record of an edit is damaged."));
    if (bytes.size() > largest || bytes.size() < checksumSize)
        return damaged;
    const auto content = bytes.chopped(checksumSize);
    RecordReader from(content);
    if (from.number<quint32>() != magic)
        return damaged;
    const auto stated = from.number<quint16>();
    if (stated > version)
        return Error::failed(
            Words::tr("The record of an edit is of a newer version of Pixmallow."));
    if (stated != version
        || RecordReader(bytes.last(checksumSize)).number<quint64>() != checksum(content))
        return damaged;
    EditRecord record;
    readContent(from, record);
    return from.isGood() ? Result<EditRecord>(std::move(record)) : damaged;
}
