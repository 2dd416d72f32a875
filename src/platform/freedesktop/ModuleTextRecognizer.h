// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/TextRecognizer.h"

#include <memory>

/// The recogniser of the module pixmallow-text, which is loaded when something is to be read.
class ModuleTextRecognizer final : public TextRecognizer {
public:
    /// @param languages of the user, best first, as QLocale::uiLanguages() has them.
    explicit ModuleTextRecognizer(QStringList languages);

    Result<RecognisedText> recognise(
        const QImage& picture, double scale, const std::atomic<bool>& cancelled) override;
    void release() override;

private:
    Result<void> load();

    QStringList m_languages;
    std::unique_ptr<TextRecognizer> m_loaded;
};
