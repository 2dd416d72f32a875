// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Stickers.h"

const QStringList& Stickers::emoji()
{
    static const QStringList list = QStringLiteral(
        "💀 😭 😂 🔥 ✨ 🫶 👀 💯 🤡 👑 💅 🥺 😎 🤯 😤 🙏 "
        "🤌 ❤️ 💔 🎉 "
        "🗿 🐐 🧢 📸 ⭐ 👍 👎 ✅ ❌ ⚠️ 🤔 😍 😬 🫠 "
        "🥲 🙃 😈 🤝 🫡 🍿")
                                        .split(u' ');
    return list;
}

const QStringList& Stickers::text()
{
    static const QStringList list = QStringLiteral(
        "slay|no cap|W|L|fr fr|it's giving|POV:|main character|rent free|ate|lowkey|bestie|NPC|"
        "vibe check|say less|bet")
                                        .split(u'|');
    return list;
}

const QStringList& Stickers::faceCovers()
{
    static const QStringList list
        = QStringLiteral("😎 🫥 😂 🤡 💀 🙈 🐸 🗿").split(u' ');
    return list;
}
