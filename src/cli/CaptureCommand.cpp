// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Words.h"
#include "cli/Commands.h"
#include "cli/Print.h"
#include "cli/ResidentProgram.h"

namespace {

Result<void> printAccepted(bool json)
{
    return json ? print(Control::toLine(Control::Answer(Control::Accepted {}))) : Result<void>();
}

Result<void> printReport(const CaptureReport& report, bool json)
{
    if (!report.reason.isEmpty())
        complain(report.reason);
    else if (report.outcome == CaptureReport::Outcome::Busy)
        complain(Words::tr("Another capture is running."));
    if (json)
        return print(QJsonObject::fromVariantMap(Control::valuesOf(report)));
    if (!report.text.isEmpty())
        return print(report.text.toLocal8Bit() + '\n');
    return report.path.isEmpty() ? Result<void>() : print(report.path.toLocal8Bit() + '\n');
}

} // namespace

Result<int> runCapture(const CaptureRequest& request)
{
    auto resident = ResidentProgram::reach(Folders::ofUser());
    if (!resident)
        return resident.error();
    const auto answer = resident->ask(Control::Capture {request.kind, request.wait});
    if (!answer)
        return answer.error();
    const auto* report = std::get_if<CaptureReport>(&*answer);
    const auto printed = report ? printReport(*report, request.json) : printAccepted(request.json);
    if (!printed)
        return printed.error();
    return report ? Control::exitCode(*report) : 0;
}
