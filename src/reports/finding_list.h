#pragma once

#include "reports/file_elements.h"
#include "reports/finding.h"

#include <vector>

namespace Hesperin {

/// Collects the findings of one file.
class FindingList {
public:
    explicit FindingList(QString path) : file(std::move(path)) {}

    /// A finding about what stands in the element.
    Finding& Add(Rule rule, const FileElement& element, const QString& expected = {}) {
        Finding finding;
        finding.rule = rule;
        finding.severity = RuleRows[static_cast<std::size_t>(rule)].severity;
        finding.file = file;
        finding.line = element.line;
        finding.column = element.column;
        finding.element = element.path;
        finding.found = element.text;
        finding.expected = expected;
        return findings.emplace_back(std::move(finding));
    }

    std::vector<Finding> Take() { return std::move(findings); }

private:
    QString file;
    std::vector<Finding> findings;
};

} // namespace Hesperin
