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

#include <vector>

namespace Hesperin {

/// Answers the message boxes and file dialogs that come up, as a user would, and keeps what they
/// said.
class BoxAnswers {
public:
    struct Box {
        QMessageBox::Icon icon;
        QString title;
        QString text;
        int width;
    };

    BoxAnswers() {
        QObject::connect(&timer, &QTimer::timeout, [this] { Answer(); });
        timer.start(1);
    }

    bool yes = true;   ///< the answer to every question
    QStringList paths; ///< what is typed into the file dialogs, in order; then they are cancelled

    std::vector<Box> boxes;
    QStringList offeredNames; ///< the file name that each dialog came up with
    QStringList buttonTexts;  ///< of the last box

    /// Texts of the boxes since the last call.
    QStringList TakeTexts() {
        QStringList texts;
        for (const Box& box : std::exchange(boxes, {}))
            texts.append(box.text);
        return texts;
    }

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
                if (alive != nullptr)
                    Handle(front);
                inHand.remove(front);
            },
            Qt::QueuedConnection);
    }

    void Handle(QWidget* front) {
        if (auto* box = qobject_cast<QMessageBox*>(front))
            AnswerBox(*box);
        else if (auto* dialog = qobject_cast<QFileDialog*>(front))
            AnswerDialog(*dialog);
    }

    void AnswerBox(QMessageBox& box) {
        boxes.push_back({box.icon(), box.windowTitle(), box.text(), box.width()});
        buttonTexts.clear();
        for (const QAbstractButton* button : box.buttons())
            buttonTexts.append(button->text());
        QAbstractButton* answer = box.button(yes ? QMessageBox::Yes : QMessageBox::No);
        QTest::mouseClick(answer != nullptr ? answer : box.button(QMessageBox::Ok), Qt::LeftButton);
    }

    void AnswerDialog(QFileDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
        offeredNames.append(name->text());
        const QString path = paths.isEmpty() ? QString() : paths.takeFirst();
        const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
        const auto accept = opens ? QDialogButtonBox::Open : QDialogButtonBox::Save;
        name->setText(path);
        auto* buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
        const auto pressed = path.isEmpty() ? QDialogButtonBox::Cancel : accept;
        QTest::mouseClick(buttons->button(pressed), Qt::LeftButton);
    }

    QTimer timer;
    QSet<QWidget*> inHand;
};

} // namespace Hesperin
