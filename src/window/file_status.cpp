#include "window/file_status.h"

#include "app/unsaved.h"
#include "creature_files/document.h"
#include "system/read_file.h"
#include "text/fill.h"
#include "window/fonts.h"
#include "window/palette.h"

#include <QFileInfo>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr int Gap = 6;
constexpr int MarkWidth = 16;

} // namespace

FileStatus::FileStatus(Program& owner, QMenuBar& menuBar,
                       std::function<void(const QString&)> opener)
    : program(owner), menus(menuBar), mark(new QLabel(QStringLiteral("\u25CF"), &menus)),
      bar(new QWidget(&menus)), words(new QLabel(bar)), reload(new QPushButton(bar)),
      keep(new QPushButton(bar)), open(std::move(opener)), watched([this] { Look(); }) {
    mark->setObjectName(QStringLiteral("NotSaved"));
    mark->setAlignment(Qt::AlignCenter);
    mark->setGeometry(menus.width() - MarkWidth - Gap, 0, MarkWidth, menus.height());
    bar->setObjectName(QStringLiteral("ChangedOnDisk"));
    bar->setAutoFillBackground(true);
    bar->setBackgroundRole(QPalette::Window); // a menu bar hands down roles of its own
    words->setForegroundRole(QPalette::WindowText);
    words->setObjectName(QStringLiteral("ChangedOnDisk.Words"));
    words->setTextFormat(Qt::PlainText);
    reload->setObjectName(QStringLiteral("ChangedOnDisk.Reload"));
    keep->setObjectName(QStringLiteral("ChangedOnDisk.Keep"));
    for (QWidget* part :
         {static_cast<QWidget*>(words), static_cast<QWidget*>(reload), static_cast<QWidget*>(keep)})
        part->setFont(BoxFont());
    QObject::connect(reload, &QPushButton::clicked, bar, [this] {
        if (program.form.frmMain.Enabled() && program.state.baseline)
            open(program.state.baseline->path);
    });
    QObject::connect(keep, &QPushButton::clicked, bar, [this] { Keep(); });
    mark->hide();
    bar->hide();
    Follow();
}

void FileStatus::Follow() {
    const Messages& messages = program.state.messages;
    const auto& baseline = program.state.baseline;
    mark->setToolTip(messages.MsgNotSaved);
    mark->setAccessibleName(messages.MsgNotSaved);
    mark->setVisible(HasUnsaved(program));
    const QString path = baseline ? baseline->path : QString();
    const QByteArray now = baseline ? baseline->bytes : QByteArray();
    if (path != file || now != bytes) {
        file = path;
        bytes = now;
        kept.reset();
        watched.Watch(file);
        ShowBar(false);
        Look();
    } else {
        ShowBar(!bar->isHidden()); // in the current language
    }
}

/// The file, or something in its folder, has changed. What is there for a moment only, while it is
/// replaced, will be looked at again.
void FileStatus::Look() {
    const auto& baseline = program.state.baseline;
    if (!baseline)
        return;
    const auto content = ReadFile(baseline->path, LargestCreatureFile);
    if (!content)
        return;
    onDisk = *content;
    ShowBar(onDisk != baseline->bytes && onDisk != kept);
}

void FileStatus::Keep() {
    kept = onDisk;
    ShowBar(false);
}

/// The bar takes the room that the menus leave; what doesn't fit of the file's name is left out.
void FileStatus::ShowBar(bool shown) {
    if (!shown || !program.state.baseline)
        return bar->hide();
    const Messages& messages = program.state.messages;
    reload->setText(messages.MsgReload);
    keep->setText(messages.MsgKeep);
    const QRect last = menus.actionGeometry(menus.actions().constLast());
    const int right = menus.width() - MarkWidth - 2 * Gap;
    const int room = right - last.right() - 2 * Gap;
    const auto widthOf = [](const QPushButton& button) {
        constexpr int margins = 20;
        return QFontMetrics(button.font()).horizontalAdvance(button.text()) + margins;
    };
    const int buttons = widthOf(*reload) + widthOf(*keep) + 3 * Gap;
    const QFontMetrics metrics(words->font());
    const auto withName = [&](const QString& name) {
        return Fill(messages.MsgChangedOnDisk, {name});
    };
    const int forName = room - buttons - metrics.horizontalAdvance(withName({}));
    words->setText(withName(metrics.elidedText(QFileInfo(program.state.baseline->path).fileName(),
                                               Qt::ElideMiddle, std::max(forName, 0))));
    const int wordsWidth = metrics.horizontalAdvance(words->text());
    const int height = menus.height() - 2;
    const int width = wordsWidth + buttons + Gap;
    bar->setGeometry(right - width, 1, width, height);
    bar->setToolTip(program.state.baseline->path);
    words->setGeometry(Gap, 0, wordsWidth, height);
    reload->setGeometry(wordsWidth + 2 * Gap, 0, widthOf(*reload), height);
    keep->setGeometry(reload->geometry().right() + 1 + Gap, 0, widthOf(*keep), height);
    QPalette colours = bar->palette();
    colours.setColor(QPalette::Window, QColor(Colours().Accent));
    bar->setPalette(colours);
    QPalette light = words->palette();
    light.setColor(QPalette::WindowText, QColor(Colours().Field));
    words->setPalette(light);
    bar->show();
    bar->raise();
}

} // namespace Hesperin
