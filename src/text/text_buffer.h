#pragma once

#include "text/text_index.h"

#include <QString>

namespace Hesperin {

/// A holder of one plain text that offers an exact and a loose search. The text must not be changed
/// through another holder of it.
class TextBuffer {
public:
    explicit TextBuffer(const QString& content) : text(content) {}

    const QString& Text() const { return text; }

    /// 1-based position of the first occurrence of `needle`, letter case counting; 0 when there is
    /// none.
    qsizetype ExactSearch(QStringView needle) const {
        return Search(needle, Qt::CaseSensitive) + 1;
    }

    /// 0-based position of the first occurrence of `needle`, letter case not counting; -1 when
    /// there is none.
    qsizetype LooseSearch(QStringView needle) const { return Search(needle, Qt::CaseInsensitive); }

    /// The part from the 1-based position `start`, `length` units long; what there is of it when it
    /// reaches past an end of the text.
    QStringView Part(qsizetype start, qsizetype length) const {
        return QStringView(text).mid(start - 1, length);
    }

private:
    qsizetype Search(QStringView needle, Qt::CaseSensitivity sensitivity) const;

    QString text;
    mutable TextIndex index;
    mutable bool indexed = false;
};

} // namespace Hesperin
