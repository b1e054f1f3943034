#include "window/recovery_watch.h"

#include "app/recovery.h"
#include "text/fill.h"

#include <QDir>

namespace Hesperin {

RecoveryWatch::RecoveryWatch(Program& owner) : program(owner), copy(program.platform.DataFolder()) {
    constexpr int seconds = 2;
    timer.setSingleShot(true);
    timer.setInterval(seconds * 1000);
    QObject::connect(&timer, &QTimer::timeout, [this] { Keep(); });
}

void RecoveryWatch::Follow() {
    if (!ended && !timer.isActive())
        timer.start();
}

void RecoveryWatch::Offer() {
    const auto left = copy.Left();
    if (!left)
        return;
    const Messages& messages = program.state.messages;
    const bool wanted =
        left->isEmpty() || program.platform.AskYesNo(messages.MsgRecoverTitle, messages.MsgRecover);
    if (wanted && Recover(program, *left)) {
        kept = *left;
        return;
    }
    const QString aside = copy.PutAside();
    if (wanted)
        program.Warn(BoxIcon::Information,
                     Fill(messages.MsgRecoveryUnread, {QDir::toNativeSeparators(aside)}));
}

void RecoveryWatch::Keep() {
    const QByteArray text = RecoveryText(program);
    if (text == kept)
        return;
    if (text.isEmpty())
        copy.Remove();
    else if (!copy.Write(text))
        return timer.start(); // and tries again
    kept = text;
}

void RecoveryWatch::End() {
    ended = true;
    timer.stop();
    copy.Remove();
}

} // namespace Hesperin
