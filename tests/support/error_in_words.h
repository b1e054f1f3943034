#pragma once

#include "text/error.h"

#include <QStringList>

#include <ostream>

namespace Hesperin {

/// The names of Error::What.
inline const QStringList& ErrorNames() {
    static const QStringList names =
        QString("FileMissing FolderMissing IsFolder NotAFile NotAllowed InUse DiskFull DiskReadOnly NameTooLong "
                "NameUndecodable "
                "FileTooLarge SystemSays NotAnArchive ArchiveDamaged DamagedInArchive Encrypted PackedOtherwise "
                "NotWellFormed "
                "EndsEarly WrongRoot TextTooLong EndlessMarkup NameChanges")
            .split(' ');
    return names;
}

inline const QString& NameOf(Error::What what) { return ErrorNames().at(static_cast<int>(what)); }

/// The name of what went wrong; "done" when nothing did.
inline QString NameOf(const Failure& failure) { return failure ? NameOf(failure->what) : QString("done"); }

template <typename T>
QString NameOf(const Result<T>& result) {
    return result ? QString("done") : NameOf(result.Why().what);
}

} // namespace Hesperin
