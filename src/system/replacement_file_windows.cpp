#include "system/replacement_file.h"

#ifdef Q_OS_WIN

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <windows.h>

#include <algorithm>

namespace Hesperin {

namespace {

/// The path as the system takes it, also a long one.
std::wstring Native(const QString& path) {
    constexpr qsizetype longestPlain = 240;
    const QString native = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    const bool plain = native.size() < longestPlain || native.startsWith(QLatin1String("\\\\"));
    return (plain ? native : QLatin1String("\\\\?\\") + native).toStdWString();
}

int LastError() {
    return static_cast<int>(GetLastError());
}

HANDLE Open(const std::wstring& path, DWORD access, DWORD share, DWORD how) {
    return CreateFileW(path.c_str(), access, share, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
}

} // namespace

struct ReplacementFile::Members {
    QString path;
    std::wstring target;
    std::wstring ownName; ///< before it takes the place; empty: none
    HANDLE handle = INVALID_HANDLE_VALUE;

    void Close() {
        if (handle != INVALID_HANDLE_VALUE)
            CloseHandle(handle);
        handle = INVALID_HANDLE_VALUE;
    }
};

ReplacementFile::ReplacementFile(const QString& target) : m(std::make_unique<Members>()) {
    m->path = target;
    m->target = Native(target);
}

ReplacementFile::~ReplacementFile() {
    m->Close();
    if (!m->ownName.empty())
        DeleteFileW(m->ownName.c_str());
}

int ReplacementFile::Refusal() const {
    const DWORD attributes = GetFileAttributesW(m->target.c_str());
    const bool closed =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    return closed ? ERROR_ACCESS_DENIED : 0;
}

bool ReplacementFile::OldHasOtherNames() const {
    const HANDLE old =
        Open(m->target, 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    if (old == INVALID_HANDLE_VALUE)
        return false;
    BY_HANDLE_FILE_INFORMATION told{};
    const bool others = GetFileInformationByHandle(old, &told) != 0 && told.nNumberOfLinks > 1;
    CloseHandle(old);
    return others;
}

int ReplacementFile::Create() {
    constexpr int tries = 100;
    constexpr qsizetype mostOfTheName = 60; // so that the whole is never too long
    const QFileInfo place(m->path);
    int error = ERROR_FILE_EXISTS;
    for (int left = tries; left > 0 && error == ERROR_FILE_EXISTS; --left) {
        const auto number = QRandomGenerator::global()->bounded(36U * 36 * 36 * 36 * 36 * 36 / 2);
        const std::wstring name =
            Native(place.path() + u'/' + place.fileName().left(mostOfTheName) + u'.' +
                   QString::number(number, 36).rightJustified(6, u'0'));
        m->handle = Open(name, GENERIC_WRITE, 0, CREATE_NEW);
        if (m->handle != INVALID_HANDLE_VALUE) {
            m->ownName = name;
            return 0;
        }
        error = LastError();
    }
    return error;
}

bool ReplacementFile::KeepOwnerAndRights() {
    return true; // the folder gives them
}

int ReplacementFile::Write(const QByteArray& bytes) {
    constexpr qsizetype most = 1 << 20; // at once
    for (qsizetype done = 0; done < bytes.size();) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(most, bytes.size() - done));
        if (WriteFile(m->handle, bytes.constData() + done, size, &written, nullptr) == 0)
            return LastError();
        done += written;
    }
    return 0;
}

int ReplacementFile::Sync() {
    return FlushFileBuffers(m->handle) != 0 ? 0 : LastError();
}

int ReplacementFile::TakePlace() {
    m->Close();
    constexpr DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (MoveFileExW(m->ownName.c_str(), m->target.c_str(), how) != 0) {
        m->ownName.clear();
        return 0;
    }
    const int error = LastError();
    if (error != ERROR_ACCESS_DENIED)
        return error;
    // It denies to move over a file that is held, and tells the reason only at its opening.
    const HANDLE old = Open(m->target, GENERIC_READ | GENERIC_WRITE,
                            FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
    if (old == INVALID_HANDLE_VALUE && GetLastError() != ERROR_FILE_NOT_FOUND)
        return LastError();
    if (old != INVALID_HANDLE_VALUE)
        CloseHandle(old);
    return error;
}

int ReplacementFile::SyncFolder() const {
    return 0; // moving wrote it through
}

} // namespace Hesperin

#endif
