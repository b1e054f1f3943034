#include "reports/change_report.h"

#include "localisation/error_text.h"
#include "reports/line_diff.h"
#include "text/plain_lines.h"

#include <QJsonArray>

namespace Hesperin {

namespace {

/// On one line.
QString Shown(const std::optional<QString>& value) {
    return QString(value.value_or(QString())).replace(u'\n', QLatin1String("\\n"));
}

QString ChangeLine(const FileChange& change) {
    const QString start = QLatin1String("  ") + change.element + QLatin1String(": ");
    if (change.old && change.now)
        return start + Shown(change.old) + QLatin1String(" -> ") + Shown(change.now) + u'\n';
    if (!EditedFile::IsList(change.element))
        return start + QLatin1String("(lacking) -> ") + Shown(change.now) + u'\n';
    return start +
           (change.now ? QLatin1String("+ ") + Shown(change.now)
                       : QLatin1String("- ") + Shown(change.old)) +
           u'\n';
}

} // namespace

QString ChangeText(const Messages& messages, const ChangeReport& report) {
    if (report.changes.empty())
        return {};
    QString text = Printable(report.file) + u'\n';
    for (const FileChange& change : report.changes)
        text += ChangeLine(change);
    for (const Error& note : report.notes)
        text += QLatin1String("  i ") + ErrorReason(messages, note) + u'\n';
    text.chop(1);
    return text;
}

QJsonObject ChangeJson(const Messages& messages, const ChangeReport& report) {
    const auto orNull = [](const std::optional<QString>& value) {
        return value ? QJsonValue(*value) : QJsonValue();
    };
    QJsonArray changes;
    for (const FileChange& change : report.changes)
        changes.append(QJsonObject{
            {"element", change.element}, {"old", orNull(change.old)}, {"new", orNull(change.now)}});
    QJsonObject object{{"file", report.file},
                       {"ok", report.errors.empty()},
                       {"changes", changes},
                       {"written", report.written}};
    QStringList reasons;
    for (const Error& error : report.errors)
        reasons.append(ErrorReason(messages, error));
    if (!reasons.isEmpty())
        object.insert(QStringLiteral("error"), reasons.join(u' '));
    return object;
}

QByteArray ChangeDiff(const ChangeReport& report) {
    if (report.changes.empty())
        return {};
    const bool hasBlank = report.file.contains(u' '); // a tab tells where the name ends
    const QByteArray name = report.file.toUtf8() + (hasBlank ? "\t" : "");
    return "--- " + name + "\n+++ " + name + '\n' + LineDiff(report.before, report.after);
}

} // namespace Hesperin
