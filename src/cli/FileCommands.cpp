// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ResidentProgram.h"

#include <QFileInfo>

namespace {

/// The program's current folder is not that of the resident one.
QStringList absolute(const QStringList& files)
{
    QStringList paths;
    for (const auto& file : files)
        paths << QFileInfo(file).absoluteFilePath();
    return paths;
}

Result<void> ask(const Control::Request& request)
{
    auto resident = ResidentProgram::reach(Folders::ofUser());
    if (!resident)
        return resident.error();
    const auto answer = resident->ask(request);
    if (!answer)
        return answer.error();
    const auto* report = std::get_if<CaptureReport>(&*answer);
    if (report && report->outcome != CaptureReport::Outcome::Done)
        return Error::failed(report->reason);
    return {};
}

} // namespace

Result<void> runPin(const PinRequest& request)
{
    return ask(Control::Pin {absolute(request.files)});
}

Result<void> runEdit(const EditRequest& request)
{
    return ask(Control::Edit {absolute(request.files)});
}
