// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "doctor/DoctorRules.h"

#include <QProcess>

/// Has the system examined as `pixmallow doctor` does, in a process of its own: the examination
/// blocks, and asks this program like any other would. Main thread only.
class DoctorProcess final : public QObject {
    Q_OBJECT

public:
    /// @param program the one that understands `--doctor`.
    explicit DoctorProcess(QString program);
    ~DoctorProcess() override;

    /// Whoever still waits for an earlier one hears Cancelled.
    Pending<QList<DoctorCheck>> examine();

private:
    void giveUp();
    void finish(QProcess& process);

    const QString m_program;
    std::unique_ptr<QProcess> m_process; ///< The last one.
    Pending<QList<DoctorCheck>>::Answer m_answer;
};
