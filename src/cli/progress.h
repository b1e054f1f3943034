#pragma once

#include <QElapsedTimer>

namespace Hesperin {

/// Tells on standard error how far a run over many files has come, where that is a terminal and the
/// run takes longer than half a second.
class Progress {
public:
    explicit Progress(qsizetype count);
    ~Progress() { Clear(); }
    Q_DISABLE_COPY(Progress)

    void Step() { Reach(done + 1, total); }

    /// So many of so many are done.
    void Reach(qsizetype count, qsizetype of);

    /// Takes the line away, so that something else can be told.
    void Clear();

private:
    qsizetype total;
    qsizetype done = 0;
    qint64 nextAt = 500; ///< milliseconds
    bool isTerminal;
    bool isShown = false;
    QElapsedTimer timer;
};

} // namespace Hesperin
