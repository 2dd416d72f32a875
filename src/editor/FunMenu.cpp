// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/FunMenu.h"

#include "editor/Stickers.h"

FunMenu::FunMenu(QWidget* parent)
    : QMenu(parent)
{
    setTitle(tr("Fun"));
    addAction(tr("🐸  Meme caption…"), this, &FunMenu::memeChosen);
    QMenu* const covers = addMenu(tr("🥸  Cover faces with emoji"));
    for (const QString& emoji : Stickers::faceCovers())
        covers->addAction(emoji, this, [this, emoji] { Q_EMIT coverChosen(emoji); });
    addAction(tr("🎲  Random mix"), this, [this] { Q_EMIT coverChosen({}); });
    addAction(tr("😎  Emoji sticker…"), this, &FunMenu::stickersChosen);
}
