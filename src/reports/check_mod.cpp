#include "reports/check_mod.h"

#include "text/numbers.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace Hesperin {

namespace {

constexpr std::size_t FewestOfATier = 5;

/// Mods and games name the data's root, or the folder that holds it.
constexpr QStringView Roots[] = {u"", u"data/"};

QString FolderOf(const QString& path) {
    return path.left(path.lastIndexOf(u'/') + 1);
}

/// A creature's word without what its spelling leaves open: "CREATURE_SHAMAN_HAG" and
/// "ShamanHag.(Creature).xdb" are both "SHAMANHAG". Empty: nothing is known.
QString CreatureKey(QString word) {
    word = word.section(u'/', -1).toUpper();
    if (word.endsWith(QLatin1String(".XDB")))
        word = word.section(u'.', 0, 0);
    if (word.startsWith(QLatin1String("CREATURE_")))
        word.remove(0, 9);
    return word == QLatin1String("UNKNOWN") ? QString() : word.remove(u'_').remove(u' ');
}

/// The bases of upgrades.
class Bases {
public:
    explicit Bases(const Survey& survey, const std::vector<CheckedFile*>& checked)
        : rows(survey.rows) {
        for (std::size_t row = 0; row < rows.size(); ++row)
            byKey[CreatureKey(rows[row].File())].push_back(row);
        for (std::size_t row = 0; row < checked.size(); ++row)
            for (const QString& word : checked[row]->upgrades)
                if (const QString key = CreatureKey(word); !key.isEmpty())
                    byUpgrade[key].push_back(row);
    }

    /// The row of the creature's base: that which it names, else the only one that lists it as an
    /// upgrade. None when there is no such file, or several of them.
    std::optional<std::size_t> Of(std::size_t row, const QString& named) const {
        const QString key = CreatureKey(named);
        const QString own = CreatureKey(rows[row].File());
        auto base =
            key.isEmpty() ? TheOne(byUpgrade.value(own), row) : TheOne(byKey.value(key), row);
        return base && *base != row ? base : std::nullopt;
    }

private:
    /// Of several the one in the folder of the row's file.
    std::optional<std::size_t> TheOne(std::vector<std::size_t> candidates, std::size_t row) const {
        if (candidates.size() > 1)
            std::erase_if(candidates, [&](std::size_t candidate) {
                return FolderOf(rows[candidate].File()) != FolderOf(rows[row].File());
            });
        return candidates.size() == 1 ? std::optional(candidates.front()) : std::nullopt;
    }

    const std::vector<SurveyRow>& rows;
    QHash<QString, std::vector<std::size_t>> byKey;
    QHash<QString, std::vector<std::size_t>> byUpgrade;
};

/// Where a reference without # leads, from the root of the data; none out of it.
std::optional<QString> TargetOf(const QString& file, const QString& reference) {
    QStringList levels;
    if (!reference.startsWith(u'/'))
        levels = FolderOf(file).split(u'/', Qt::SkipEmptyParts);
    for (const QString& level : reference.split(u'/', Qt::SkipEmptyParts)) {
        if (level == QLatin1String("."))
            continue;
        if (level != QLatin1String(".."))
            levels.append(level);
        else if (levels.isEmpty())
            return std::nullopt;
        else
            levels.removeLast();
    }
    return levels.join(u'/');
}

bool HasFile(const Mod& mod, const QString& path) {
    return std::any_of(std::begin(Roots), std::end(Roots),
                       [&](QStringView root) { return mod.Has(root.toString() + path); });
}

void CheckUpgrade(const Survey& survey, const Bases& bases, std::size_t index,
                  const CheckedFile& checked, FindingList& findings) {
    const SurveyRow& row = survey.rows[index];
    const auto base = bases.Of(index, checked.base.text);
    if (!base || !row.figures || !survey.rows[*base].figures)
        return;
    const double own = row.figures->PowerAverage;
    const double least = survey.rows[*base].figures->PowerAverage;
    if (own > least)
        return;
    findings
        .Add(Rule::UpgradeWeaker, checked.base,
             QStringLiteral("%1 (%2)").arg(WholeText(least), survey.rows[*base].File()))
        .found = WholeText(own);
}

void CheckDeviation(const Survey& survey, const SurveyRow& row, const CheckedFile& checked,
                    FindingList& findings) {
    if (!row.deviation || std::abs(*row.deviation) <= OutlierPercent ||
        survey.scale.CountOf(row.tier, Figure::Power) < FewestOfATier)
        return;
    const double expected = row.power * (1 + *row.deviation / 100);
    findings.Add(Rule::FigureOutlier, checked.power,
                 QStringLiteral("%1 (%2%3 %)")
                     .arg(WholeText(std::round(expected)),
                          *row.deviation > 0 ? QStringLiteral("+") : QString(),
                          QString::number(*row.deviation, 'f', 1)));
}

/// The one note of a mod whose references were not checked.
Finding LinksNotChecked() {
    FindingList findings{QString()};
    findings.Add(Rule::Link, {}).severity = Severity::Note;
    return findings.Take().front();
}

} // namespace

ModCheck::ModCheck(const Mod& whole, const QStringList& gamePaths,
                   const std::function<bool()>& goOn)
    : mod(whole), checked(whole.Files().size()) {
    if (!gamePaths.isEmpty()) {
        game = std::make_unique<Mod>(gamePaths, goOn);
        refused = game->Refused();
        ReadWords(*game);
    }
    ReadWords(mod);
}

void ModCheck::ReadWords(const Mod& place) {
    for (const QString& name : VocabularyFiles) {
        for (const QStringView root : Roots) {
            const ModFile* file = place.Find(root.toString() + name);
            if (file == nullptr)
                continue;
            const auto bytes = place.Read(*file, LargestVocabularyFile);
            if (const Failure failure = bytes ? vocabulary.Add(*bytes) : Failure(bytes.Why()))
                refused.push_back(
                    {file->packed ? file->place + u'/' + file->path : file->place, *failure});
        }
    }
}

void ModCheck::LookAt(std::size_t at, const QByteArray& bytes, const Result<QString>& normalised) {
    const QString& file = mod.Files()[at].path;
    checked[at] = std::make_unique<CheckedFile>();
    if (normalised)
        *checked[at] = CheckFile(file, bytes, *normalised, vocabulary);
    else
        checked[at]->findings.push_back(UnreadableFile(file, normalised.Why()));
}

bool ModCheck::LeadsSomewhere(const SurveyRow& row, const QString& reference) {
    const QString written = reference.section(u'#', 0, 0).trimmed().replace(u'\\', u'/');
    if (written.isEmpty()) // within the file
        return true;
    const auto target = TargetOf(row.File(), written);
    if (target && (HasFile(mod, *target) || HasFile(*game, *target)))
        return true;
    return !row.packed && IsOnDisk(row.place, written);
}

/// A part of a mod may have been named, without the folders around it that it refers to.
bool ModCheck::IsOnDisk(const QString& place, const QString& reference) {
    const QStringList levels = QDir::cleanPath(reference).split(u'/', Qt::SkipEmptyParts);
    QDir folder = QFileInfo(place).absoluteDir();
    do {
        const QString root = folder.absolutePath();
        const QString found = above.try_emplace(root, root).first->second.Find(levels);
        if (!found.isEmpty() && !QFileInfo(found).isDir())
            return true;
    } while (reference.startsWith(u'/') && folder.cdUp() && !folder.isRoot());
    return false;
}

void ModCheck::AddTo(Survey& survey) {
    std::move(refused.begin(), refused.end(), std::back_inserter(survey.refused));
    const bool checksLinks = game && game->Refused().empty(); // else some would be told in vain
    if (!checksLinks && !survey.rows.empty())
        survey.findings.push_back(LinksNotChecked());
    std::vector<CheckedFile*> files; // by row
    for (const auto& file : checked)
        if (file)
            files.push_back(file.get());
    const Bases bases(survey, files);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const SurveyRow& row = survey.rows[i];
        FindingList findings(row.File());
        CheckUpgrade(survey, bases, i, *files[i], findings);
        CheckDeviation(survey, row, *files[i], findings);
        for (const FileElement& reference : files[i]->references)
            if (checksLinks && !LeadsSomewhere(row, reference.text))
                findings.Add(Rule::Link, reference);
        std::vector<Finding> all = std::move(files[i]->findings);
        for (Finding& finding : findings.Take())
            all.push_back(std::move(finding));
        std::stable_sort(all.begin(), all.end(), [](const Finding& a, const Finding& b) {
            return std::tie(a.line, a.column, a.rule) < std::tie(b.line, b.column, b.rule);
        });
        std::move(all.begin(), all.end(), std::back_inserter(survey.findings));
    }
}

} // namespace Hesperin
