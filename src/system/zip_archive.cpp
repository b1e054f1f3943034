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

ZipArchive::ZipArchive(const QString& place, const QStringList& endings) : path(place) {
    auto reader = std::make_unique<Reader>(path);
    const bool isOpen = reader->zip != nullptr;
    if (!isOpen && reader->file.error() != QFileDevice::NoError)
        fault = ErrorOf(reader->file.errorString());
    else if (!isOpen)
        fault = Error{Error::What::NotAnArchive};
    idle.push_back(std::move(reader));
    if (isOpen)
        ReadNames(endings);
}

ZipArchive::~ZipArchive() = default;

QString ZipArchive::WithSlashes(QString name) {
    name.replace(u'\\', u'/');
    while (name.startsWith(QLatin1String("./")))
        name.remove(0, 2);
    while (name.startsWith(u'/'))
        name.remove(0, 1);
    return name;
}

/// Of several entries of one name the last counts, as it was added last.
void ZipArchive::ReadNames(const QStringList& endings) {
    const unzFile zip = idle.front()->zip;
    std::array<char, 1024> name{}; // a longer one is none of ours
    int step = unzGoToFirstFile(zip);
    for (; step == UNZ_OK; step = unzGoToNextFile(zip)) {
        unz_file_info64 info{};
        if (unzGetCurrentFileInfo64(zip, &info, name.data(), name.size(), nullptr, 0, nullptr, 0) !=
            UNZ_OK)
            break;
        const auto length = static_cast<std::size_t>(info.size_filename);
        if (length >= name.size())
            continue;
        const QString spelled =
            WithSlashes(QString::fromUtf8(name.data(), static_cast<qsizetype>(length)));
        const QString folded = spelled.toCaseFolded();
        unz64_file_pos place{};
        const bool wanted = std::any_of(endings.begin(), endings.end(),
                                        [&](const QString& end) { return folded.endsWith(end); });
        if (wanted && unzGetFilePos64(zip, &place) == UNZ_OK)
            places.insert(folded, {place.pos_in_zip_directory, place.num_of_file,
                                   spelled == folded ? QString() : spelled});
    }
    if (step != UNZ_END_OF_LIST_OF_FILE)
        fault = Error{Error::What::ArchiveDamaged};
}

QStringList ZipArchive::Names() const {
    QStringList names;
    names.reserve(places.size());
    for (auto entry = places.begin(); entry != places.end(); ++entry)
        names.append(entry->spelled.isEmpty() ? entry.key() : entry->spelled);
    return names;
}

/// The size that the archive tells bounds what is unpacked, so that no more than `limit` ever is.
Result<QByteArray> ZipArchive::Unpack(Reader& reader, const QString& name, qint64 limit,
                                      Wish wish) const {
    constexpr uLong encrypted = 1;
    const Error damaged{Error::What::DamagedInArchive};
    const auto place = places.constFind(Folded(name));
    if (place == places.constEnd() || reader.zip == nullptr)
        return damaged;
    const unz64_file_pos position{place->inDirectory, place->number};
    unz_file_info64 info{};
    if (unzGoToFilePos64(reader.zip, &position) != UNZ_OK ||
        unzGetCurrentFileInfo64(reader.zip, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        return damaged;
    if ((info.flag & encrypted) != 0)
        return Error{Error::What::Encrypted};
    if (info.compression_method != 0 && info.compression_method != Z_DEFLATED)
        return Error{Error::What::PackedOtherwise, QString::number(info.compression_method)};
    const bool larger = info.uncompressed_size > static_cast<ZPOS64_T>(limit);
    if (larger && wish == Wish::Whole)
        return Error{Error::What::FileTooLarge, {}, QString::number(limit)};
    if (unzOpenCurrentFile(reader.zip) != UNZ_OK)
        return damaged;
    const qint64 size = larger ? limit : static_cast<qint64>(info.uncompressed_size);
    QByteArray bytes(size, Qt::Uninitialized);
    const int count =
        unzReadCurrentFile(reader.zip, bytes.data(), static_cast<unsigned>(bytes.size()));
    const int closed = unzCloseCurrentFile(reader.zip); // compares the checksum of a whole file
    if (count != size || closed != UNZ_OK)
        return damaged;
    return bytes;
}

/// By a reader that no other thread is using.
Result<QByteArray> ZipArchive::UnpackByAny(const QString& name, qint64 limit, Wish wish) const {
    std::unique_ptr<Reader> reader;
    {
        const std::scoped_lock lock(mutex);
        if (!idle.empty()) {
            reader = std::move(idle.back());
            idle.pop_back();
        }
    }
    if (!reader)
        reader = std::make_unique<Reader>(path);
    auto bytes = Unpack(*reader, name, limit, wish);
    const std::scoped_lock lock(mutex);
    idle.push_back(std::move(reader));
    return bytes;
}

Result<QByteArray> ZipArchive::Read(const QString& name, qint64 limit) const {
    return UnpackByAny(name, limit, Wish::Whole);
}

Result<QByteArray> ZipArchive::ReadStart(const QString& name, qint64 count) const {
    return UnpackByAny(name, count, Wish::Start);
}

} // namespace Hesperin
