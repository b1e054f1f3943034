// Plays what tests/data/window tells that hands do to the window, and expects what it shows then.
#include "support/cases_file.h"
#include "window/agreement.h"

#include <QClipboard>
#include <QTextEdit>

namespace Hesperin {

namespace {

class Hands {
public:
    /// Does what stands in a line, with " ; " between, and gives what its "show" show. What the window shows then must
    /// agree with its controls.
    QString Do(const QString& line) {
        QString shown;
        for (const QString& act : line.split(" ; ")) {
            const QString rest = act.section(' ', 1);
            const QStringList words = rest.split(' ');
            if (act.startsWith("show "))
                shown += Shown(words) + '\n';
            else if (act.startsWith("start "))
                use.reset(), use = std::make_unique<WindowInUse>(words[0] == "RU" ? Russian : English);
            else if (const auto known = acts.constFind(act.section(' ', 0, 0)); known != acts.constEnd())
                (*known)(words, rest);
            else
                ADD_FAILURE() << "no such act: " << act.toStdString();
        }
        const QString disagreements = use->Second() ? QString() : Disagreements(*use);
        return QString(shown + disagreements).replace(use->folder.path(), "FOLDER");
    }

private:
    QString Shown(const QStringList& words) {
        const QString& what = words[0];
        if (what == "focus")
            return QApplication::focusWidget()->objectName();
        if (what == "page")
            return QString::number(use->Bar().currentIndex());
        if (what == "title")
            return use->window->windowTitle();
        if (what == "boxes")
            return std::exchange(use->answers.told, {}).join('\n');
        if (what == "clipboard")
            return QGuiApplication::clipboard()->text();
        if (what == "found")
            return ShownFound();
        if (what == "name")
            return use->Find(words[1]).accessibleName();
        if (what == "file")
            return ShownFile(ReadAll(use->Path(words[1])));
        return what == "second" ? ShownSecond() : use->form.Find(what)->Shown();
    }

    QString ShownFound() const {
        QTest::qWait(1);
        const auto* count = use->window->findChild<QLabel*>("FindAbility.Count");
        return count != nullptr && count->isVisible() ? count->text() : "none";
    }

    QString ShownFile(const QByteArray& bytes) const {
        return bytes == (use->form.RTBData.Text() + "\r\n").toUtf8() ? "as on the page" : QString(bytes).left(80);
    }

    QString ShownSecond() const {
        const QDialog* dialog = use->Second();
        if (dialog == nullptr)
            return "none";
        QStringList shown{
            QString("%1 %2, %3 wide").arg(dialog->objectName(), dialog->windowTitle()).arg(dialog->width())};
        for (const QWidget* widget : dialog->findChildren<QWidget*>())
            if (const auto* text = qobject_cast<const QTextEdit*>(widget))
                shown.append(text->toPlainText() + (text->isReadOnly() ? "" : ", may be changed"));
            else if (const QVariant words = widget->property("text"); words.isValid())
                shown.append(words.toString());
        return shown.join('\n');
    }

    /// What a step of the program would do.
    void Set(const QString& name, const QString& value) {
        Control& control = *use->form.Find(name);
        if (auto* field = dynamic_cast<TextField*>(&control))
            field->SetText(value);
        else if (auto* list = dynamic_cast<ComboBox*>(&control))
            list->SetText(value);
        else if (auto* box = dynamic_cast<CheckBox*>(&control))
            box->SetTicked(value == "on");
        else if (auto* page = dynamic_cast<TabPage*>(&control))
            page->Switch(value == "on");
        else if (auto* text = dynamic_cast<StoredText*>(&control))
            text->SetText(value);
        else
            dynamic_cast<Captioned&>(control).SetCaption(value);
    }

    /// The focus goes to another window and comes back.
    void LeaveAndReturn() {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        other.close();
        use->ComeForward();
    }

    using Words = const QStringList&;
    const QHash<QString, std::function<void(Words words, const QString& rest)>> acts{
        {"answer", [this](Words words, auto&) { use->answers.paths = words; }},
        {"say",
         [this](Words words, auto&) {
             use->answers.yes = words[0] == "yes";
             use->answers.ownButton = words[0];
         }},
        {"at",
         [this](Words words, auto&) {
             use->Click(use->Find(words[0]), {words[1].toInt(), words[2].toInt()});
         }},
        {"box", [this](Words words, auto&) { use->ClickBox(words[0]); }},
        {"choose", [this](Words words, auto&) { use->Choose(words[0], words[1].toInt()); }},
        {"click", [this](Words words, auto&) { use->Press(words[0]); }},
        {"enable", [this](Words words, auto&) { use->form.Find(words[0])->SetEnabled(words[1] == "on"); }},
        {"focus", [this](Words words, auto&) { use->Focus(words[0]); }},
        {"key", [this](Words, auto& keys) { use->Key(QKeySequence(keys)[0]); }},
        {"keys", [this](Words, auto& keys) { use->Keys(keys.toUtf8()); }},
        {"language", [this](Words words, auto&) { use->PickLanguage(words[0] == "RU" ? Russian : English); }},
        {"leave", [this](Words, auto&) { LeaveAndReturn(); }},
        {"option", [this](Words words, auto&) { use->ClickOption(words[0], words[1].toInt()); }},
        {"page", [this](Words words, auto&) { use->ShowPage(words[0].toInt()); }},
        {"pick", [this](Words words, auto&) { use->Pick(words); }},
        {"right", [this](Words words, auto&) { use->ClickBox(words[0], Qt::RightButton); }},
        {"set", [this](Words words, auto& rest) { Set(words[0], rest.section(' ', 1)); }},
        {"type", [this](Words words, auto& rest) { use->Type(words[0], rest.section(' ', 1).toUtf8()); }},
        {"write", [this](Words words, auto& rest) { use->Write(words[0], rest.section(' ', 1).toUtf8()); }},
    };
    std::unique_ptr<WindowInUse> use;
};

TEST(Scripts, ShowWhatTheyTell) {
    QApplication::setKeyboardInputInterval(0); // each letter begins a new search in a list
    const QStringList scripts = QDir(TALMIR_SOURCE_DIR "/tests/data/window").entryList({"*.txt"});
    EXPECT_FALSE(scripts.isEmpty());
    for (const QString& script : scripts) {
        Hands hands;
        ExpectCases("window/" + script, [&](const QString& line) { return hands.Do(line); });
    }
}

} // namespace

} // namespace Hesperin
