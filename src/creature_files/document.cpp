#include "creature_files/document.h"

#include "system/read_file.h"
#include "xml/xml_document.h"

namespace Hesperin {

Result<QString> NormaliseCreature(const QByteArray& bytes) {
    return NormaliseXml(bytes, u"Creature", LongestCreatureText);
}

Result<QString> LoadCreatureDocument(const QString& path) {
    const auto bytes = ReadFile(path, LargestCreatureFile);
    auto document = bytes ? NormaliseCreature(*bytes) : Result<QString>(bytes.Why());
    if (!document) {
        document.Why().file = path;
        document.Why().doing = Error::Doing::Opening;
    }
    return document;
}

} // namespace Hesperin
