#include "cli/cli_platform.h"

#include <QCoreApplication>

namespace Hesperin {

void CliPlatform::ShowMessage(BoxIcon icon, const QString& title, const QString& text) {
    messages.push_back({icon, title, text});
}

bool CliPlatform::AskYesNo(const QString& title, const QString& text) {
    messages.push_back({BoxIcon::Question, title, text});
    return true;
}

int CliPlatform::Ask(const Question& question) {
    if (!question.ofDialog)
        messages.push_back({BoxIcon::Question, question.title, question.text});
    return question.answerOfScript;
}

QString CliPlatform::ProgramFolder() const {
    return QCoreApplication::applicationDirPath();
}

bool CliPlatform::Answer(FileDialog& dialog) const {
    if (dialogPath)
        dialog.FileName = *dialogPath;
    return dialogPath.has_value();
}

} // namespace Hesperin
