// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ModuleTextLanguages.h"

#include "platform/freedesktop/Module.h"
#include "platform/freedesktop/text/TextModule.h"

using namespace Qt::StringLiterals;

Result<TextLanguages> moduleTextLanguages(const QStringList& languages)
{
    const auto function = moduleFunction(u"pixmallow-text"_s, TextModule::languagesFunction);
    if (!function)
        return function.error();
    TextLanguages found;
    reinterpret_cast<TextModule::FindLanguages> (*function)(languages, found);
    return found;
}
