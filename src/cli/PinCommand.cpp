// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ResidentProgram.h"

#include <QFileInfo>

Result<void> runPin(const PinRequest& request)
{
    Control::Pin pin;
    for (const auto& file : request.files)
        pin.paths << QFileInfo(file).absoluteFilePath();
    auto resident = ResidentProgram::reach(Folders::ofUser());
    if (!resident)
        return resident.error();
    const auto answer = resident->ask(pin);
    if (!answer)
        return answer.error();
    const auto* report = std::get_if<CaptureReport>(&*answer);
    if (report && report->outcome != CaptureReport::Outcome::Done)
        return Error::failed(report->reason);
    return {};
}
