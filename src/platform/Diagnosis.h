// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QStringList>

#include <memory>

/// What text would be read with. Languages are named as their data is: "eng", "chi_sim".
struct TextLanguages {
    QStringList read;
    QStringList missing; ///< English or a language of the user, whose data is not installed.
};

/// What only somebody asks who examines how well the program can work here. A failure's message is
/// a sentence for the user. Everything here may block for some seconds.
class Diagnosis {
public:
    virtual ~Diagnosis() = default;

    /// Whether a picture's worth of bytes that one program puts up can be taken by another one.
    /// What the user has copied stays as it is.
    virtual Result<void> exchangeCopies() = 0;

    /// Whether some program keeps what was copied when the program it came from is gone.
    virtual bool keepsCopies() = 0;

    /// The name of the sound server, once it has been talked to.
    virtual Result<QString> soundServer() = 0;

    /// Whether faces can be looked for.
    virtual Result<void> faceDetection() = 0;

    /// Fails where no text can be read whatever is installed.
    virtual Result<TextLanguages> textLanguages() = 0;
};

/// Needs no desktop: without one, what is asked of it fails.
std::unique_ptr<Diagnosis> makeDiagnosis();
