// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ModuleTextRecognizer.h"

#include "base/Words.h"
#include "platform/freedesktop/Module.h"
#include "platform/freedesktop/text/TextModule.h"

using namespace Qt::StringLiterals;

ModuleTextRecognizer::ModuleTextRecognizer(QStringList languages)
    : m_languages(std::move(languages))
{
}

Result<RecognisedText> ModuleTextRecognizer::recognise(
    const QImage& picture, double scale, const std::atomic<bool>& cancelled)
{
    if (const auto loaded = load(); !loaded)
        return Error::failed(
            Words::tr("Text recognition is not available. %1").arg(loaded.error().message));
    return m_loaded->recognise(picture, scale, cancelled);
}

void ModuleTextRecognizer::release()
{
    if (m_loaded)
        m_loaded->release();
}

Result<void> ModuleTextRecognizer::load()
{
    if (m_loaded)
        return {};
    const auto function = moduleFunction(u"pixmallow-text"_s, TextModule::function);
    if (!function)
        return function.error();
    const auto make = reinterpret_cast<TextModule::Make>(*function);
    m_loaded.reset(make(PIXMALLOW_VERSION, m_languages));
    if (!m_loaded)
        return Error::failed(
            Words::tr("Pixmallow was updated while it ran; quit it and start it again."));
    return {};
}
