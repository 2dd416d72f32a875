// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ModuleFaceDetector.h"

#include "base/Words.h"
#include "platform/freedesktop/Module.h"
#include "platform/freedesktop/faces/FaceModule.h"

using namespace Qt::StringLiterals;

Result<QList<QRectF>> ModuleFaceDetector::detect(const QImage& picture)
{
    const std::scoped_lock busy(m_busy);
    if (const auto loaded = load(); !loaded)
        return Error::failed(
            Words::tr("Faces cannot be looked for. %1").arg(loaded.error().message));
    return m_loaded->detect(picture);
}

Result<void> ModuleFaceDetector::load()
{
    if (m_loaded)
        return {};
    const auto function = moduleFunction(u"pixmallow-faces"_s, FaceModule::function);
    if (!function)
        return function.error();
    const auto make = reinterpret_cast<FaceModule::Make>(*function);
    m_loaded.reset(make(PIXMALLOW_VERSION));
    if (!m_loaded)
        return Error::failed(
            Words::tr("Pixmallow was updated while it ran; quit it and start it again."));
    return {};
}
