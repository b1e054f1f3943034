#include "cli/scale_option.h"

#include "cli/output.h"
#include "localisation/error_text.h"
#include "reports/survey.h"
#include "reports/table_rows.h"

#include <QFileInfo>

namespace Hesperin {

std::optional<ModScale> ReadScale(const QString& path, const Messages& messages) {
    if (!QFileInfo::exists(path)) {
        const Error error{Error::What::FileMissing};
        Complain(QStringLiteral("%1: %2").arg(path, ErrorReason(messages, error)));
        return {};
    }
    SurveyWish wish;
    wish.paths = {path};
    Survey survey = TakeSurvey(wish);
    Complain(AllRefused(survey), messages);
    return std::move(survey.scale);
}

} // namespace Hesperin
