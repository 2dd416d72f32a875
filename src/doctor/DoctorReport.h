// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "doctor/DoctorRules.h"

#include <QJsonArray>

/// What was found, as it is handed on.
namespace DoctorReport {

QString toText(const QList<DoctorCheck>& checks); ///< One line for each, two if there is advice.
QString conclusion(const QList<DoctorCheck>& checks); ///< "All is well."

QJsonArray toJson(const QList<DoctorCheck>& checks);
/// From the text of such an array; an error is a sentence for the user.
Result<QList<DoctorCheck>> fromJson(const QByteArray& text);

} // namespace DoctorReport
