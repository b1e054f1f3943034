#include "localisation/error_text.h"

#include "localisation/parser_words.h"
#include "text/fill.h"
#include "text/shortened.h"

namespace Hesperin {

namespace {

using What = Error::What;

// clang-format off
/// In the order of Error::What. %1 is the value, %2 what was expected, %3 the element.
constexpr QString Messages::*Sentences[] = {
    &Messages::MsgFileMissing,
    &Messages::MsgFolderMissing,
    &Messages::MsgIsFolder,
    &Messages::MsgNotAFile,
    &Messages::MsgNotAllowed,
    &Messages::MsgFileInUse,
    &Messages::MsgDiskFull,
    &Messages::MsgDiskReadOnly,
    &Messages::MsgNameTooLong,
    &Messages::MsgNameUndecodable,
    &Messages::MsgFileTooLarge,
    &Messages::MsgSystemSays,
    &Messages::MsgNotAnArchive,
    &Messages::MsgArchiveDamaged,
    &Messages::MsgDamagedInArchive,
    &Messages::MsgEncrypted,
    &Messages::MsgPackedOtherwise,
    &Messages::MsgNotWellFormed,
    &Messages::MsgEndsEarly,
    &Messages::MsgWrongRoot,
    &Messages::MsgTextTooLong,
    &Messages::MsgEndlessMarkup,
    &Messages::MsgNameChanges,
    &Messages::MsgEncodingUnknown,
    &Messages::MsgElementUnknown,
    &Messages::MsgAttributeLacking,
    &Messages::MsgElementTwice,
    &Messages::MsgHoldsElements,
    &Messages::MsgIsAList,
    &Messages::MsgFromEntity,
    &Messages::MsgNoWholeNumber,
    &Messages::MsgNothingToReckon,
    &Messages::MsgNoNumber,
    &Messages::MsgTooManyDigits,
    &Messages::MsgResultTooLong,
    &Messages::MsgBelowZero,
    &Messages::MsgNoFlag,
    &Messages::MsgWordUnknown,
    &Messages::MsgTownUnknown,
    &Messages::MsgNoList,
    &Messages::MsgCountsAs,
    &Messages::MsgNoPower,
    &Messages::MsgNoScale,
    &Messages::MsgCantBeSpelled,
    &Messages::MsgEndlessQuote,
    &Messages::MsgColumnLacking,
    &Messages::MsgColumnUnknown,
    &Messages::MsgColumnOnlyTold,
    &Messages::MsgColumnTwice,
    &Messages::MsgRowNamesNone,
    &Messages::MsgRowTwice,
    &Messages::MsgRowTooLong,
    &Messages::MsgCellEmpty,
    &Messages::MsgNeverWritten,
    &Messages::MsgUnsafeEdit,
    &Messages::MsgUpdateConflicts,
};
static_assert(std::size(Sentences) == static_cast<std::size_t>(What::Conflict) + 1);

/// In the order of SaveNote.
constexpr QString Messages::*NoteSentences[] = {
    &Messages::MsgOtherNamesKeepOld,
    &Messages::MsgOwnerNotKept,
    &Messages::MsgMayNotLast,
};
static_assert(std::size(NoteSentences) == static_cast<std::size_t>(SaveNote::MayNotLast) + 1);
// clang-format on

QString Place(const Messages& messages, const Error& error) {
    const QString element = Shortened(error.element);
    const QString line = QString::number(error.line);
    const QString column = QString::number(error.column);
    QString place;
    if (error.line > 0 && error.column == 0)
        place = Fill(messages.MsgAtLineAlone, {line});
    else if (error.line > 0)
        place = Fill(element.isEmpty() || error.row > 0 ? messages.MsgAtLine : messages.MsgAtLineIn,
                     {line, column, element});
    if (error.row > 0)
        place += Fill(element.isEmpty() ? messages.MsgAtRow : messages.MsgAtCell,
                      {QString::number(error.row), element});
    return place;
}

/// Values and names out of files can be of any length; what the program puts together is not.
QString ShownValue(const Messages& messages, const Error& error) {
    switch (error.what) {
    case What::NotWellFormed:
        return ParserWords(messages, error.value);
    case What::RowTwice:
    case What::SystemSays:
    case What::Conflict:
        return error.value;
    default:
        return Shortened(error.value);
    }
}

} // namespace

QString ErrorReason(const Messages& messages, const Error& error) {
    const QString value = ShownValue(messages, error);
    const bool otherTooLarge =
        error.what == What::FileTooLarge && error.doing != Error::Doing::Opening;
    const auto sentence =
        otherTooLarge ? &Messages::MsgLargerThan : Sentences[static_cast<std::size_t>(error.what)];
    return Fill(messages.*sentence, {value, Shortened(error.expected), Shortened(error.element)}) +
           Place(messages, error);
}

QString ErrorText(const Messages& messages, const Error& error) {
    QString reason = ErrorReason(messages, error);
    switch (error.doing) {
    case Error::Doing::Opening:
        return Fill(messages.MsgFileRefused, {error.file, reason});
    case Error::Doing::Saving:
        return Fill(messages.MsgSaveFailed, {error.file, reason});
    case Error::Doing::Nothing:
        break;
    }
    return reason;
}

QString NotesText(const Messages& messages, const std::vector<SaveNote>& notes) {
    QStringList sentences;
    for (const SaveNote note : notes)
        sentences.append(messages.*NoteSentences[static_cast<std::size_t>(note)]);
    return sentences.join(u' ');
}

} // namespace Hesperin
