#pragma once

#include "support/test_program.h"
#include "app/handlers/form_load.h"
#include "app/handlers/info_menu.h"
#include "window/box_answers.h"
#include "window/main_window.h"
#include "window/tab_view.h"
#include "window/window_platform.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QTabBar>
#include <QWindow>

#include <functional>
#include <memory>

namespace Hesperin {

/// The window's own platform, in the folders of one test.
class PlatformInFolder : public WindowPlatform {
public:
    explicit PlatformInFolder(const QString& path) : folder(path) {}
    QString ProgramFolder() const override { return folder; }
    QString SettingsFolder() const override { return folder + "/settings"; }
    QStringList CalculatorNames() const override { return {"no-such-calculator"}; }

private:
    QString folder;
};

/// The program in its window as after a start by the user, and what the user's hands do with it:
/// mouse and keys go to the window, which must find the widget that they are meant for.
class WindowInUse {
public:
    /// `prepare` may put files into the folder before the start; `screen` is what its task bars leave.
    explicit WindowInUse(
        std::uint8_t language = English,
        const std::function<void(const QString& folder)>& prepare = [](const QString&) {},
        QSize screen = {1920, 1080}) {
        Write("lang.ini", language == English ? "EN" : "RU");
        prepare(folder.path());
        if (!Form_Load(program, {std::nullopt, false})) // as at a start, the window reads the texts
            qFatal("another instance runs");
        window = std::make_unique<MainWindow>(program, screen);
        platform.Attach(program, *window);
        window->show();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window did not come up");
        QTest::qWait(1); // the first picture, and what the window does after it
        dynamic_cast<TabView&>(Find("Tablus")).BuildAll();
    }

    QTemporaryDir folder;
    PlatformInFolder platform{folder.path()};
    Program program{platform};
    MainForm& form = program.form;
    SharedState& state = program.state;
    std::unique_ptr<MainWindow> window;
    BoxAnswers answers;

    QString Path(const QString& name) const { return folder.filePath(name); }

    void Write(const QString& name, const QByteArray& bytes) const { WriteFile(Path(name), bytes); }

    template <typename T = QWidget>
    T& Find(const QString& name) const {
        auto* found = window->findChild<T*>(name);
        if (found == nullptr)
            qFatal("no %s", qPrintable(name));
        return *found;
    }

    /// Clicks at a place of the widget, or in its middle.
    static void Click(QWidget& widget, QPoint place = {}, Qt::MouseButton button = Qt::LeftButton) {
        QWidget& top = *widget.window();
        const QPoint inside = place.isNull() ? widget.rect().center() : place;
        QTest::mouseClick(top.windowHandle(), button, {}, widget.mapTo(&top, inside));
    }

    void Press(const QString& button) const { Click(Find(button)); }

    void ShowPage(int page) const {
        auto& bar = Find<QTabBar>("Tablus.Bar");
        Click(bar, bar.tabRect(page).center());
    }

    /// Clicks on the square of a check box of the page in front.
    void ClickBox(const QString& name) const {
        auto& box = Find(name);
        Click(box, {8, box.height() / 2});
    }

    /// Clicks on option 0 to 4 of a selector of the page in front.
    void ClickOption(const QString& name, int option) const { Click(Find(name), OptionPlace(option)); }

    static QPoint OptionPlace(int option) { return {16 * option + 6, 6}; }

    /// Opens the menus and picks the entry, by their names.
    void Pick(const QStringList& path) const {
        QWidget* holder = window->menuBar();
        for (const QString& name : path) {
            auto& action = Find<QAction>(name);
            const auto* menu = qobject_cast<QMenu*>(holder);
            const QRect place = menu ? menu->actionGeometry(&action) : window->menuBar()->actionGeometry(&action);
            Click(*holder, place.center());
            QMenu* next = action.menu();
            if (next != nullptr && !QTest::qWaitFor([&] { return next->isVisible(); }))
                qFatal("the menu %s did not open", qPrintable(name));
            holder = next;
        }
    }

    void PickLanguage(const QString& entry) const { Pick({"mnuOptions", "mnuLanguage", entry}); }

    /// Gives the window the focus again after a box, as a window manager does.
    void ComeForward() const {
        if (QApplication::activeWindow() != nullptr)
            return;
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window did not come forward");
    }

    /// Keys for whatever has the focus.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        ComeForward();
        QTest::keyClick(window->windowHandle(), key, modifiers);
    }

    void Keys(const QByteArray& typed) const {
        for (const char key : typed)
            QTest::keyClick(window->windowHandle(), key);
    }

    /// Clicks into the field and replaces its text by typing.
    void Type(const QString& field, const QByteArray& typed) const {
        Click(Find(field));
        Key(Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_Delete);
        Keys(typed);
    }

    /// Chooses an entry of a list in its drop-down, by mouse.
    void Choose(const QString& name, int entry) const {
        auto& list = Find<QComboBox>(name);
        Click(list);
        QAbstractItemView& entries = *list.view();
        if (!QTest::qWaitFor([&] { return entries.isVisible(); }))
            qFatal("the list %s did not drop down", qPrintable(name));
        const QModelIndex index = entries.model()->index(entry, 0);
        entries.scrollTo(index);
        Click(*entries.viewport(), {8, entries.visualRect(index).center().y()});
    }
};

/// Which options of a selector are drawn as chosen.
inline QList<int> OptionsInPicture(QWidget& selector) {
    const QImage picture = selector.grab().toImage();
    const auto group = selector.isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QRgb empty = selector.palette().color(group, QPalette::Base).rgb();
    QList<int> chosen;
    for (int option = 0; option < 5; ++option)
        if (picture.pixel(WindowInUse::OptionPlace(option)) != empty)
            chosen.append(option);
    return chosen;
}

} // namespace Hesperin
