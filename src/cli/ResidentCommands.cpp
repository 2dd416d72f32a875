// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ResidentProgram.h"

Error runText(const TextRequest& request)
{
    QStringList options {QStringLiteral("--text")};
    if (request.json)
        options << QStringLiteral("--json");
    return ResidentProgram::become(options + QStringList {QStringLiteral("--")} + request.files);
}

Error runDoctor(const DoctorRequest& request)
{
    QStringList options {QStringLiteral("--doctor")};
    if (request.online)
        options << QStringLiteral("--online");
    if (request.json)
        options << QStringLiteral("--json");
    return ResidentProgram::become(options);
}

Error runLaunch(const LaunchRequest& request)
{
    return ResidentProgram::become(request.options);
}

Result<void> runShow(const ShowRequest& request)
{
    auto resident = ResidentProgram::reach(Folders::ofUser());
    if (!resident)
        return resident.error();
    const auto answer = resident->ask(Control::Show {request.what});
    if (!answer)
        return answer.error();
    const auto* const report = std::get_if<CaptureReport>(&*answer);
    return report ? Error::failed(report->reason) : Result<void>(); // A reason why it cannot.
}

Result<void> runQuit()
{
    return askResidentToQuitAndWait(Folders::ofUser(), std::chrono::seconds(10));
}
