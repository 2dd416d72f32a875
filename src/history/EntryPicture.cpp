// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/EntryPicture.h"

#include "base/Words.h"
#include "history/ThumbnailFiles.h"

#include <QFileInfo>

Result<FinishedCapture> readEntry(const HistoryItem& item)
{
    const QImage image = decoded(item.path);
    if (image.isNull())
        return Error::failed(
            Words::tr("“%1” cannot be read.").arg(QFileInfo(item.path).fileName()));
    return FinishedCapture {
        {image, item.scale, item.app, {}}, item.cached ? QString() : item.path, item.id};
}
