// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/ShareMenu.h"

#include "widgets/Icons.h"

#include <QCoro/QCoroTask>
#include <QPointer>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

/// Passes an answer on, if there is still somebody who wants it.
QCoro::Task<> await(
    Pending<void> pending, QPointer<QObject> asker, std::function<void(Result<void>)> then)
{
    const auto result = co_await pending;
    if (asker)
        then(result);
}

} // namespace

ShareMenu::ShareMenu(const Means& means, File file, QWidget* parent)
    : QMenu(parent)
    , m_means(means)
    , m_file(std::move(file))
{
    add(u"envelope"_s, u"Mail…"_s, u"Attached to a new mail"_s, Counts::AsShared,
        [this](const QString& path) { return m_means.workspace.mail(path); });
    add(u"arrow.up.forward.app"_s, u"Open With…"_s, u"Opened in another program"_s,
        Counts::AsShared, [this](const QString& path) { return m_means.workspace.openWith(path); });
    addSeparator();
    add(u"doc.on.doc"_s, u"Copy File"_s, u"File copied to clipboard"_s, Counts::AsShared,
        [this](const QString& path) {
            m_means.clipboard.setFiles({path});
            return Pending<void>::answered({});
        });
    add(u"folder"_s, m_means.words.showInFolder, {}, Counts::AsLook,
        [this](const QString& path) { return m_means.workspace.reveal(path); });
    connect(&m_means.themes, &Themes::changed, this, &ShareMenu::adoptTheme);
    adoptTheme();
}

void ShareMenu::openBelow(const QWidget& control)
{
    const QRect at(control.mapToGlobal(QPoint()), control.size());
    const QRect screen = control.screen()->availableGeometry();
    const int height = sizeHint().height();
    const bool fits = at.bottom() + Space::tiny + height <= screen.bottom();
    popup(fits ? at.bottomLeft() + QPoint(0, Space::tiny)
               : at.topLeft() - QPoint(0, Space::tiny + height));
}

void ShareMenu::add(const QString& symbol, const QString& title, const QString& status,
    Counts counts, const Action& action)
{
    auto* item = addAction(title);
    item->setData(symbol);
    connect(item, &QAction::triggered, this, [this, status, counts, action] {
        const auto file = m_file();
        if (!file) {
            Q_EMIT told(file.error().message);
            return;
        }
        await(action(*file), this, [this, status, counts](const Result<void>& result) {
            if (result && counts == Counts::AsShared)
                Q_EMIT shared();
            const QString text = result ? status : result.error().message;
            if (!text.isEmpty()) // As when the user cancelled.
                Q_EMIT told(text);
        });
    });
}

void ShareMenu::adoptTheme()
{
    const Theme& theme = m_means.themes.current();
    setPalette(theme.palette());
    setFont(theme.font(TextStyle::Body));
    for (QAction* item : actions())
        if (!item->isSeparator())
            item->setIcon(Icons::icon(item->data().toString(), theme.text, theme.onAccent));
}
