#include "creature_files/document.h"

#include "system/read_file.h"
#include "xml/xml_document.h"

namespace Hesperin {

Result<QString> NormaliseCreature(const QByteArray& bytes) {
    return NormaliseXml(bytes, u"Creature", LongestCreatureText);
}

Result<CreatureDocument> LoadCreatureDocument(const QString& path) {
    const auto refused = [&path](Error error) {
        error.file = path;
        error.doing = Error::Doing::Opening;
        return error;
    };
    auto bytes = ReadFile(path, LargestCreatureFile);
    if (!bytes)
        return refused(bytes.Why());
    auto text = NormaliseCreature(*bytes);
    if (!text)
        return refused(text.Why());
    return CreatureDocument{std::move(*bytes), std::move(*text)};
}

} // namespace Hesperin
