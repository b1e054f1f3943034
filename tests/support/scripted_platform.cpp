#include "support/scripted_platform.h"

namespace Hesperin {

void ScriptedPlatform::ShowMessage(BoxIcon icon, const QString& title, const QString& text) {
    boxes.push_back({icon, title, text});
}

bool ScriptedPlatform::AskYesNo(const QString& title, const QString& text) {
    boxes.push_back({BoxIcon::Question, title, text});
    return answerYes;
}

int ScriptedPlatform::Ask(const Question& question) {
    const int pressed = answer.value_or(question.answerOfScript);
    if (question.ofDialog && !answer)
        return pressed;
    const QString& button = question.buttons[pressed];
    boxes.push_back(
        {BoxIcon::Question, question.title, question.text + " [" + question.buttons.join(", ") + "] " + button});
    return pressed;
}

bool ScriptedPlatform::StartProgram(const QString& name) {
    started.append(name);
    return startable.contains(name);
}

QStringList ScriptedPlatform::Texts() const {
    QStringList texts;
    for (const Box& box : boxes)
        texts.append(box.text);
    return texts;
}

bool ScriptedPlatform::Answer(FileDialog& dialog) {
    dialogFileName = dialog.FileName;
    if (dialogPath)
        dialog.FileName = *dialogPath;
    return dialogPath.has_value();
}

} // namespace Hesperin
