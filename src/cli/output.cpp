#include "cli/output.h"

#include "cli/command.h"
#include "localisation/error_text.h"
#include "localisation/languages.h"
#include "text/plain_lines.h"

#include <cstdio>

namespace Hesperin {

namespace {

void Write(std::FILE* stream, const QByteArray& utf8) {
    std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stream);
    std::fputc('\n', stream);
}

} // namespace

void PrintLine(const QString& line) {
    Write(stdout, line.toUtf8());
}

void PrintLine(const QByteArray& utf8) {
    Write(stdout, utf8);
}

void PrintBytes(const QByteArray& bytes) {
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
}

void Complain(const QString& line) {
    std::fflush(stdout); // so that both streams tell the same story in a terminal
    Write(stderr, line.toUtf8());
}

void Complain(const std::vector<RefusedPlace>& places, const Messages& messages) {
    for (const RefusedPlace& place : places)
        Complain(QStringLiteral("%1: %2").arg(Printable(place.path),
                                              ErrorReason(messages, place.error)));
}

void Complain(const FoundFiles& found, const QStringList& paths) {
    if (found.files.isEmpty() && found.refused.empty())
        Complain(QStringLiteral("There is no creature file in %1.")
                     .arg(Printable(paths.join(QLatin1String(", ")))));
    Complain(found.refused, MessagesIn(English));
}

int Misused(const char* name, const QString& reason) {
    Complain(QStringLiteral("talmir-cli %1: %2").arg(QLatin1String(name), reason));
    return WrongUsage;
}

bool FlushOutput() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

} // namespace Hesperin
