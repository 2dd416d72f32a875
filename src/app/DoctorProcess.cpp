// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/DoctorProcess.h"

#include "doctor/DoctorReport.h"

#include <sys/prctl.h>

#include <csignal>

using namespace Qt::StringLiterals;

DoctorProcess::DoctorProcess(QString program)
    : m_program(std::move(program))
{
}

DoctorProcess::~DoctorProcess()
{
    giveUp();
}

void DoctorProcess::giveUp()
{
    if (!m_process)
        return;
    m_process->disconnect(this);
    m_process->kill();
    m_process->waitForFinished();
}

Pending<QList<DoctorCheck>> DoctorProcess::examine()
{
    giveUp();
    auto [pending, answer] = Pending<QList<DoctorCheck>>::ask();
    m_answer = std::move(answer);
    m_process = std::make_unique<QProcess>();
    auto& process = *m_process;
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process.setStandardErrorFile(QProcess::nullDevice());
    connect(&process, &QProcess::finished, this, [this, &process] { finish(process); });
    connect(
        &process, &QProcess::errorOccurred, this, [this, &process](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                finish(process);
        });
    process.start(m_program, {u"--doctor"_s, u"--json"_s, u"--translated"_s}, QProcess::ReadOnly);
    return std::move(pending);
}

void DoctorProcess::finish(QProcess& process)
{
    m_answer(DoctorReport::fromJson(process.readAllStandardOutput()));
}
