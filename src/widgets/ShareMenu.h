// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clipboard.h"
#include "platform/PlatformWords.h"
#include "platform/Workspace.h"
#include "widgets/Theme.h"

#include <QMenu>

#include <functional>

/// Where a picture can be sent to from any surface: a mail, another program, the clipboard as a
/// file, and the file manager. Desktops here have no such menu of their own.
class ShareMenu final : public QMenu {
    Q_OBJECT

public:
    struct Means {
        const Themes& themes;
        Workspace& workspace;
        Clipboard& clipboard;
        const PlatformWords& words;
    };

    /// What is shared: the path of a saved file, else of a temporary one. Asked when the user has
    /// chosen where it goes.
    using File = std::function<Result<QString>()>;

    ShareMenu(const Means& means, File file, QWidget* parent = nullptr);

    /// Opens it below a control, or above where there is no room.
    void openBelow(const QWidget& control);

Q_SIGNALS:
    /// What became of it, for a status line: also when it failed. Empty when the user cancelled or
    /// chose nothing. Once for each time it is opened.
    void told(const QString& status);
    void shared(); ///< It went somewhere. To look at the file where it lies does not count.

private:
    using Action = std::function<Pending<void>(const QString& path)>;

    enum class Counts { AsShared, AsLook };
    void add(const QString& symbol, const QString& title, const QString& status, Counts counts,
        const Action& action);
    void adoptTheme();
    void tellIfNothingChosen();

    const Means m_means;
    const File m_file;
    bool m_isChosen = false;
};
