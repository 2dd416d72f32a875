// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ToolkitClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::StringLiterals;

void ToolkitClipboard::setImage(const QImage& image, const QByteArray& png)
{
    auto* data = new QMimeData;
    data->setImageData(image);
    if (!png.isEmpty())
        data->setData(u"image/png"_s, png);
    QGuiApplication::clipboard()->setMimeData(data);
}

void ToolkitClipboard::setText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}
