// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Diagnosis.h"

/// For a session on an X server.
class X11Diagnosis final : public Diagnosis {
public:
    /// @param languages of the user, best first, as QLocale::uiLanguages() has them.
    explicit X11Diagnosis(QStringList languages);

    Result<void> exchangeCopies() override;
    bool keepsCopies() override;
    Result<QString> soundServer() override;
    Result<void> faceDetection() override;
    Result<TextLanguages> textLanguages() override;

private:
    const QStringList m_languages;
};
