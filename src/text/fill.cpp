#include "text/fill.h"

namespace Hesperin {

QString Fill(const QString& text, const QStringList& values) {
    QString filled;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const qsizetype value = text[at] == u'%' && at + 1 < text.size()
                                    ? text[at + 1].unicode() - qsizetype{u'1'}
                                    : -1;
        if (value >= 0 && value < values.size()) {
            filled += values[value];
            ++at;
        } else {
            filled += text[at];
        }
    }
    return filled;
}

} // namespace Hesperin
