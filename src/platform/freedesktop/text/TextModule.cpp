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

extern "C" Q_DECL_EXPORT void pixmallowFindTextLanguages(
    const QStringList& languages, TextLanguages& found)
{
    const auto installed = TesseractEngine::installed();
    const auto choice = Languages::choose(languages, installed);
    found = {choice.usual + choice.others, Languages::notInstalled(languages, installed)};
}

static_assert(std::is_same_v<decltype(&pixmallowFindTextLanguages), TextModule::FindLanguages>);
static_assert(std::is_same_v<decltype(&pixmallowMakeTextRecognizer), TextModule::Make>);
