#include "window/fonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>

namespace Hesperin {

namespace {

/// A listed family carries its foundry behind it where there are several: "Z003 [urw]".
bool IsFamily(const QString& listed, const QString& family) {
    return listed == family || listed.startsWith(family + QLatin1String(" ["));
}

/// The first of `wanted` that is installed, or the last. Asks for the list of names once: a
/// question for a single name goes through all its substitutes.
QString Installed(const QStringList& wanted) {
    static const QStringList listed = QFontDatabase::families();
    for (const QString& family : wanted)
        if (std::any_of(listed.begin(), listed.end(),
                        [&family](const QString& name) { return IsFamily(name, family); }))
            return family;
    return wanted.constLast();
}

QFont Chancery(int pixelSize, QFont::Weight weight) {
    static const QString family =
        Installed({QStringLiteral("Monotype Corsiva"), QStringLiteral("Z003"),
                   QStringLiteral("URW Chancery L"), QStringLiteral("Apple Chancery"),
                   QStringLiteral("serif")});
    QFont font(family);
    font.setStyleHint(QFont::Serif);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    font.setItalic(true);
#ifdef Q_OS_LINUX
    // One picture of each letter, not one for each quarter of a pixel: 6 % of all instructions of
    // the start. Windows would draw ragged letters.
    font.setHintingPreference(QFont::PreferFullHinting);
#endif
    return font;
}

} // namespace

QFont CaptionFont() {
    return Chancery(15, QFont::Normal);
}

QFont HeadingFont() {
    return Chancery(15, QFont::Bold);
}

QFont FigureFont() {
    return Chancery(19, QFont::Bold);
}

QFont NameFont() {
    return Chancery(16, QFont::Bold);
}

QFont ReadingFont() {
    return Chancery(32, QFont::Normal);
}

QFont BoxFont() {
    static const QString family =
        Installed({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                   QGuiApplication::font().family()});
    QFont font(family);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(11);
    return font;
}

QFont FileFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(13);
    return font;
}

QFont FittingFont(const QFont& font, const QString& text, int width) {
    constexpr int smallest = 7;
    QFont fitting = font;
    // Nearly right at the first step: each size that is tried has to be loaded.
    for (qreal advance = QFontMetricsF(fitting).horizontalAdvance(text);
         advance > width && fitting.pixelSize() > smallest;
         advance = QFontMetricsF(fitting).horizontalAdvance(text)) {
        const int proportional = static_cast<int>(fitting.pixelSize() * width / advance);
        fitting.setPixelSize(std::clamp(proportional, smallest, fitting.pixelSize() - 1));
    }
    return fitting;
}

} // namespace Hesperin
