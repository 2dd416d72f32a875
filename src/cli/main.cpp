// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Language.h"
#include "base/Words.h"
#include "cli/Commands.h"
#include "cli/Print.h"

#include <QCoreApplication>

namespace {

enum ExitCode { Done = 0, Failed = 2, WrongArguments = 64 };

Result<int> codeOf(const Result<void>& done)
{
    return done ? Result<int>(Done) : done.error();
}

Result<int> run(const ShotRequest& request)
{
    return codeOf(runShot(request));
}

Result<int> run(const ListRequest& request)
{
    return codeOf(runList(request));
}

Result<int> run(const CaptureRequest& request)
{
    return runCapture(request);
}

Result<int> run(const TextRequest& request)
{
    return runText(request);
}

Result<int> run(const DoctorRequest& request)
{
    return runDoctor(request);
}

Result<int> run(const LaunchRequest& request)
{
    return runLaunch(request);
}

Result<int> run(const PinRequest& request)
{
    return codeOf(runPin(request));
}

Result<int> run(const EditRequest& request)
{
    return codeOf(runEdit(request));
}

Result<int> run(const ShowRequest& request)
{
    return codeOf(runShow(request));
}

Result<int> run(QuitRequest)
{
    return codeOf(runQuit());
}

Result<int> run(HelpRequest)
{
    return codeOf(print(helpText().toUtf8()));
}

Result<int> run(VersionRequest)
{
    return codeOf(print(QByteArray("pixmallow " PIXMALLOW_VERSION "\n")));
}

int fail(const Error& error, ExitCode code)
{
    complain(error.message);
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Language::install();
    const auto request = parseArguments(QCoreApplication::arguments().mid(1));
    if (!request) {
        Error error = request.error();
        error.message = Words::tr("%1 See 'pixmallow --help'.").arg(error.message);
        return fail(error, WrongArguments);
    }
    const auto code = std::visit([](const auto& each) { return run(each); }, *request);
    return code ? *code : fail(code.error(), Failed);
}
