// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

/// Where the machine's power comes from.
class PowerSource {
public:
    virtual ~PowerSource() = default;

    /// False where a battery is being used up; true where nobody knows.
    virtual bool isPlugged() const = 0;
};
