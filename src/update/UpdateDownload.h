// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/AtomicFile.h"
#include "update/HttpGet.h"
#include "update/UpdateInfo.h"

#include <QCryptographicHash>

/// Downloads a version. Its file appears once all of it has arrived and has the checksum that was
/// published; until then, and whatever happens, there is nothing that could be opened by mistake.
/// Destroyed before its end, it answers Cancelled.
class UpdateDownload final : public QObject {
    Q_OBJECT

public:
    /// @param path a file that has that name is replaced
    UpdateDownload(UpdateInfo info, QString path);

    /// Once. Fails with UpdateError::Checksum or Insecure, or a sentence about network or disk.
    Pending<void> run();

Q_SIGNALS:
    void received(qint64 bytes, qint64 total); ///< As HttpGet's.

private:
    void end(const Result<void>& fetched);
    Result<void> keep();

    const UpdateInfo m_info;
    AtomicFile m_file;
    QCryptographicHash m_hash {QCryptographicHash::Sha256};
    HttpGet m_get;
    Pending<void>::Answer m_answer;
};
