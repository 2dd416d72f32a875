// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Print.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

enum ExitCode { Done = 0, Failed = 2, WrongArguments = 64 };

Result<void> run(const ShotRequest& request)
{
    return runShot(request);
}

Result<void> run(const ListRequest& request)
{
    return runList(request);
}

Result<void> run(HelpRequest)
{
    return print(helpText().toUtf8());
}

Result<void> run(VersionRequest)
{
    return print(QByteArray("pixmallow " PIXMALLOW_VERSION "\n"));
}

int fail(const Error& error, ExitCode code)
{
    std::fprintf(stderr, "pixmallow: %s\n", error.message.toLocal8Bit().constData());
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto request = parseArguments(QCoreApplication::arguments().mid(1));
    if (!request) {
        Error error = request.error();
        error.message += u" See 'pixmallow --help'."_s;
        return fail(error, WrongArguments);
    }
    const auto done = std::visit([](const auto& each) { return run(each); }, *request);
    return done ? Done : fail(done.error(), Failed);
}
