// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

/// Examines how well the program can work here and prints it, whether or not it is resident: what
/// `pixmallow doctor` stands for. Makes the application itself, as there may be no desktop.
/// Among the arguments, "--json" asks for a list of JSON objects, "--online" to use the network.
/// @return the exit code: 0 if all is well, 1 if something needs attention, 2 if it cannot be
/// printed.
int runDoctorCommand(int argc, char** argv);
