#include "xml/edits.h"

#include <algorithm>

namespace Hesperin {

Result<QByteArray> ApplyEdits(const QByteArray& file, std::vector<Edit> edits) {
    std::stable_sort(edits.begin(), edits.end(), [](const Edit& a, const Edit& b) {
        return std::pair(a.offset, a.length > 0) < std::pair(b.offset, b.length > 0);
    });
    QByteArray edited;
    edited.reserve(file.size() + file.size() / 8);
    qsizetype done = 0;
    for (const Edit& edit : edits) {
        if (edit.offset < done || edit.length < 0 || edit.offset + edit.length > file.size())
            return Error{Error::What::UnsafeEdit};
        edited += QByteArrayView(file).sliced(done, edit.offset - done);
        edited += edit.bytes;
        done = edit.offset + edit.length;
    }
    edited += QByteArrayView(file).sliced(done);
    return edited;
}

} // namespace Hesperin
