#include "window/window_platform.h"

#include "app/recent_files.h"
#include "system/save_file.h"
#include "window/ability_window.h"
#include "window/about_window.h"
#include "window/long_text.h"
#include "window/main_window.h"
#include "window/status_window.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

namespace Hesperin {

namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::Question:
        break;
    }
    return QMessageBox::Question;
}

/// "Creature files (*.xdb)|*.xdb" gives the description that a dialog of the toolkit wants.
QString FilterText(const FileDialog& dialog) {
    const QString description = dialog.Filter.section(u'|', 0, 0);
    return description.section(u'(', 0, 0) + u'(' + dialog.Filter.section(u'|', 1, 1) + u')';
}

/// The folder of the file used last.
QString LastFolder(const ProgramPlaces& places) {
    const QStringList files = RecentFiles(places);
    const QString folder = files.isEmpty() ? QString() : QFileInfo(files.constFirst()).path();
    return QFileInfo(folder).isDir() ? folder : QString();
}

void Prepare(QFileDialog& shown, const FileDialog& dialog, const QString& lastFolder,
             QFileDialog::AcceptMode mode) {
    shown.setObjectName(dialog.Name());
    shown.setAcceptMode(mode);
    shown.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                      : QFileDialog::AnyFile);
    shown.setNameFilter(FilterText(dialog));
    shown.setDefaultSuffix(dialog.DefaultExtension);
    const QFileInfo last(dialog.FileName);
    shown.setDirectory(last.isAbsolute()      ? last.absolutePath()
                       : lastFolder.isEmpty() ? dialog.InitialDirectory
                                              : lastFolder);
    if (!dialog.FileName.isEmpty())
        shown.selectFile(last.fileName());
}

} // namespace

WindowPlatform::WindowPlatform() : instance(SettingsFolderOfUser()) {}

void WindowPlatform::Attach(Program& owner, MainWindow& front) {
    program = &owner;
    window = &front;
}

void WindowPlatform::ShowMessage(BoxIcon icon, const QString& title, const QString& text) {
    QMessageBox box(IconOf(icon), title, text, QMessageBox::Ok, window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool WindowPlatform::AskYesNo(const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    if (program != nullptr) {
        box.button(QMessageBox::Yes)->setText(program->state.messages.MsgYes);
        box.button(QMessageBox::No)->setText(program->state.messages.MsgNo);
    }
    return box.exec() == QMessageBox::Yes;
}

int WindowPlatform::Ask(const Question& question) {
    QMessageBox box(QMessageBox::Question, question.title, question.text, QMessageBox::NoButton,
                    window);
    box.setTextFormat(Qt::PlainText);
    QList<QAbstractButton*> buttons;
    for (const QString& caption : question.buttons)
        buttons.append(box.addButton(caption, QMessageBox::ActionRole));
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons[question.standard]));
    box.setEscapeButton(buttons[question.cancel]);
    LetLongTextScroll(box);
    box.exec();
    const qsizetype pressed = buttons.indexOf(box.clickedButton());
    return pressed < 0 ? question.cancel : static_cast<int>(pressed);
}

bool WindowPlatform::ShowOpenDialog(FileDialog& dialog) {
    QFileDialog shown(window);
    Prepare(shown, dialog, LastFolder(Places()), QFileDialog::AcceptOpen);
    if (shown.exec() != QDialog::Accepted)
        return false;
    dialog.FileName = shown.selectedFiles().value(0);
    return true;
}

bool WindowPlatform::ShowSaveDialog(FileDialog& dialog) {
    QFileDialog shown(window);
    shown.setOption(QFileDialog::DontConfirmOverwrite); // the program asks, and tells more
    Prepare(shown, dialog, LastFolder(Places()), QFileDialog::AcceptSave);
    while (shown.exec() == QDialog::Accepted) {
        const QString path = shown.selectedFiles().value(0);
        auto refusal = SaveRefusal(path);
        if (!refusal) {
            dialog.FileName = path;
            return true;
        }
        refusal->file = path;
        refusal->doing = Error::Doing::Saving;
        program->Refuse(*refusal);
    }
    return false;
}

void WindowPlatform::SetFocus(Control& control) {
    if (window == nullptr)
        return;
    if (QWidget* widget = window->WidgetOf(control))
        widget->setFocus();
}

void WindowPlatform::Open(SecondaryWindow which) {
    switch (which) {
    case SecondaryWindow::About:
        new AboutWindow(*program, window);
        break;
    case SecondaryWindow::AbilityInformation:
        new AbilityWindow(*program, window);
        break;
    case SecondaryWindow::Survey:
        return window->ShowSurvey();
    case SecondaryWindow::Explanation:
        return window->ShowExplanation();
    case SecondaryWindow::Solve:
        return window->ShowSolve();
    }
}

void WindowPlatform::FindAbility() {
    window->FindAbility();
}

void WindowPlatform::ShowStatus(const QString& message) {
    new StatusWindow(*program, window, message);
}

bool WindowPlatform::StartProgram(const QString& name) {
    const QString path = QStandardPaths::findExecutable(name);
    return !path.isEmpty() && QProcess::startDetached(path, {});
}

QStringList WindowPlatform::CalculatorNames() const {
#ifdef Q_OS_WIN
    return {QStringLiteral("calc.exe")};
#else
    return {QStringLiteral("gnome-calculator"), QStringLiteral("kcalc"),
            QStringLiteral("mate-calc"),        QStringLiteral("galculator"),
            QStringLiteral("qalculate-gtk"),    QStringLiteral("xcalc")};
#endif
}

QString WindowPlatform::ProgramFolder() const {
    return QCoreApplication::applicationDirPath();
}

void WindowPlatform::EndProcess() {
    window->LetGo();
    QCoreApplication::exit(0);
}

} // namespace Hesperin
