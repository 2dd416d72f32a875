// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QJsonObject>
#include <QRect>

/// One line, or several, to standard output; fails when nobody can read it, as on a full disk.
Result<void> print(const QByteArray& text);

/// A document as scripts expect it: compact, one line.
Result<void> print(const QJsonValue& value);

/// A sentence for the user to standard error, with the program's name.
void complain(const QString& sentence);

/// {"x":0,"y":0,"width":1,"height":1}
QJsonObject toJson(QRect rect);
