#include "localisation/obstacle_text.h"

#include "localisation/string_tables.h"

namespace Hesperin {

namespace {

/// In the order of FileObstacle::Kind.
constexpr QString SharedState::*Sentences[] = {
    &SharedState::MsgFileMissing,  &SharedState::MsgFolderMissing, &SharedState::MsgIsFolder,
    &SharedState::MsgNotAFile,     &SharedState::MsgNotAllowed,    &SharedState::MsgFileInUse,
    &SharedState::MsgDiskFull,     &SharedState::MsgDiskReadOnly,  &SharedState::MsgNameTooLong,
    &SharedState::MsgFileTooLarge, &SharedState::MsgSystemSays,
};
static_assert(std::size(Sentences) == static_cast<std::size_t>(FileObstacle::Kind::Other) + 1);

/// In the order of SaveNote.
constexpr QString SharedState::*NoteSentences[] = {
    &SharedState::MsgOtherNamesKeepOld, &SharedState::MsgOwnerNotKept, &SharedState::MsgMayNotLast};
static_assert(std::size(NoteSentences) == static_cast<std::size_t>(SaveNote::MayNotLast) + 1);

} // namespace

QString ObstacleText(const SharedState& state, const FileObstacle& obstacle) {
    return Fill(state.*Sentences[static_cast<std::size_t>(obstacle.kind)], {obstacle.detail});
}

QString NotesText(const SharedState& state, const std::vector<SaveNote>& notes) {
    QStringList sentences;
    for (const SaveNote note : notes)
        sentences.append(state.*NoteSentences[static_cast<std::size_t>(note)]);
    return sentences.join(u' ');
}

} // namespace Hesperin
