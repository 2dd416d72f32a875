// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/Module.h"

#include "base/Words.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

using namespace Qt::StringLiterals;

namespace {

/// Empty if there is none.
QString modulePath(const QString& name)
{
    const QString folder = QCoreApplication::applicationDirPath();
    for (const auto& place : {folder, folder + u"/" PIXMALLOW_MODULES ""_s})
        if (const QFileInfo file(place + u"/lib"_s + name + u".so"_s); file.isFile())
            return file.absoluteFilePath();
    return {};
}

} // namespace

Result<QFunctionPointer> moduleFunction(const QString& name, const char* function)
{
    const QString path = modulePath(name);
    if (path.isEmpty())
        return Error::failed(Words::tr("Pixmallow was installed without its part '%1'.").arg(name));
    QLibrary library(path);
    if (!library.load())
        return Error::failed(
            Words::tr("A part of Pixmallow cannot be loaded: %1.").arg(library.errorString()));
    if (const auto found = library.resolve(function))
        return found;
    return Error::failed(Words::tr("The file '%1' is not of this version of Pixmallow.").arg(path));
}
