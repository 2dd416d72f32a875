// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/TextProcess.h"

#include "base/Words.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <sys/prctl.h>

#include <csignal>
#include <sched.h>

using namespace Qt::StringLiterals;

namespace {

/// In the new process, before the program begins. It does not outlive this one.
void becomeIdle()
{
    const sched_param none {};
    sched_setscheduler(0, SCHED_IDLE, &none);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

Result<OCR::Result> resultFrom(const QByteArray& line)
{
    const auto object = QJsonDocument::fromJson(line).object();
    if (object[u"text"].isString())
        return OCR::Result {object[u"text"].toString(), object[u"lines"].toInt()};
    return Error::failed(object[u"reason"].toString(Words::tr("The picture could not be read.")));
}

} // namespace

TextProcess::TextProcess(QString program)
    : m_program(std::move(program))
{
}

Pending<OCR::Result> TextProcess::read(const QString& path)
{
    giveUp();
    auto [pending, answer] = Pending<OCR::Result>::ask();
    m_answer = std::move(answer);
    m_process = new QProcess;
    m_process->setChildProcessModifier(becomeIdle);
    m_process->setStandardErrorFile(QProcess::nullDevice());
    connect(m_process, &QProcess::finished, this, &TextProcess::finish);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish();
    });
    m_process->start(m_program, {u"--text"_s, u"--json"_s, u"--"_s, path}, QProcess::ReadOnly);
    return std::move(pending);
}

void TextProcess::finish()
{
    QProcess* const process = std::exchange(m_process, nullptr);
    m_answer(resultFrom(process->readAllStandardOutput()));
    process->deleteLater();
}

void TextProcess::giveUp()
{
    QProcess* const process = std::exchange(m_process, nullptr);
    m_answer = {};
    if (!process)
        return;
    process->disconnect(this);
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    // To end, too, takes some time of the processor, which it would have to wait for.
    const sched_param usual {};
    sched_setscheduler(pid_t(process->processId()), SCHED_OTHER, &usual);
    process->kill();
}
