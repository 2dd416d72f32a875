// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SoundChoice.h"

#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

SoundChoice::SoundChoice(Prefs& prefs, const Sounds& sounds)
    : m_prefs(prefs)
    , m_sounds(sounds)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(14);
    setMaxVisibleItems(16);
    list();
    connect(&m_prefs, &Prefs::changed, this, [this](const QString& key) {
        if (key == QLatin1String(Prefs::keys.sound.name))
            list();
    });
    connect(this, &QComboBox::activated, this, &SoundChoice::take);
}

void SoundChoice::list()
{
    clear();
    QSet<QString> names;
    for (const auto& item : m_sounds.available()) {
        if (names.contains(item.name))
            continue; // The first of a name is the one that plays.
        names.insert(item.name);
        addItem(item.name == "Screen Capture"_L1 ? tr("Screen Capture") : item.name, item.name);
    }
    const QString current = m_prefs.get(Prefs::keys.sound);
    insertSeparator(count());
    if (!names.contains(current) && !current.isEmpty())
        addItem(QFileInfo(current).fileName(), current);
    addItem(tr("Choose Your Own…"));
    setCurrentIndex(findData(current));
}

void SoundChoice::take(int index)
{
    const QString name = itemData(index).toString();
    if (name.isEmpty()) {
        list(); // As long as nothing is chosen, it is as it was.
        chooseFile();
        return;
    }
    m_prefs.set(Prefs::keys.sound, name);
    Q_EMIT refused({});
    Q_EMIT chosen();
}

void SoundChoice::chooseFile()
{
    QStringList patterns;
    for (const QString& extension : Sounds::extensions())
        patterns << u"*."_s + extension;
    auto* dialog = new QFileDialog(
        this, tr("Choose a sound"), {}, tr("Sounds (%1)").arg(patterns.join(u' ')));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &SoundChoice::takeFile);
    dialog->open();
}

void SoundChoice::takeFile(const QString& path)
{
    const auto audible = m_sounds.check(path);
    Q_EMIT refused(audible ? QString() : audible.error().message);
    if (!audible)
        return;
    m_prefs.set(Prefs::keys.sound, path);
    Q_EMIT chosen();
}
