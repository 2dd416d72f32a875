// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clipboard.h"

/// The toolkit's clipboard. It encodes other formats only when a program asks for them, and hands
/// everything to the desktop's clipboard manager when this program ends.
class ToolkitClipboard final : public Clipboard {
public:
    void setImage(const QImage& image, const QByteArray& png) override;
    void setText(const QString& text) override;
    void setFiles(const QStringList& paths) override;
};
