#include "app/session.h"
#include "support/cases_file.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(Sessions, GoAsTold) {
    for (const QString& name : QDir(TALMIR_SOURCE_DIR "/tests/data/app").entryList({"*.txt"})) {
        Session session;
        ExpectCases("app/" + name, [&](const QString& line) { return session.Outcome(line); });
    }
}

} // namespace

} // namespace Hesperin
