#include "reports/json.h"

#include <QJsonDocument>

namespace Hesperin {

namespace {

QLatin1String IconName(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Critical:
        return QLatin1String("critical");
    case BoxIcon::Information:
        return QLatin1String("information");
    case BoxIcon::Question:
        break;
    }
    return QLatin1String("question");
}

} // namespace

QByteArray JsonLine(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonValue NumberOrNull(std::optional<double> number) {
    return number ? QJsonValue(*number) : QJsonValue();
}

QJsonArray MessagesJson(const std::vector<ShownMessage>& messages) {
    QJsonArray list;
    for (const ShownMessage& message : messages)
        list.append(QJsonObject{
            {"icon", IconName(message.icon)}, {"title", message.title}, {"text", message.text}});
    return list;
}

} // namespace Hesperin
