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

} // namespace

QString ObstacleText(const SharedState& state, const FileObstacle& obstacle) {
    return Fill(state.*Sentences[static_cast<std::size_t>(obstacle.kind)], {obstacle.detail});
}

} // namespace Hesperin
