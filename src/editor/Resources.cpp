// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Resources.h"

QString editorResource(const QString& name)
{
    Q_INIT_RESOURCE(editor);
    return QStringLiteral(":/editor/") + name;
}
