// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/FunMenu.h"

#include "editor/Stickers.h"

using namespace Qt::StringLiterals;

FunMenu::FunMenu(QWidget* parent)
    : QMenu(parent)
{
    setTitle(u"Fun"_s);
    addAction(u"🐸  Meme caption…"_s, this, &FunMenu::memeChosen);
    QMenu* const covers = addMenu(u"🥸  Cover faces with emoji"_s);
    for (const QString& emoji : Stickers::faceCovers())
        covers->addAction(emoji, this, [this, emoji] { Q_EMIT coverChosen(emoji); });
    addAction(u"🎲  Random mix"_s, this, [this] { Q_EMIT coverChosen({}); });
    addAction(u"😎  Emoji sticker…"_s, this, &FunMenu::stickersChosen);
}
