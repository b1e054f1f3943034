#include "creature_files/document.h"

#include "localisation/string_tables.h"

namespace Hesperin {

namespace {

QString Reason(const SharedState& state, const ReadProblem& problem) {
    switch (problem.kind) {
    case ReadProblem::Kind::Missing:
        return state.MsgFileMissing;
    case ReadProblem::Kind::IsFolder:
        return state.MsgFileIsFolder;
    case ReadProblem::Kind::TooLarge:
        return Fill(state.MsgFileTooLarge, {QString::number(LargestCreatureFile)});
    case ReadProblem::Kind::Unreadable:
        break;
    }
    return Fill(state.MsgFileUnreadable, {problem.reason});
}

QString Reason(const SharedState& state, const XmlProblem& problem) {
    const QString place =
        Fill(state.MsgAtLine, {QString::number(problem.line), QString::number(problem.column)});
    switch (problem.kind) {
    case XmlProblem::Kind::EndsEarly:
        return state.MsgEndsEarly + place;
    case XmlProblem::Kind::WrongRoot:
        return Fill(state.MsgWrongRoot, {problem.detail}) + place;
    case XmlProblem::Kind::TooLong:
        return Fill(state.MsgTextTooLong, {QString::number(LongestCreatureText)});
    case XmlProblem::Kind::NotWellFormed:
        break;
    }
    return Fill(state.MsgNotWellFormed, {problem.detail}) + place;
}

} // namespace

std::variant<QString, OpenProblem> NormaliseCreature(const QByteArray& bytes) {
    auto document = NormaliseXml(bytes, u"Creature", LongestCreatureText);
    if (const auto* problem = std::get_if<XmlProblem>(&document))
        return *problem;
    return std::get<QString>(std::move(document));
}

std::variant<QString, OpenProblem> LoadCreatureDocument(const QString& path) {
    const auto content = ReadFile(path, LargestCreatureFile);
    if (const auto* problem = std::get_if<ReadProblem>(&content))
        return *problem;
    return NormaliseCreature(std::get<QByteArray>(content));
}

QString OpenProblemText(const SharedState& state, const QString& path, const OpenProblem& problem) {
    const QString reason =
        std::visit([&state](const auto& cause) { return Reason(state, cause); }, problem);
    return Fill(state.MsgFileRefused, {path, reason});
}

} // namespace Hesperin
