#include "system/zip_archive.h"

#include "system/system_error.h"

#include <minizip/unzip.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace Hesperin {

namespace {

QFile& FileBehind(voidpf stream) {
    return *static_cast<QFile*>(stream);
}

voidpf OpenFile(voidpf file, const void*, int) {
    return FileBehind(file).open(QIODevice::ReadOnly) ? file : nullptr;
}

uLong ReadBytes(voidpf, voidpf file, void* bytes, uLong count) {
    const qint64 done =
        FileBehind(file).read(static_cast<char*>(bytes), static_cast<qint64>(count));
    return done < 0 ? 0 : static_cast<uLong>(done);
}

uLong WriteBytes(voidpf, voidpf, const void*, uLong) {
    return 0;
}

ZPOS64_T Tell(voidpf, voidpf file) {
    return static_cast<ZPOS64_T>(FileBehind(file).pos());
}

long Seek(voidpf, voidpf stream, ZPOS64_T offset, int origin) {
    QFile& file = FileBehind(stream);
    const qint64 base = origin == ZLIB_FILEFUNC_SEEK_CUR   ? file.pos()
                        : origin == ZLIB_FILEFUNC_SEEK_END ? file.size()
                                                           : 0;
    return file.seek(base + static_cast<qint64>(offset)) ? 0 : -1;
}

int CloseFile(voidpf, voidpf file) {
    FileBehind(file).close();
    return 0;
}

int HasError(voidpf, voidpf file) {
    return FileBehind(file).error() == QFileDevice::NoError ? 0 : -1;
}

} // namespace

/// The toolkit opens the file: a name with any letters, on any system.
struct ZipArchive::Reader {
    explicit Reader(const QString& path)
        : file(path), calls{OpenFile, ReadBytes, WriteBytes, Tell,
                            Seek,     CloseFile, HasError,   &file},
          zip(unzOpen2_64(nullptr, &calls)) {}
    ~Reader() {
        if (zip != nullptr)
            unzClose(zip);
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    QFile file;
    zlib_filefunc64_def calls;
    unzFile zip;
};

ZipArchive::ZipArchive(const QString& path, const QStringList& endings)
    : reader(std::make_unique<Reader>(path)) {
    if (reader->zip != nullptr)
        ReadNames(endings);
    else if (reader->file.error() != QFileDevice::NoError)
        fault = ErrorOf(reader->file.errorString());
    else
        fault = Error{Error::What::NotAnArchive};
}

ZipArchive::~ZipArchive() = default;

QString ZipArchive::Folded(QString name) {
    name.replace(u'\\', u'/');
    while (name.startsWith(QLatin1String("./")))
        name.remove(0, 2);
    while (name.startsWith(u'/'))
        name.remove(0, 1);
    return name.toCaseFolded();
}

/// Of several entries of one name the last counts, as it was added last.
void ZipArchive::ReadNames(const QStringList& endings) {
    std::array<char, 1024> name{}; // a longer one is none of ours
    int step = unzGoToFirstFile(reader->zip);
    for (; step == UNZ_OK; step = unzGoToNextFile(reader->zip)) {
        unz_file_info64 info{};
        if (unzGetCurrentFileInfo64(reader->zip, &info, name.data(), name.size(), nullptr, 0,
                                    nullptr, 0) != UNZ_OK)
            break;
        const auto length = static_cast<std::size_t>(info.size_filename);
        if (length >= name.size())
            continue;
        const QString folded =
            Folded(QString::fromUtf8(name.data(), static_cast<qsizetype>(length)));
        unz64_file_pos place{};
        const bool wanted = std::any_of(endings.begin(), endings.end(),
                                        [&](const QString& end) { return folded.endsWith(end); });
        if (wanted && unzGetFilePos64(reader->zip, &place) == UNZ_OK)
            places.insert(folded, {place.pos_in_zip_directory, place.num_of_file});
    }
    if (step != UNZ_END_OF_LIST_OF_FILE)
        fault = Error{Error::What::ArchiveDamaged};
}

Result<QByteArray> ZipArchive::Read(const QString& name, qint64 limit) {
    constexpr uLong encrypted = 1;
    const Error damaged{Error::What::DamagedInArchive};
    const Place place = places.value(Folded(name));
    const unz64_file_pos position{place.inDirectory, place.number};
    unz_file_info64 info{};
    if (unzGoToFilePos64(reader->zip, &position) != UNZ_OK ||
        unzGetCurrentFileInfo64(reader->zip, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        return damaged;
    if ((info.flag & encrypted) != 0)
        return Error{Error::What::Encrypted};
    if (unzOpenCurrentFile(reader->zip) != UNZ_OK)
        return damaged;
    QByteArray bytes(limit + 1, Qt::Uninitialized); // whatever size the archive tells
    const int count =
        unzReadCurrentFile(reader->zip, bytes.data(), static_cast<unsigned>(bytes.size()));
    const int closed = unzCloseCurrentFile(reader->zip); // compares the checksum
    if (count > limit)
        return Error{Error::What::FileTooLarge, {}, QString::number(limit)};
    if (count < 0 || closed != UNZ_OK)
        return damaged;
    bytes.truncate(count);
    return bytes;
}

} // namespace Hesperin
