#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace Hesperin {

/// A new file that is to take the place of `target`, which is no link, in one step. Until then it
/// lies in the same folder, without a name where the system knows such files; if it never takes the
/// place it is removed. Operations that give a number give the system's number of an error, 0 for
/// none.
class ReplacementFile {
public:
    explicit ReplacementFile(const QString& target);
    ~ReplacementFile();
    Q_DISABLE_COPY(ReplacementFile)

    /// Why an old file may not be replaced by this user; 0 also where there is none.
    int Refusal() const;

    /// Whether the old file has other names (hard links), which will keep it.
    bool OldHasOtherNames() const;

    /// Makes the empty file.
    int Create();

    /// Gives it owner and rights of the old file, if there is one. False: they could not be kept.
    /// Of the rights those stay that open the file to nobody new.
    bool KeepOwnerAndRights();

    int Write(const QByteArray& bytes);

    /// Waits until the content is on the disk.
    int Sync();

    int TakePlace();

    /// Waits until the change of names is on the disk; 0 where the system knows no such thing.
    int SyncFolder() const;

private:
    struct Members;
    std::unique_ptr<Members> m;
};

} // namespace Hesperin
