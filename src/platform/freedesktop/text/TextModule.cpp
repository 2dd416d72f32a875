// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/TextModule.h"

#include "platform/freedesktop/text/TesseractRecognizer.h"

#include <cstring>

extern "C" Q_DECL_EXPORT TextRecognizer* pixmallowMakeTextRecognizer(
    const char* version, const QStringList& languages)
{
    if (std::strcmp(version, PIXMALLOW_VERSION) != 0)
        return nullptr;
    return new TesseractRecognizer(languages);
}

static_assert(std::is_same_v<decltype(&pixmallowMakeTextRecognizer), TextModule::Make>);
