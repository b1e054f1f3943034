#include "system/replacement_file.h"

#ifdef Q_OS_UNIX

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Hesperin {

struct ReplacementFile::Members {
    QByteArray target;
    QByteArray folder;
    QByteArray ownName; ///< before it takes the place; empty: none
    struct stat old {};
    bool hasOld = false;
    int handle = -1;

    /// The mode of a file that is made: what the user's mask leaves, or nobody else's business.
    mode_t FirstMode() const {
        constexpr mode_t any = 0666;
        constexpr mode_t owners = 0600;
        return hasOld ? owners : any;
    }

    /// Where a file without a name can be given one; some processes can't get there.
    QByteArray PathOfNameless() const { return "/proc/self/fd/" + QByteArray::number(handle); }

    QByteArray RandomName() const {
        constexpr qsizetype mostOfTheName = 60; // so that the whole is never too long
        const QString name = QFileInfo(QFile::decodeName(target)).fileName().left(mostOfTheName);
        const auto number = QRandomGenerator::global()->bounded(36U * 36 * 36 * 36 * 36 * 36 / 2);
        return folder + '/' + QFile::encodeName(name) + '.' +
               QByteArray::number(number, 36).rightJustified(6, '0');
    }

    /// Gives the file a name of its own, by `nameIt`, which tells whether it could.
    template <typename NameIt>
    int TakeOwnName(NameIt nameIt) {
        constexpr int tries = 100;
        for (int left = tries; left > 0; --left) {
            const QByteArray name = RandomName();
            if (nameIt(name.constData())) {
                ownName = name;
                return 0;
            }
            if (errno != EEXIST)
                return errno;
        }
        return EEXIST;
    }
};

ReplacementFile::ReplacementFile(const QString& target) : m(std::make_unique<Members>()) {
    m->target = QFile::encodeName(target);
    m->folder = QFile::encodeName(QFileInfo(target).path());
    m->hasOld = ::stat(m->target.constData(), &m->old) == 0;
}

ReplacementFile::~ReplacementFile() {
    if (m->handle >= 0)
        ::close(m->handle);
    if (!m->ownName.isEmpty())
        ::unlink(m->ownName.constData());
}

int ReplacementFile::Refusal() const {
    // Not only the mode counts: a whole disk may be read-only.
    const int error = ::access(m->target.constData(), W_OK) == 0 ? 0 : errno;
    return error == ENOENT || error == ELOOP ? 0 : error; // a link that leads nowhere is replaced
}

bool ReplacementFile::OldHasOtherNames() const {
    return m->hasOld && m->old.st_nlink > 1;
}

int ReplacementFile::Create() {
#ifdef O_TMPFILE
    m->handle = ::open(m->folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, m->FirstMode());
    if (m->handle < 0 && errno != EOPNOTSUPP && errno != EISDIR)
        return errno;
    if (m->handle >= 0) {
        if (::access(m->PathOfNameless().constData(), F_OK) == 0)
            return 0;
        ::close(m->handle);
    }
#endif
    return m->TakeOwnName([this](const char* name) {
        m->handle = ::open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, m->FirstMode());
        return m->handle >= 0;
    });
}

bool ReplacementFile::KeepOwnerAndRights() {
    if (!m->hasOld)
        return true;
    constexpr mode_t allRights = 07777;
    constexpr mode_t plainRights = 0777;
    constexpr int groups = 3; // bits between the rights of others and those of the group
    struct stat made {};
    if (::fstat(m->handle, &made) != 0)
        return false;
    const uid_t newOwner = made.st_uid == m->old.st_uid ? static_cast<uid_t>(-1) : m->old.st_uid;
    const gid_t newGroup = made.st_gid == m->old.st_gid ? static_cast<gid_t>(-1) : m->old.st_gid;
    const auto give = [this](uid_t owner, gid_t group) {
        return ::fchown(m->handle, owner, group) == 0;
    };
    const bool same = made.st_uid == m->old.st_uid && made.st_gid == m->old.st_gid;
    const bool group = same || give(newOwner, newGroup) || give(static_cast<uid_t>(-1), newGroup);
    mode_t mode = m->old.st_mode & allRights;
    if (!group) // the group is another one now
        mode = (mode & ~(S_IRWXG | 0U)) | ((mode & S_IRWXO) << groups);
    if (::fchmod(m->handle, mode) != 0)
        ::fchmod(m->handle, mode & plainRights);
    return ::fstat(m->handle, &made) == 0 && made.st_uid == m->old.st_uid &&
           made.st_gid == m->old.st_gid && made.st_mode == m->old.st_mode;
}

int ReplacementFile::Write(const QByteArray& bytes) {
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written = ::write(m->handle, bytes.constData() + done,
                                        static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR)
            return errno;
        done += std::max<ssize_t>(written, 0);
    }
    return 0;
}

int ReplacementFile::Sync() {
    return ::fdatasync(m->handle) == 0 ? 0 : errno;
}

int ReplacementFile::TakePlace() {
    if (m->ownName.isEmpty()) {
        const QByteArray file = m->PathOfNameless();
        const int error = m->TakeOwnName([&file](const char* name) {
            return ::linkat(AT_FDCWD, file.constData(), AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
        });
        if (error != 0)
            return error;
    }
    if (::rename(m->ownName.constData(), m->target.constData()) != 0)
        return errno;
    m->ownName.clear();
    return 0;
}

int ReplacementFile::SyncFolder() const {
    const int folder = ::open(m->folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return errno;
    const int error = ::fsync(folder) == 0 ? 0 : errno;
    ::close(folder);
    return error == EINVAL ? 0 : error; // this kind of disk knows no such thing
}

} // namespace Hesperin

#endif
