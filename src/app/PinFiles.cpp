// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/PinFiles.h"

#include "base/Worker.h"
#include "capture/ShotFile.h"

#include <QPointer>

namespace {

struct Opened {
    QList<Shot> shots;
    QStringList complaints;
};

Result<Opened> openAll(const QStringList& paths)
{
    Opened opened;
    for (const auto& path : paths) {
        const auto shot = readShot(path);
        if (shot)
            opened.shots << *shot;
        else
            opened.complaints << shot.error().message;
    }
    return opened;
}

} // namespace

Pending<CaptureReport> pinFiles(Pins& pins, const QStringList& paths)
{
    auto [report, answer] = Pending<CaptureReport>::ask();
    const auto shared = std::make_shared<Pending<CaptureReport>::Answer>(std::move(answer));
    auto open = [paths] { return openAll(paths); };
    runOnWorker(open).then([pins = QPointer(&pins), shared](const Result<Opened>& opened) {
        if (!pins)
            return; // The program ends.
        for (const auto& shot : opened->shots)
            pins->show(shot);
        CaptureReport done {CaptureReport::Outcome::Done};
        if (!opened->complaints.isEmpty())
            done = {CaptureReport::Outcome::Failed, opened->complaints.join(u' ')};
        (*shared)(done);
    });
    return std::move(report);
}
