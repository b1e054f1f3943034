#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace Hesperin {

enum class BoxIcon : std::uint8_t { Critical, Information, Question };

/// A message box that the program shows.
struct ShownMessage {
    BoxIcon icon;
    QString title;
    QString text;
};

/// A question with buttons of its own.
struct Question {
    QString title;
    QString text;
    QStringList buttons;
    int standard;          ///< place of the button that Enter presses
    int cancel;            ///< of the one that Escape presses
    int answerOfScript;    ///< of the one that a script presses
    bool ofDialog = false; ///< it belongs to a file dialog; a script doesn't tell of it
};

} // namespace Hesperin
