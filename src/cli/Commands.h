// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Arguments.h"

/// Takes the picture and writes it; what the user should read is printed to standard output.
Result<void> runShot(const ShotRequest& request);

/// Prints screens, windows or past captures.
Result<void> runList(const ListRequest& request);

/// Has the resident program open a window, starting it if none runs.
Result<void> runShow(const ShowRequest& request);

/// Asks the resident program for a capture, starting that program if none runs. Prints what came of
/// it and returns the exit code for that.
Result<int> runCapture(const CaptureRequest& request);

/// Becomes the program that prints the text of pictures. Returns only if that fails.
Error runText(const TextRequest& request);

/// Becomes the program that examines how well all this works here. Returns only if that fails.
Error runDoctor(const DoctorRequest& request);

/// Becomes the resident program. Returns only if that fails.
Error runLaunch(const LaunchRequest& request);

/// Has the resident program show image files above all windows, starting it if none runs.
Result<void> runPin(const PinRequest& request);

/// Has the resident program open image files in the editor, starting it if none runs.
Result<void> runEdit(const EditRequest& request);

/// Ends the resident program; done as well if none runs.
Result<void> runQuit();
