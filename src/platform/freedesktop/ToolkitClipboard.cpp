// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ToolkitClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

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

void ToolkitClipboard::setFiles(const QStringList& paths)
{
    QList<QUrl> urls;
    QByteArray copied = "copy";
    for (const auto& path : paths) {
        urls << QUrl::fromLocalFile(path);
        copied += '\n' + urls.last().toEncoded();
    }
    auto* data = new QMimeData;
    data->setUrls(urls);
    // What the file managers of GNOME and KDE look for to paste copies.
    // names.
    data->setData(u"x-special/gnome-copied-files"_s, copied);
    data->setData(u"application/x-kde-cutselection"_s, "0");
    QGuiApplication::clipboard()->setMimeData(data);
}
