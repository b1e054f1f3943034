#pragma once

#include "system/single_instance.h"

#include <QByteArray>

#include <future>

namespace Hesperin {

/// The file in which a running program keeps what would be lost if it were cut off. One program at
/// a time keeps one in a folder; another one leaves it alone.
class RecoveryCopy {
public:
    /// `folder` need not exist yet.
    explicit RecoveryCopy(const QString& folder);

    /// What a program that was cut off has left behind. None: it left nothing, or still runs.
    /// Empty where it can't be read.
    std::optional<QByteArray> Left();

    /// Moves what was left behind out of the way, in place of what was moved there before. Gives
    /// the place where it lies now, which is the old one when it could not be moved.
    QString PutAside();

    /// Writes the copy, in its own time: a slow disk holds nobody up. What comes in the way is told
    /// to nobody. False: the last one is still being written, or nothing can be done beside the
    /// program now.
    bool Write(const QByteArray& bytes);

    /// Takes the copy away.
    void Remove();

private:
    QString folder;
    QString path;
    std::optional<SingleInstance> instance; ///< once it has been asked for
    bool IsOurs();
    std::future<void> writing;
};

} // namespace Hesperin
