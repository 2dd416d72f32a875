// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "update/UpdateInfo.h"

class QDateTime;

/// Why an update is refused.
enum class UpdateError { Invalid, Insecure, Checksum };

Error errorOf(UpdateError error);

/// What is decided about updates, without clock, network or disk.
namespace UpdateRules {

/// -1, 0 or 1 as `a` is older than, as old as, or newer than `b`. What is no whole number between
/// two dots counts as 0, and so does what is missing.
int compare(const QString& a, const QString& b);

/// Whether anything may be fetched from an address: by https from anywhere, by http from this
/// computer. Of the text as it stands, since to parse it may change what it says.
bool isSafe(const QString& address);

/// What a feed says of a system; nothing where it has no files for it. Fails with the parser's own
/// words where it is no JSON, else with Invalid or Insecure.
Result<std::optional<UpdateInfo>> readFeed(const QByteArray& feed, const QString& member);

/// Whether it is time to look again.
/// @param last when it was last looked successfully; may be invalid
bool isDue(const QDateTime& last, const QDateTime& now);

/// Of the file that a version is downloaded to. Without what a file name cannot hold.
QString fileName(const QString& version, const QString& suffix);

} // namespace UpdateRules
