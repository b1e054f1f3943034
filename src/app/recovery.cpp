#include "app/recovery.h"

#include "app/creature_in_form.h"
#include "app/creature_json.h"
#include "app/handlers/buttons.h"
#include "app/handlers/save_and_update.h"
#include "app/resets.h"
#include "app/unsaved.h"
#include "creature_files/document.h"
#include "localisation/titles.h"
#include "text/fill.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include <limits>

namespace Hesperin {

namespace {

constexpr int Version = 1;

QString HashOf(const QByteArray& bytes) {
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

QJsonArray FiguresToJson(const FileFigures& file) {
    return {file.FilePower, file.FileExperience, file.FileGrowth, file.FileGold};
}

/// Nothing where they aren't figures of a file.
std::optional<FileFigures> FiguresFromJson(const QJsonValue& json) {
    using Figure = std::numeric_limits<std::int16_t>;
    std::array<std::int16_t, 4> figures{};
    const QJsonArray values = json.toArray();
    if (values.size() != static_cast<qsizetype>(figures.size()))
        return std::nullopt;
    for (std::size_t i = 0; i < figures.size(); ++i) {
        constexpr int none = Figure::max() + 1;
        const int value = values[static_cast<qsizetype>(i)].toInt(none);
        if (value < Figure::min() || value > Figure::max())
            return std::nullopt;
        figures[i] = static_cast<std::int16_t>(value);
    }
    return FileFigures{figures[0], figures[1], figures[2], figures[3]};
}

/// Takes the file up, if it still has the bytes that it had.
bool TakeUpFile(Program& program, const QJsonObject& kept, const Creature& opened,
                const FileFigures& figures) {
    MainForm& form = program.form;
    SharedState& state = program.state;
    const QString path = kept["path"].toString();
    const auto document = LoadCreatureDocument(path);
    if (!document || HashOf(document->bytes) != kept["sha256"].toString())
        return false;
    form.ComDialog.FileName = path;
    form.RTBData.SetText(document->text);
    ShowFilePage(form);
    state.baseline = {path, document->bytes, opened};
    form.mnuUpdate.SetEnabled(true);
    state.file = figures;
    state.CreatureFileLoaded = kept["loaded"].toBool();
    if (state.CreatureFileLoaded)
        form.frmMain.SetCaption(FileTitle(state.CreatureName, state.file));
    return true;
}

void Show(Program& program, const QJsonObject& kept, const Creature& creature) {
    MainForm& form = program.form;
    SharedState& state = program.state;
    cmdResetAll_Click(program);
    Reset_Specabilities(program);
    SetCreature(program, creature);
    SwitchCasterFields(form, creature.Has(Ability::Caster));
    SwitchShooterFields(form, creature.Has(Ability::Shooter));
    state.CreatureName = kept["name"].toString();
    state.file = {};
}

} // namespace

QByteArray RecoveryText(const Program& program) {
    if (!HasUnsaved(program))
        return {};
    const auto& baseline = program.state.baseline;
    QJsonObject kept{{"version", Version},
                     {"creature", CreatureToJson(TakeCreature(program))},
                     {"name", program.state.CreatureName},
                     {"figures", FiguresToJson(program.state.file)},
                     {"loaded", program.state.CreatureFileLoaded}};
    if (baseline) {
        kept.insert("path", QDir::current().absoluteFilePath(baseline->path));
        kept.insert("sha256", HashOf(baseline->bytes));
        kept.insert("opened", CreatureToJson(baseline->creature));
    }
    return QJsonDocument(kept).toJson();
}

bool Recover(Program& program, const QByteArray& text) {
    const QJsonObject kept = QJsonDocument::fromJson(text).object();
    const auto creature = CreatureFromJson(kept["creature"].toObject());
    const auto opened = CreatureFromJson(kept["opened"].toObject());
    const auto figures = FiguresFromJson(kept["figures"]);
    if (kept["version"].toInt() != Version || !creature || !figures || !kept["name"].isString() ||
        (kept.contains("path") && !opened))
        return false;
    const UserAct act(program.form.frmMain);
    Show(program, kept, *creature);
    if (kept.contains("path") && !TakeUpFile(program, kept, *opened, *figures))
        program.Warn(BoxIcon::Information,
                     Fill(program.state.messages.MsgRecoveredAlone,
                          {QDir::toNativeSeparators(kept["path"].toString())}));
    program.platform.SetFocus(program.form.cmdCalc);
    return true;
}

} // namespace Hesperin
