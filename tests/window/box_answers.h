#pragma once

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>

#include <functional>

namespace Hesperin {

/// Answers the message boxes and file dialogs that come up, as a user would, and keeps what they
/// said.
class BoxAnswers {
public:
    BoxAnswers() {
        QObject::connect(&timer, &QTimer::timeout, [this] { Answer(); });
        timer.start(1);
    }

    bool yes = true;                        ///< the answer to every question
    std::function<void(QMessageBox&)> look; ///< sees each box before it is answered
    QString ownButton;                      ///< the one pressed where a question has it
    QStringList paths;                      ///< what is typed into the file dialogs, in order; then they are cancelled

    QStringList told; ///< a line for each: "Critical|Warning!|...", the buttons after a question; "file?|", the name
                      ///< and the cancelling button
    int width = 0;    ///< of the last box

private:
    void Answer() {
        QWidget* front = QApplication::activeModalWidget();
        if (front == nullptr || !front->isVisible() || inHand.contains(front))
            return;
        inHand.insert(front);
        // Not inside the timer's own event: an answer may bring up a further box, to be answered
        // first.
        QMetaObject::invokeMethod(
            &timer,
            [this, front, alive = QPointer<QWidget>(front)] {
                if (auto* box = qobject_cast<QMessageBox*>(alive))
                    AnswerBox(*box);
                else if (auto* dialog = qobject_cast<QFileDialog*>(alive))
                    AnswerDialog(*dialog);
                inHand.remove(front);
            },
            Qt::QueuedConnection);
    }

    void AnswerBox(QMessageBox& box) {
        const QString icon = QVariant::fromValue(box.icon()).toString();
        told.append(icon + '|' + box.windowTitle() + '|' + box.text().section('\n', 0, 0));
        width = box.width();
        if (look)
            look(box);
        QStringList buttons;
        for (const QAbstractButton* button : box.buttons())
            buttons.append(button->text());
        buttons.sort();
        if (buttons.size() > 1)
            told.last() += '|' + buttons.join(' ');
        QAbstractButton* answer = box.button(yes ? QMessageBox::Yes : QMessageBox::No);
        if (answer == nullptr)
            answer = box.button(QMessageBox::Ok);
        for (QAbstractButton* own : box.buttons())
            if (own->text() == ownButton)
                answer = own;
        for (QAbstractButton* own : box.buttons())
            if (answer == nullptr && (own == box.escapeButton()) != yes)
                answer = own;
        QTest::mouseClick(answer, Qt::LeftButton);
    }

    void AnswerDialog(QFileDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
        auto* buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
        told.append("file?|" + name->text() + '|' + buttons->button(QDialogButtonBox::Cancel)->text().remove('&'));
        const QString path = paths.isEmpty() ? QString() : paths.takeFirst();
        name->setText(path);
        const auto pressed = path.isEmpty()                                   ? QDialogButtonBox::Cancel
                             : dialog.acceptMode() == QFileDialog::AcceptOpen ? QDialogButtonBox::Open
                                                                              : QDialogButtonBox::Save;
        QTest::mouseClick(buttons->button(pressed), Qt::LeftButton);
    }

    QTimer timer;
    QSet<QWidget*> inHand;
};

} // namespace Hesperin
