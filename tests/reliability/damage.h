// Damages done to a creature file, each drawn at random.
#pragma once

#include <QByteArray>

#include <random>

namespace Hesperin {

class Damage {
public:
    explicit Damage(unsigned seed) : random(seed) {}

    /// `bytes` with one damage, or two.
    QByteArray Do(QByteArray bytes);

    /// The kinds of the last damages, to be shown.
    QByteArray Story() const { return story; }

private:
    struct Kind;
    static const Kind Kinds[];

    qsizetype Below(qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<unsigned long>(std::max<qsizetype>(limit, 1)));
    }

    /// A place between two elements, and the piece of the document from one to another.
    qsizetype LineStart(const QByteArray& bytes);
    struct Piece {
        qsizetype at;
        qsizetype length;
    };
    Piece Lines(const QByteArray& bytes);
    Piece TagName(const QByteArray& bytes);
    Piece Content(const QByteArray& bytes);

    std::mt19937 random;
    QByteArray story;
};

} // namespace Hesperin
