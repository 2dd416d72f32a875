// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/EntryPicture.h"

#include "history/ThumbnailFiles.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

Result<FinishedCapture> readEntry(const HistoryItem& item)
{
    const QImage image = decoded(item.path);
    if (image.isNull())
        return Error::failed(u"“%1” cannot be read."_s.arg(QFileInfo(item.path).fileName()));
    return FinishedCapture {
        {image, item.scale, item.app, {}}, item.cached ? QString() : item.path, item.id};
}
