#include "reports/finding_text.h"

#include "localisation/error_text.h"
#include "localisation/languages.h"
#include "reports/check_file.h"
#include "text/fill.h"
#include "text/shortened.h"

namespace Hesperin {

namespace {

const RuleRow& RowOfRule(const Finding& finding) {
    return RuleRows[static_cast<std::size_t>(finding.rule)];
}

QString InLanguage(const Texts& texts, const Messages& messages) {
    static constexpr const char* codes[] = {"EN", "RU", "FR", "DE"};
    static_assert(std::size(codes) == std::tuple_size_v<Texts>);
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (texts[i] != nullptr && messages.LanguageCode == QLatin1String(codes[i]))
            return QString::fromUtf16(texts[i]);
    return texts[0] == nullptr ? QString() : QString::fromUtf16(texts[0]);
}

/// On one line, and not too long for it.
QString Told(const QString& value) {
    const QString line = value.simplified();
    return line.isEmpty() ? QStringLiteral("''") : Shortened(line);
}

QString SeverityName(Severity severity) {
    static constexpr const char* names[] = {"error", "warning", "note"};
    return QLatin1String(names[static_cast<std::size_t>(severity)]);
}

QString ReasonText(const Messages& messages, const Finding& finding) {
    return finding.rule == Rule::Link && finding.severity == Severity::Note
               ? messages.MsgLinksNotChecked
               : InLanguage(RowOfRule(finding).reason, messages);
}

QString FoundText(const Messages& messages, const Finding& finding) {
    if (!finding.error)
        return finding.found;
    Error error = *finding.error; // which the finding's own place follows
    error.line = 0;
    return ErrorReason(messages, error);
}

QString ExpectedText(const Messages& messages, const Finding& finding) {
    if (finding.rule == Rule::Link && finding.severity == Severity::Note)
        return {};
    const QString sentence = InLanguage(RowOfRule(finding).expected, messages);
    if (const ParameterRange* range = RangeOf(finding.element);
        range != nullptr && finding.rule == Rule::NumberRange)
        return Fill(sentence, {QString::number(range->lowest), QString::number(range->highest)});
    return sentence.contains(u"%1") && finding.expected.isEmpty()
               ? QString()
               : Fill(sentence, {finding.expected});
}

} // namespace

QString RuleName(const Finding& finding) {
    return QLatin1String(RowOfRule(finding).name);
}

QString SeverityText(const Messages& messages, Severity severity) {
    static constexpr QString Messages::*words[] = {
        &Messages::MsgSeverityError, &Messages::MsgSeverityWarning, &Messages::MsgSeverityNote};
    return messages.*words[static_cast<std::size_t>(severity)];
}

QString FindingText(const Messages& messages, const Finding& finding) {
    QString text = ReasonText(messages, finding);
    if (finding.error)
        return text + QLatin1String(": ") + FoundText(messages, finding);
    const bool isLacking = finding.rule == Rule::ElementMissing;
    if (finding.rule == Rule::UpgradeWeaker) // what is told stands in no element
        text += QLatin1String(": ") + finding.found;
    else if (!finding.element.isEmpty())
        text += QLatin1String(": ") + finding.element +
                (isLacking ? QString() : QLatin1String(" = ") + Told(finding.found));
    const QString expected = ExpectedText(messages, finding);
    return expected.isEmpty() || isLacking ? text
                                           : text + Fill(messages.MsgExpected, {Told(expected)});
}

QJsonObject FindingJson(const Finding& finding) {
    const Messages& english = MessagesIn(English);
    return {{QStringLiteral("rule"), RuleName(finding)},
            {QStringLiteral("severity"), SeverityName(finding.severity)},
            {QStringLiteral("file"), finding.file},
            {QStringLiteral("line"), finding.line},
            {QStringLiteral("column"), finding.column},
            {QStringLiteral("element"), finding.element},
            {QStringLiteral("found"), FoundText(english, finding)},
            {QStringLiteral("expected"), ExpectedText(english, finding)}};
}

} // namespace Hesperin
