#include "window/findings_model.h"

#include "reports/column_words.h"
#include "reports/finding_text.h"
#include "window/palette.h"

#include <QColor>

namespace Hesperin {

void FindingsModel::LookAgain() {
    beginResetModel();
    shown = view.FindingsShown();
    endResetModel();
}

const Finding& FindingsModel::At(int row) const {
    return view.Whole().findings[shown[static_cast<std::size_t>(row)]];
}

int FindingsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown.size());
}

int FindingsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : PartCount;
}

QString FindingsModel::Text(const Finding& finding, Part part) const {
    switch (part) {
    case Kind:
        return SeverityText(program.state.messages, finding.severity);
    case File:
        return finding.file.section(u'/', -1); // the tool tip has all of it
    case Line:
        return finding.line == 0 ? QString() : QString::number(finding.line);
    default:
        return FindingText(program.state.messages, finding);
    }
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount({}))
        return {};
    const Finding& finding = At(index.row());
    const auto part = static_cast<Part>(index.column());
    if (role == Qt::DisplayRole)
        return Text(finding, part);
    if (role == Qt::ToolTipRole)
        return (part == Words ? Text(finding, part) : finding.file).toHtmlEscaped();
    if (role == Qt::ForegroundRole && part == Kind && finding.severity == Severity::Error)
        return QColor(Colours().Rolvane);
    return {};
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const Messages& messages = program.state.messages;
    switch (section) {
    case Kind:
        return messages.SurveyWindowFindingSeverity;
    case File:
        return ColumnWords(Column::File, program.state.LanguageId);
    case Line:
        return messages.SurveyWindowFindingPlace;
    default:
        return messages.SurveyWindowFindingWords;
    }
}

} // namespace Hesperin
