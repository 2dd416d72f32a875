// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/gallery/Gallery.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A language in which every text is its own in brackets. What has none was never translated.
class Bracketed final : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return u"⟦%1⟧"_s.arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

/// Names, signs and what the user wrote are the same in every language.
bool needsNoTranslation(QString text)
{
    static const QRegularExpression same(
        // Names of the program, of sounds and of what the scenes show.
        u"Pixmallow|Pixie|Terminal|Files|Pop|Tink|Glass|Chirp|Zap|Coin|Sparkle|Boom|Screen Capture"
        "|PNG|JPEG|XP|/home/\\S+|#[0-9a-f]{6}"
        // What the scenes make up.
        "|Update to 1.3|Show in Folder|Copied|Saved|slay|certified screenshot moment|Downloading…"
        "|A new skin.|Captures of several screens .*|The region's edges .*"_s);
    static const QRegularExpression words(u"\\p{L}{3,}"_s);
    return !text.remove(same).contains(words);
}

QStringList textsOf(const QWidget& widget)
{
    QStringList texts {widget.toolTip(), widget.accessibleName(), widget.accessibleDescription(),
        widget.windowTitle()};
    for (const QAction* action : widget.actions())
        texts << action->text() << action->toolTip();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        texts << label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        texts << button->text();
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
        texts << field->placeholderText();
    if (const auto* choice = qobject_cast<const QComboBox*>(&widget))
        for (int i = 0; i < choice->count(); ++i)
            texts << choice->itemText(i);
    if (const auto* list = qobject_cast<const QListWidget*>(&widget))
        for (int i = 0; i < list->count(); ++i)
            texts << list->item(i)->text();
    return texts;
}

/// Those whose texts are no surface's but made up for the picture.
const QStringList samples {u"buttons"_s, u"letters"_s, u"controls"_s, u"menu"_s, u"stickers"_s,
    u"phrases"_s, u"toast"_s, u"toast-failed"_s, u"pop-up"_s};

} // namespace

TEST(TranslatedTest, everyTextOfEverySurfaceIsTranslated)
{
    Bracketed brackets;
    ASSERT_TRUE(QCoreApplication::installTranslator(&brackets));
    GalleryWorld world;
    int found = 0;
    for (const Scene& scene : scenes()) {
        if (samples.contains(scene.name))
            continue;
        const auto surface = scene.make(world);
        surface->ensurePolished();
        QList<QWidget*> widgets = surface->findChildren<QWidget*>();
        widgets << surface.get();
        for (const QWidget* widget : std::as_const(widgets))
            for (const QString& text : textsOf(*widget)) {
                const bool isTranslated = text.contains(u'⟦');
                found += isTranslated;
                EXPECT_TRUE(isTranslated || needsNoTranslation(text))
                    << scene.name.toStdString() << ", " << widget->metaObject()->className() << ": "
                    << text.toStdString();
            }
    }
    EXPECT_GT(found, 200); // So they were looked for at all.
}
