#include "window/faces.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QStringList>

namespace Hesperin {

namespace {

/// The first of `families` that is installed, or the last.
QString Installed(const QStringList& families) {
    for (const QString& family : families)
        if (QFontDatabase::hasFamily(family))
            return family;
    return families.constLast();
}

QFont Chancery(int pixelSize, QFont::Weight weight) {
    static const QString family =
        Installed({QStringLiteral("Monotype Corsiva"), QStringLiteral("Z003"), QStringLiteral("URW Chancery L"),
                   QStringLiteral("Apple Chancery"), QStringLiteral("serif")});
    QFont face(family);
    face.setStyleHint(QFont::Serif);
    face.setPixelSize(pixelSize);
    face.setWeight(weight);
    face.setItalic(true);
    return face;
}

} // namespace

QFont CaptionFace() { return Chancery(15, QFont::Normal); }

QFont HeadingFace() { return Chancery(15, QFont::Bold); }

QFont FigureFace() { return Chancery(19, QFont::Bold); }

QFont NameFace() { return Chancery(16, QFont::Bold); }

QFont ReadingFace() { return Chancery(32, QFont::Normal); }

QFont BoxFace() {
    static const QString family = Installed({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                                             QGuiApplication::font().family()});
    QFont face(family);
    face.setStyleHint(QFont::SansSerif);
    face.setPixelSize(11);
    return face;
}

QFont FileFace() {
    QFont face = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    face.setPixelSize(13);
    return face;
}

QFont FittingFace(const QFont& face, const QString& text, int width) {
    constexpr int smallest = 7;
    QFont fitting = face;
    while (fitting.pixelSize() > smallest && QFontMetricsF(fitting).horizontalAdvance(text) > width)
        fitting.setPixelSize(fitting.pixelSize() - 1);
    return fitting;
}

} // namespace Hesperin
