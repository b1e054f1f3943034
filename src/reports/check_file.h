// What is wrong, or looks wrong, in one creature file.
#pragma once

#include "reports/finding_list.h"
#include "reports/vocabulary.h"

#include <QStringList>

namespace Hesperin {

struct CheckedFile {
    std::vector<Finding> findings;

    // What the checks of the whole mod look at.
    FileElement power;
    FileElement base; ///< BaseCreature
    QStringList upgrades;
    std::vector<FileElement> references;
};

/// Checks a file whose normalised text is `normalised`. `file`: its name in the findings.
CheckedFile CheckFile(const QString& file, const QByteArray& bytes, QStringView normalised,
                      const Vocabulary& vocabulary);

/// The finding of a creature's file that can't be read.
Finding UnreadableFile(const QString& file, const Error& error);

// The parts of CheckFile.
void CheckElements(const FileElements& elements, FindingList& findings);
void CheckItems(const FileElements& elements, const Vocabulary& vocabulary, FindingList& findings);

/// The range within which the methods hold, of an element that has one; else null.
const ParameterRange* RangeOf(QStringView element);

} // namespace Hesperin
