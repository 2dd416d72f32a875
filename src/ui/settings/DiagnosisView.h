// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "doctor/DoctorRules.h"
#include "platform/Clipboard.h"
#include "widgets/Theme.h"

#include <QWidget>

#include <functional>

class QPushButton;
class QVBoxLayout;
class Row;

/// Has the system examined when the user wants it, and tells what was found: first what needs
/// attention, with what to do about it.
class DiagnosisView final : public QWidget {
    Q_OBJECT

public:
    struct Means {
        const Themes& themes;
        Clipboard& clipboard;
        std::function<Pending<QList<DoctorCheck>>()> examine; ///< As `pixmallow doctor` does.
    };

    explicit DiagnosisView(Means means);

private:
    void examine();
    void show(const Result<QList<DoctorCheck>>& found);
    void say(const QString& summary);
    void addGroup(const QString& heading, bool isOk);
    void copy() const;

    const Means m_means;
    bool m_isExamining = false;
    QList<DoctorCheck> m_checks; ///< As found last.
    QVBoxLayout* m_groups;
    Row* m_summary;
    QPushButton* m_run;
    QPushButton* m_copy;
};
