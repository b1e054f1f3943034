// What went wrong, as a value. It travels up as it is, over one channel, and becomes words in the
// current language where a person reads it.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

namespace Hesperin {

struct Error {
    enum class What : std::uint8_t {
        // A file can't be read or written.
        FileMissing,
        FolderMissing,
        IsFolder,
        NotAFile, ///< a device, a pipe, a socket
        NotAllowed,
        InUse, ///< another program holds it
        DiskFull,
        DiskReadOnly,
        NameTooLong,
        NameUndecodable, ///< it is no UTF-8
        FileTooLarge,    ///< `expected` is the limit in bytes
        SystemSays,      ///< `value` is what the system says, in the system's language
        NotAnArchive,    ///< or an empty one
        ArchiveDamaged,
        DamagedInArchive,
        Encrypted,
        PackedOtherwise, ///< in an archive, by the method with the number `value`
        // A document can't be used.
        NotWellFormed,   ///< `value` is the parser's word for it, in English
        EndsEarly,       ///< it stops in the middle
        WrongRoot,       ///< `value` is the root found
        TextTooLong,     ///< `expected` is the longest text in UTF-16 units
        EndlessMarkup,   ///< a tag or a document type has no end
        NameChanges,     ///< read back, the creature would have the name `value`
        EncodingUnknown, ///< `value` is its name
        // An edit in place can't be done.
        ElementUnknown,   ///< `value` is its name, `expected` the nearest known one
        AttributeLacking, ///< `value` is its name, `expected` those that the file has
        ElementTwice,     ///< `value` is its name, the line the second one's
        HoldsElements,    ///< and no text of its own: the element `value`
        IsAList,          ///< the element `value`, whose items are changed one by one
        FromEntity,       ///< the content of the element `value` comes out of an entity
        NoWholeNumber,    ///< `value` stands in or for the element `element`
        NothingToReckon,  ///< with: `element` is empty, or isn't there
        NoNumber,         ///< `value`, with which `element` should be reckoned
        TooManyDigits,    ///< `value` has more than `expected`
        ResultTooLong,    ///< `element` would have more than `expected` digits
        BelowZero,        ///< `element` would become `value`
        NoFlag,           ///< `value` for the element `element`: true or false was expected
        WordUnknown,      ///< `value` for the element `element`, `expected` the nearest known one
        TownUnknown, ///< `value` is no town of the game, `expected` the nearest; taken all the same
        NoList,      ///< `value` holds no list of items
        CountsAs,    ///< in the computed figures: `element` as `expected`, not as `value`
        NoPower,     ///< Power is 0, so that there are no figures
        NoScale,     ///< tier `value` has no scale for `element`
        CantBeSpelled, ///< `value` has a character that no document can hold
        // A table can't be applied.
        EndlessQuote,   ///< a quote that nothing closes
        ColumnLacking,  ///< the column `value`
        ColumnUnknown,  ///< `value` is its heading, `expected` the nearest known one
        ColumnOnlyTold, ///< `value` is its heading: an element that tables don't change
        ColumnTwice,    ///< `value` is its heading
        RowNamesNone,   ///< no file
        RowTwice,       ///< the rows `value` are of one file
        RowTooLong,     ///< it has `value` cells, the heading `expected`
        CellEmpty,      ///< where the file has `value`
        NeverWritten,   ///< it is an archive
        UnsafeEdit,     ///< the edited file would not be what was asked for
        Conflict,       ///< someone else has changed the same in the file: `value` says what
    };

    /// What the program was about to do with `file`.
    enum class Doing : std::uint8_t { Nothing, Opening, Saving };

    What what;
    QString value{};    ///< what stands there
    QString expected{}; ///< what should
    QString file{};     ///< empty: none, or known where the error is told
    Doing doing = Doing::Nothing;
    qint64 line = 0;   ///< from 1; 0 when no place can be named
    qint64 column = 0; ///< from 1
    QString element{}; ///< the innermost one that is open there
    qint64 row = 0;    ///< of a table, from 1; 0: none. `element` is the column's heading then

    bool operator==(const Error&) const = default;
};

/// What an operation without a result gives: nothing when it was done.
using Failure = std::optional<Error>;

/// A T, or why there is none.
template <typename T>
class Result {
public:
    Result(T value) : content(std::move(value)) {}
    Result(Error error) : content(std::move(error)) {}

    explicit operator bool() const { return std::holds_alternative<T>(content); }

    // Only where there is one.
    T& operator*() { return *std::get_if<T>(&content); }
    const T& operator*() const { return *std::get_if<T>(&content); }
    T* operator->() { return std::get_if<T>(&content); }
    const T* operator->() const { return std::get_if<T>(&content); }

    // Only where there is none.
    Error& Why() { return *std::get_if<Error>(&content); }
    const Error& Why() const { return *std::get_if<Error>(&content); }

private:
    std::variant<T, Error> content;
};

} // namespace Hesperin
