// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/ShareMenu.h"

#include "widgets/Icons.h"
#include "widgets/Mirrored.h"

#include <QPointer>
#include <QScreen>

using namespace Qt::StringLiterals;

ShareMenu::ShareMenu(const Means& means, File file, QWidget* parent)
    : QMenu(parent)
    , m_means(means)
    , m_file(std::move(file))
{
    add(u"envelope"_s, tr("Mail…"), tr("Attached to a new mail"), Counts::AsShared,
        [this](const QString& path) { return m_means.workspace.mail(path); });
    add(u"arrow.up.forward.app"_s, tr("Open With…"), tr("Opened in another program"),
        Counts::AsShared, [this](const QString& path) { return m_means.workspace.openWith(path); });
    addSeparator();
    add(u"doc.on.doc"_s, tr("Copy File"), tr("File copied to clipboard"), Counts::AsShared,
        [this](const QString& path) {
            m_means.clipboard.setFiles({path});
            return Pending<void>::answered({});
        });
    add(u"folder"_s, m_means.words.showInFolder, {}, Counts::AsLook,
        [this](const QString& path) { return m_means.workspace.reveal(path); });
    // The toolkit hides a menu before it tells what was chosen.
    connect(this, &QMenu::aboutToHide, this, &ShareMenu::tellIfNothingChosen, Qt::QueuedConnection);
    connect(&m_means.themes, &Themes::changed, this, &ShareMenu::adoptTheme);
    adoptTheme();
}

void ShareMenu::openBelow(const QWidget& control)
{
    m_isChosen = false;
    const QRect at(control.mapToGlobal(QPoint()), control.size());
    const QRect screen = control.screen()->availableGeometry();
    const int height = sizeHint().height();
    const bool fits = at.bottom() + Space::tiny + height <= screen.bottom();
    const QPoint below = placeBelow(control, *this) + QPoint(0, Space::tiny);
    popup(fits ? below : QPoint(below.x(), at.top() - Space::tiny - height));
}

void ShareMenu::add(const QString& symbol, const QString& title, const QString& status,
    Counts counts, const Action& action)
{
    auto* item = addAction(title);
    item->setData(symbol);
    connect(item, &QAction::triggered, this, [this, status, counts, action] {
        m_isChosen = true;
        const auto file = m_file();
        if (!file) {
            Q_EMIT told(file.error().message);
            return;
        }
        const QPointer<ShareMenu> menu(this);
        action(*file).then([menu, status, counts](const Result<void>& result) {
            if (!menu)
                return;
            if (result && counts == Counts::AsShared)
                Q_EMIT menu->shared();
            Q_EMIT menu->told(result ? status : result.error().message);
        });
    });
}

void ShareMenu::tellIfNothingChosen()
{
    if (!m_isChosen)
        Q_EMIT told({});
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
