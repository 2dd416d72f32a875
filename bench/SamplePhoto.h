// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// A landscape with sky, clouds, a ridge and the noise of a camera's sensor, as RGB32; the same for
/// the same seed.
QImage samplePhoto(QSize size, quint32 seed);
