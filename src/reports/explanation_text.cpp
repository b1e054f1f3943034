#include "reports/explanation_text.h"

#include "reports/explanation_chapters.h"
#include "text/fill.h"

#include <algorithm>

namespace Hesperin {

namespace {

QString HeadOf(const Explanation& explanation, std::uint8_t languageId) {
    const Parameters& parameters = explanation.evaluation.validated.parameters;
    const Phrase phrase =
        parameters.UpgradeFactor == PlainFactor ? Phrase::Head : Phrase::HeadUpgraded;
    return Fill(PhraseIn(languageId, phrase), {explanation.name, QString::number(parameters.Tier)});
}

/// With a backslash before each character that Markdown would take for markup.
QString Escaped(const QString& text) {
    static const QString markup = QStringLiteral("\\`*_{}[]<>#|~&");
    QString escaped;
    for (const QChar character : text.simplified()) {
        if (markup.contains(character))
            escaped += u'\\';
        escaped += character;
    }
    return escaped;
}

} // namespace

QString ExplanationText(const Explanation& explanation, std::uint8_t languageId) {
    const QString head = HeadOf(explanation, languageId);
    QString text = explanation.file.isEmpty()
                       ? head + u'\n'
                       : explanation.file + QLatin1String(": ") + head + u'\n';
    for (const ExplainedChapter& chapter : ChaptersOf(explanation, languageId)) {
        text += u'\n' + chapter.heading + u'\n';
        qsizetype width = 0;
        for (const ExplainedStep& step : chapter.steps)
            if (!step.working.isEmpty())
                width = std::max(width, step.what.size());
        for (const ExplainedStep& step : chapter.steps)
            text += QLatin1String("  ") +
                    (step.working.isEmpty() ? step.what
                                            : step.what.leftJustified(width + 2) + step.working) +
                    u'\n';
    }
    text.chop(1);
    return text;
}

QString ExplanationMarkdown(const Explanation& explanation, std::uint8_t languageId) {
    QString text = QLatin1String("# ") + Escaped(HeadOf(explanation, languageId)) + u'\n';
    for (const ExplainedChapter& chapter : ChaptersOf(explanation, languageId)) {
        text += QLatin1String("\n## ") + Escaped(chapter.heading) +
                QLatin1String("\n\n| | |\n|---|---|\n");
        for (const ExplainedStep& step : chapter.steps)
            text += QLatin1String("| ") + Escaped(step.what) + QLatin1String(" | ") +
                    Escaped(step.working) + QLatin1String(" |\n");
    }
    return text;
}

} // namespace Hesperin
