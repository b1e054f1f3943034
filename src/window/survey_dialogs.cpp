#include "window/survey_dialogs.h"

#include <QFileDialog>

namespace Hesperin {

namespace {

QStringList Answer(QFileDialog& dialog, const QString& folder) {
    dialog.setObjectName(QStringLiteral("SurveyDialog"));
    dialog.setDirectory(folder);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

} // namespace

QStringList AskForFolder(QWidget& parent, const QString& folder) {
    QFileDialog dialog(&parent);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return Answer(dialog, folder);
}

QStringList AskForArchives(QWidget& parent, const QString& folder, const Messages& messages) {
    QFileDialog dialog(&parent);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilter(messages.SurveyWindowArchiveFiles +
                         QLatin1String(" (*.pak *.h5u *.PAK *.H5U)"));
    return Answer(dialog, folder);
}

QString AskForFile(QWidget& parent, const QString& folder, const FileKind& kind) {
    QFileDialog dialog(&parent);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(QStringLiteral("%1 (*.%2)").arg(kind.words, kind.extension));
    dialog.setDefaultSuffix(kind.extension);
    return Answer(dialog, folder).value(0);
}

} // namespace Hesperin
