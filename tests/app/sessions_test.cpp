#include "app/session.h"
#include "support/cases_file.h"

#include <gtest/gtest.h>

#include <QDir>

namespace Hesperin {

namespace {

class Sessions : public testing::TestWithParam<const char*> {};

TEST_P(Sessions, GoAsTold) {
    Session session;
    ExpectCases(QString("app/%1.txt").arg(GetParam()), [&](const QString& line) { return session.Outcome(line); });
}

INSTANTIATE_TEST_SUITE_P(App, Sessions,
                         testing::Values("start", "calculate", "boxes", "lists_and_keys", "resets", "menus", "language",
                                         "open", "refused", "save"),
                         [](const auto& name) { return std::string(name.param); });

} // namespace

} // namespace Hesperin
