#include "window/toolkit_words.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace Hesperin {

void HaveToolkitSpeakRussian(bool russian) {
    QCoreApplication* application = QCoreApplication::instance();
    auto* words = application->findChild<QTranslator*>();
    if (russian == (words != nullptr))
        return;
    if (!russian) {
        delete words; // the application lets go of it
        return;
    }
    words = new QTranslator(application);
    const QString beside = QCoreApplication::applicationDirPath() + QLatin1String("/translations");
    for (const QString& folder : {beside, QLibraryInfo::path(QLibraryInfo::TranslationsPath)})
        if (words->load(QStringLiteral("qtbase_ru"), folder)) {
            QCoreApplication::installTranslator(words);
            return;
        }
} // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns the words

} // namespace Hesperin
