#pragma once

#include "app/handlers/form_load.h"
#include "app/handlers/info_menu.h"
#include "support/test_program.h"
#include "window/box_answers.h"
#include "window/main_window.h"
#include "window/window_platform.h"

#include <gtest/gtest.h>

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
    QString DataFolder() const override { return qEnvironmentVariable("TALMIR_TEST_DATA", folder + "/data"); }
    QStringList CalculatorNames() const override { return {"no-such-calculator"}; }

private:
    QString folder;
};

/// The program in its window as after a start by the user, and what the user's hands do with it:
/// mouse and keys go to the window, which must find the widget that they are meant for.
class WindowInUse {
public:
    /// `prepare` may put files into the folder before the start; `screen` is what its task bars leave.
    explicit WindowInUse(std::uint8_t language = English,
                         const std::function<void(const QString& folder)>& prepare = {}, QSize screen = {1920, 1080}) {
        Write("lang.ini", language == English ? "EN" : "RU");
        if (prepare)
            prepare(folder.path());
        if (!Form_Load(program, {std::nullopt, false})) // as at a start, the window reads the texts
            qFatal("another instance runs");
        window = std::make_unique<MainWindow>(program, screen);
        platform.Attach(program, *window);
        window->show();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window did not come up");
        QTest::qWait(1);                       // the first picture, and what the window does after it
        for (const int page : {1, 2, 3, 4, 0}) // builds it
            Bar().setCurrentIndex(page);
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

    /// Shows every widget of the kind that shows a control to `act`, with its name; their number.
    template <typename Widget, typename Act>
    int ForEach(Act act) const {
        int count = 0;
        for (const Control* control : form.Controls())
            if (auto* widget = qobject_cast<Widget*>(window->WidgetOf(*control))) {
                SCOPED_TRACE(control->Name().toStdString());
                act(*widget);
                ++count;
            }
        return count;
    }

    /// Clicks at a place of the widget, or in its middle.
    static void Click(QWidget& widget, QPoint place = {}, Qt::MouseButton button = Qt::LeftButton) {
        QWidget& top = *widget.window();
        const QPoint inside = place.isNull() ? widget.rect().center() : place;
        QTest::mouseClick(top.windowHandle(), button, {}, widget.mapTo(&top, inside));
    }

    void Press(const QString& name) const { Click(Find(name)); }

    void Focus(const QString& name) const { Find(name).setFocus(); }

    QString Text(const QString& field) const { return Find<QLineEdit>(field).text(); }

    bool Ticked(const QString& box) const { return Find<QAbstractButton>(box).isChecked(); }

    QTabBar& Bar() const { return Find<QTabBar>("Tablus.Bar"); }

    void ShowPage(int page) const { Click(Bar(), Bar().tabRect(page).center()); }

    /// Clicks on the square of a check box of the page in front.
    void ClickBox(const QString& name, Qt::MouseButton button = Qt::LeftButton) const {
        Click(Find(name), {8, Find(name).height() / 2}, button);
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

    void PickLanguage(std::uint8_t language) const {
        Pick({"mnuOptions", "mnuLanguage", language == English ? "mnuEnglish" : "mnuRussian"});
    }

    /// The window beside the main window; null when there is none.
    QDialog* Second() const {
        for (auto* dialog : window->findChildren<QDialog*>())
            if (dialog->isVisible())
                return dialog;
        return nullptr;
    }

    /// Gives the window the focus again after a box, as a window manager does.
    void ComeForward() const {
        if (QApplication::activeWindow() != nullptr)
            return;
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window did not come forward");
    }

    /// Keys for whatever has the focus.
    void Key(QKeyCombination keys) const {
        ComeForward();
        QTest::keyClick(window->windowHandle(), keys.key(), keys.keyboardModifiers());
    }

    void Keys(const QByteArray& typed) const {
        for (const char key : typed)
            QTest::keyClick(window->windowHandle(), key);
    }

    /// Clicks into the field and replaces its text by typing.
    void Type(const QString& field, const QByteArray& typed) const {
        Press(field);
        Key(Qt::CTRL | Qt::Key_A);
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

/// Whether the program ends the application after `act`, in order.
inline bool Ends(const std::function<void()>& act) {
    constexpr int patience = 50; // milliseconds
    constexpr int goesOn = 99;
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, [] { QCoreApplication::exit(goesOn); });
    QTimer::singleShot(0, &end, [&] {
        act();
        end.start(patience);
    });
    const int code = QApplication::exec();
    EXPECT_TRUE(code == 0 || code == goesOn) << code;
    return code == 0;
}

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
