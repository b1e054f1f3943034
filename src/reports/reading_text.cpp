#include "reports/reading_text.h"

#include "text/fill.h"

namespace Hesperin {

QString ReadingText(const Messages& messages, const ReadCreature& read) {
    QStringList limited;
    for (const LimitedNumber& number : read.limited)
        limited.append(QStringLiteral("%1 %2 (%3)")
                           .arg(number.element, number.text, QString::number(number.value)));
    QStringList lines;
    if (!read.missing.isEmpty())
        lines.append(Fill(messages.MsgElementsMissing, {read.missing.join(QLatin1String(", "))}));
    if (!limited.isEmpty())
        lines.append(Fill(messages.MsgNumbersLimited, {limited.join(QLatin1String(", "))}));
    return lines.join(u'\n');
}

} // namespace Hesperin
