// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The name under which a file that the editor brings can be opened, such as "emoji/2b50.svg".
QString editorResource(const QString& name);
