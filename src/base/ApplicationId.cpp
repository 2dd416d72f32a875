// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/ApplicationId.h"

QString applicationId()
{
    return QStringLiteral(PIXMALLOW_APPLICATION_ID);
}
