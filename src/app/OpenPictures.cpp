// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/OpenPictures.h"

#include "base/Control.h"
#include "base/Worker.h"
#include "capture/ShotFile.h"
#include "editor/Editors.h"
#include "history/EntryPicture.h"

#include <QCoroTask>
#include <QFileInfo>

namespace {

using Outcome = CaptureReport::Outcome;

struct Opened {
    QList<FinishedCapture> pictures;
    Outcome outcome = Outcome::Done; ///< Of the first that was no picture.
    QStringList complaints;

    void add(const QString& path, const Result<FinishedCapture>& picture)
    {
        if (picture) {
            pictures << *picture;
            return;
        }
        if (outcome == Outcome::Done)
            outcome = QFileInfo::exists(path) ? Outcome::Failed : Outcome::NotFound;
        complaints << picture.error().message;
    }
};

Result<FinishedCapture> readFile(const QString& path)
{
    const auto shot = readShot(path);
    if (!shot)
        return shot.error();
    return FinishedCapture {*shot, path};
}

QCoro::Task<> useAll(Pending<Opened> reading, UsePicture use, Pending<CaptureReport>::Answer answer)
{
    const auto opened = co_await reading;
    if (!opened)
        co_return; // The program ends.
    CaptureReport report {opened->outcome, opened->complaints.join(u' ')};
    for (const auto& picture : opened->pictures) {
        auto pending = use(picture);
        const auto used = co_await pending;
        if (!used && report.outcome == Outcome::Done)
            report = Control::reportOf(used.error());
    }
    answer(report);
}

template <typename Read>
Pending<CaptureReport> open(Read read, UsePicture use)
{
    auto [report, answer] = Pending<CaptureReport>::ask();
    useAll(runOnWorker(std::move(read)), std::move(use), std::move(answer));
    return std::move(report);
}

} // namespace

UsePicture editingIn(Editors& editors)
{
    return [&editors](const FinishedCapture& picture) { return editors.edit(picture); };
}

Pending<CaptureReport> openFiles(const QStringList& paths, UsePicture use)
{
    auto read = [paths]() -> Result<Opened> {
        Opened opened;
        for (const auto& path : paths)
            opened.add(path, readFile(path));
        return opened;
    };
    return open(std::move(read), std::move(use));
}

Pending<CaptureReport> openEntry(const HistoryItem& item, UsePicture use)
{
    auto read = [item]() -> Result<Opened> {
        Opened opened;
        opened.add(item.path, readEntry(item));
        return opened;
    };
    return open(std::move(read), std::move(use));
}
