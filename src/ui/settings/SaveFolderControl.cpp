// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SaveFolderControl.h"

#include "widgets/Mirrored.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int nameWidth = 210; // Points.

/// As people write paths.
QString shortened(const QString& folder)
{
    const QString home = QDir::homePath();
    return folder.startsWith(home + u'/') ? u"~"_s + folder.mid(home.size()) : folder;
}

} // namespace

SaveFolderControl::SaveFolderControl(const Themes& themes, Prefs& prefs)
    : m_prefs(prefs)
    , m_name(new TextLabel(themes, TextStyle::Body, TextLabel::Role::Secondary))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(Space::inner);
    m_name->setFixedWidth(nameWidth);
    m_name->setAlignment(endSide() | Qt::AlignVCenter);
    row->addWidget(m_name);
    auto* button = new QPushButton(tr("Choose…"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &SaveFolderControl::choose);
    row->addWidget(button);
    setFocusProxy(button);
    show(m_prefs.saveFolder());
    connect(&m_prefs, &Prefs::changed, this, [this](const QString& key) {
        if (key == QLatin1String(Prefs::keys.saveFolder.name))
            show(m_prefs.saveFolder());
    });
}

void SaveFolderControl::show(const QString& folder)
{
    m_name->setText(shortened(folder));
    m_name->setToolTip(folder);
}

void SaveFolderControl::choose()
{
    auto* dialog = new QFileDialog(this, tr("Save captures in"), m_prefs.saveFolder());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, this,
        [this](const QString& folder) { m_prefs.set(Prefs::keys.saveFolder, folder); });
    dialog->open();
}
