// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/text/FoundLine.h"

#include <QImage>

#include <tesseract/baseapi.h>

#include <atomic>
#include <memory>

/// Tesseract with some models loaded. For one thread at a time, and none that the toolkit draws in.
class TesseractEngine final {
public:
    /// The models that are there, in alphabetical order.
    static QStringList installed();

    /// Null if the models cannot be loaded.
    static std::unique_ptr<TesseractEngine> load(const QStringList& models);

    /// What is read from now on; Format_Grayscale8, not copied, at PageImage::bestScale. Null ends
    /// it.
    void show(const QImage& page);

    enum class Layout { Page, OneLine };

    /// All lines in reading order, boxes on the page. None when cancelled.
    QList<FoundLine> read(Layout layout, const std::atomic<bool>& cancelled);

    /// The one line in a box of the page.
    FoundLine readLine(QRect box, const std::atomic<bool>& cancelled);

private:
    explicit TesseractEngine(std::unique_ptr<tesseract::TessBaseAPI> api);

    std::unique_ptr<tesseract::TessBaseAPI> m_api;
};
