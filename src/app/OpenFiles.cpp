// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/OpenFiles.h"

#include "base/Worker.h"
#include "capture/ShotFile.h"

namespace {

struct Opened {
    QList<FinishedCapture> pictures;
    QStringList complaints;
};

Result<Opened> openAll(const QStringList& paths)
{
    Opened opened;
    for (const auto& path : paths) {
        const auto shot = readShot(path);
        if (shot)
            opened.pictures << FinishedCapture {*shot, path};
        else
            opened.complaints << shot.error().message;
    }
    return opened;
}

} // namespace

Pending<CaptureReport> openFiles(
    const QStringList& paths, std::function<void(const FinishedCapture&)> show)
{
    auto [report, answer] = Pending<CaptureReport>::ask();
    const auto shared = std::make_shared<Pending<CaptureReport>::Answer>(std::move(answer));
    auto open = [paths] { return openAll(paths); };
    runOnWorker(open).then([show = std::move(show), shared](const Result<Opened>& opened) {
        if (!opened)
            return; // The program ends.
        for (const auto& picture : opened->pictures)
            show(picture);
        CaptureReport done {CaptureReport::Outcome::Done};
        if (!opened->complaints.isEmpty())
            done = {CaptureReport::Outcome::Failed, opened->complaints.join(u' ')};
        (*shared)(done);
    });
    return std::move(report);
}
