#pragma once

#include "localisation/messages.h"

#include <QStringList>

class QWidget;

namespace Hesperin {

// What the window of the survey asks for. All dialogs start in `folder`; an empty answer is a
// cancelled one.

QStringList AskForFolder(QWidget& parent, const QString& folder);
QStringList AskForArchives(QWidget& parent, const QString& folder, const Messages& messages);

/// A file to be written, of the kind described in words and by its extension.
struct FileKind {
    QString words;
    QString extension;
};

QString AskForFile(QWidget& parent, const QString& folder, const FileKind& kind);

} // namespace Hesperin
