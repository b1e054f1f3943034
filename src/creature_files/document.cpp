#include "creature_files/document.h"

#include "localisation/obstacle_text.h"
#include "localisation/parser_words.h"
#include "localisation/string_tables.h"

namespace Hesperin {

namespace {

QString Reason(const SharedState& state, const FileObstacle& obstacle) {
    return ObstacleText(state, obstacle);
}

QString Place(const SharedState& state, const XmlProblem& problem) {
    return Fill(problem.element.isEmpty() ? state.MsgAtLine : state.MsgAtLineIn,
                {QString::number(problem.line), QString::number(problem.column), problem.element});
}

QString Reason(const SharedState& state, const XmlProblem& problem) {
    switch (problem.kind) {
    case XmlProblem::Kind::EndsEarly:
        return state.MsgEndsEarly + Place(state, problem);
    case XmlProblem::Kind::WrongRoot:
        return Fill(state.MsgWrongRoot, {problem.detail}) + Place(state, problem);
    case XmlProblem::Kind::TooLong:
        return Fill(state.MsgTextTooLong, {QString::number(LongestCreatureText)});
    case XmlProblem::Kind::NotWellFormed:
        break;
    }
    return Fill(state.MsgNotWellFormed, {ParserWords(state, problem.detail)}) +
           Place(state, problem);
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
    if (const auto* problem = std::get_if<FileObstacle>(&content))
        return *problem;
    return NormaliseCreature(std::get<QByteArray>(content));
}

QString OpenProblemReason(const SharedState& state, const OpenProblem& problem) {
    return std::visit([&state](const auto& cause) { return Reason(state, cause); }, problem);
}

QString OpenProblemText(const SharedState& state, const QString& path, const OpenProblem& problem) {
    return Fill(state.MsgFileRefused, {path, OpenProblemReason(state, problem)});
}

} // namespace Hesperin
