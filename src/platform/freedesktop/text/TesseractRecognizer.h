// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/TextRecognizer.h"
#include "platform/freedesktop/text/Languages.h"
#include "platform/freedesktop/text/TesseractEngine.h"

/// Reads text with Tesseract and codes with zbar.
class TesseractRecognizer final : public TextRecognizer {
public:
    /// @param languages of the user, best first.
    explicit TesseractRecognizer(QStringList languages);

    Result<RecognisedText> recognise(
        const QImage& picture, double scale, const std::atomic<bool>& cancelled) override;
    void release() override;

private:
    Result<void> load();
    QList<FoundLine> linesOf(const QImage& page, const std::atomic<bool>& cancelled);
    void readOnceMore(
        QList<FoundLine>& lines, const QImage& page, const std::atomic<bool>& cancelled);

    QStringList m_languages;
    Languages::Choice m_choice;
    std::unique_ptr<TesseractEngine> m_usual;
    std::unique_ptr<TesseractEngine> m_others; ///< Loaded when a line makes no sense.
};
