// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/TextCommand.h"

#include "base/Words.h"
#include "capture/OCR.h"
#include "capture/ShotFile.h"
#include "cli/Print.h"
#include "platform/DesktopPlatform.h"

using namespace Qt::StringLiterals;

namespace {

Result<OCR::Result> read(OCR& ocr, const QString& path)
{
    const auto shot = readShot(path);
    if (!shot)
        return shot.error();
    auto result = ocr.recognize(shot->image, shot->scale).wait();
    return result;
}

/// Why there is no text; empty where there is some.
QString complaintOf(const QString& path, const Result<OCR::Result>& result)
{
    if (!result)
        return result.error().message;
    return result->text.isEmpty() ? Words::tr("No text found in “%1”.").arg(path) : QString();
}

Result<void> printJson(
    const QString& path, const Result<OCR::Result>& result, const QString& complaint)
{
    QJsonObject object {{u"file"_s, path}};
    if (result) {
        object.insert(u"text"_s, result->text);
        object.insert(u"lines"_s, result->lines);
    }
    if (!complaint.isEmpty())
        object.insert(u"reason"_s, complaint);
    return print(QJsonValue(object));
}

} // namespace

int runTextCommand(QStringList words)
{
    const auto end = words.indexOf(u"--"_s);
    const auto option = words.indexOf(u"--json"_s);
    const bool json = option >= 0 && (end < 0 || option < end);
    if (end >= 0)
        words.removeAt(end);
    if (json)
        words.removeAt(option);

    OCR ocr(makeTextRecognizer());
    bool failed = words.isEmpty();
    for (const auto& path : words) {
        const auto result = read(ocr, path);
        const QString complaint = complaintOf(path, result);
        if (!complaint.isEmpty())
            complain(complaint);
        Result<void> printed;
        if (json)
            printed = printJson(path, result, complaint);
        else if (complaint.isEmpty())
            printed = print((
                (words.size() > 1 ? u"==> %1 <==\n"_s.arg(path) : QString()) + result->text + u'\n')
                                .toUtf8());
        if (!printed)
            complain(printed.error().message);
        failed = failed || !complaint.isEmpty() || !printed;
    }
    return failed ? 2 : 0;
}
