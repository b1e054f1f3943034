#include "app/session.h"

#include "app/handlers/form_load.h"
#include "app/handlers/info_menu.h"
#include "app/handlers/options_menu.h"

#include <QRegularExpression>

namespace Hesperin {

namespace {

QString Expanded(QString text) {
    static const QRegularExpression repeated("(\\\\[n0]|.)\\{(\\d+)\\}");
    for (auto match = repeated.match(text); match.hasMatch(); match = repeated.match(text))
        text.replace(match.capturedStart(), match.capturedLength(),
                     match.captured(1).repeated(match.captured(2).toInt()));
    return text.replace("\\n", "\n").replace("\\0", QString(1, QChar(0)));
}

} // namespace

Session::Session() {
    QDir::setCurrent(folder.path());
    programFolder = ".";
    settingsFolder = "settings";
    Start("EN");
}

void Session::Start(const QString& language) {
    auto before = words;
    program = std::make_unique<Program>(*this);
    words = WindowSnapshot(*program).words;
    const StartOptions options{language == "RU" ? Russian : English, false};
    const bool loaded = Form_Load(*program, language.isEmpty() ? StartOptions() : options);
    words = language.isEmpty() && loaded ? std::move(before) : WindowSnapshot(*program).words;
    if (!loaded)
        Tell("it doesn't start");
}

QString Session::Outcome(const QString& line) {
    const QString quietly = "quietly ";
    const bool tells = !line.startsWith(quietly);
    told.clear();
    for (const QString& act : line.sliced(tells ? 0 : quietly.size()).split(" ; "))
        Do(act.section(' ', 0, 0), Expanded(act.section(' ', 1)));
    TellChanges();
    return tells ? told.join('\n') : QString();
}

void Session::Do(const QString& verb, const QString& all) {
    const QString name = all.section(' ', 0, 0);
    const QString rest = all.section(' ', 1);
    MainForm& form = program->form;
    Control* control = form.Find(name);
    auto* field = dynamic_cast<TextField*>(control);
    auto* list = dynamic_cast<ComboBox*>(control);
    auto* box = dynamic_cast<CheckBox*>(control);
    if (verb == "set")
        field != nullptr ? field->SetText(rest) : list->SetText(rest);
    else if (verb == "type")
        for (const QChar key : rest)
            field->Type(key.unicode());
    else if (verb == "choose")
        list->Select(rest.toShort());
    else if (verb == "tick" || verb == "untick")
        box->SetTicked(verb == "tick");
    else if (verb == "rightclick")
        box->RightClick();
    else if (verb == "option")
        dynamic_cast<MultiOption*>(control)->ClickOption(rest.toInt());
    else if (verb == "click") {
        if (dynamic_cast<Clickable*>(control)->Click())
            Tell("failed");
    } else if (verb == "drop")
        form.frmMain.Drop(all);
    else if (verb == "close")
        Tell(form.frmMain.Close() ? "may close" : "stays open");
    else if (verb == "status")
        Hesperin::ShowStatus(*program, all);
    else if (verb == "restore-contrast")
        RestoreHighContrast(*program);
    else if (verb == "value") // what an ability counts now
        program->state.AbilityCurrentValue[name.toULong()] = rest.toFloat();
    else if (verb == "start")
        Start(name);
    else if (verb == "look")
        words.clear();
    else if (verb == "show")
        Tell(words[name]);
    else
        Prepare(verb, all, name, rest);
}

void Session::Prepare(const QString& verb, const QString& all, const QString& name, const QString& rest) {
    if (verb == "answer") // to the next dialogs: a path, or to cancel them
        dialogPath = all == "cancel" ? std::optional<QString>() : all;
    else if (verb == "answer-no")
        answerYes = false;
    else if (verb == "startable")
        startable.append(name);
    else if (verb == "instance") // runs elsewhere: its lock, its computer
        otherInstance = RunningInstance{rest, name};
    else if (verb == "file")
        WriteFile(name, rest.toUtf8());
    else if (verb == "folder")
        QDir().mkpath(name);
    else if (verb == "remove")
        QFileInfo(name).isDir() ? QDir(name).removeRecursively() : QFile::remove(name);
    else if (verb == "copy") { // of the creature in the data, with a replacement
        QString text = QString::fromUtf8(ReadAll(TALMIR_SOURCE_DIR "/tests/data/app/creature.xdb")).remove('\r');
        if (const QStringList change = rest.split("=>"); change.size() == 2)
            text.replace(QRegularExpression(change[0]), change[1]);
        WriteFile(name, text.toUtf8());
    } else if (verb == "cat")
        Tell(QFile::exists(name) ? ReadAll(name) : "no such file");
    else if (verb == "grep") {
        for (const QString& line : QString::fromUtf8(ReadAll(name)).split('\n').filter(rest))
            Tell(line.trimmed());
    } else
        Tell("no such verb");
}

void Session::ShowMessage(BoxIcon icon, const QString& title, const QString& text) {
    Tell((icon == BoxIcon::Critical ? "critical box, " : "information box, ") + title + ' ' + text);
}

bool Session::AskYesNo(const QString& title, const QString& text) {
    Tell("question, " + title + ": " + text + (answerYes ? " Yes" : " No"));
    return answerYes;
}

void Session::Open(SecondaryWindow window) {
    Tell(window == SecondaryWindow::About ? "the about window opens" : "the ability window opens");
}

bool Session::StartProgram(const QString& name) {
    Tell("starts " + name);
    return startable.contains(name);
}

bool Session::Answer(const char* dialog, FileDialog& settings) {
    Tell(QString("%1 dialog: %2").arg(dialog, settings.FileName));
    settings.FileName = dialogPath.value_or(settings.FileName);
    return dialogPath.has_value();
}

void Session::Tell(QString what) { // a copy, since it may be a word that changes
    TellChanges();
    told.append(what.replace('\n', "\\n").replace('\r', "\\r"));
}

void Session::TellChanges() {
    const auto now = WindowSnapshot(*program).words;
    for (auto word = now.cbegin(); word != now.cend(); ++word)
        if (words.value(word.key()) != word.value())
            told.append(word.key() + ": " +
                        (!word.value().isEmpty()      ? word.value()
                         : word.key().endsWith(" is") ? "on"
                                                      : "-"));
    words = now;
}

} // namespace Hesperin
