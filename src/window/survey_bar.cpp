#include "window/survey_bar.h"

#include "text/fill.h"

#include <QHBoxLayout>

namespace Hesperin {

namespace {

void Refill(QComboBox& list, const QStringList& entries) {
    const QString chosen = list.currentIndex() > 0 ? list.currentText() : QString();
    const QSignalBlocker still(list);
    list.clear();
    list.addItems(entries);
    list.setCurrentIndex(std::max(0, chosen.isEmpty() ? 0 : list.findText(chosen)));
}

} // namespace

SurveyBar::SurveyBar(const Program& owner)
    : program(owner), words(new QLineEdit), tier(new QComboBox), town(new QComboBox),
      outliers(new QCheckBox) {
    new QHBoxLayout(this);
    layout()->setContentsMargins(0, 0, 0, 0);
    wordsLabel = AddLabelled(*words, "SurveyFilter");
    tierLabel = AddLabelled(*tier, "SurveyTier");
    townLabel = AddLabelled(*town, "SurveyTown");
    outliers->setObjectName(QStringLiteral("SurveyOutliers"));
    layout()->addWidget(outliers);
    count = new QLabel;
    count->setObjectName(QStringLiteral("SurveyCount"));
    count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout()->addWidget(count);
    words->setClearButtonEnabled(true);
    words->setMinimumWidth(120);
    words->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (QComboBox* list : {tier, town}) {
        list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        QObject::connect(list, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    }
    QObject::connect(words, &QLineEdit::textChanged, this, [this] { changed(); });
    QObject::connect(outliers, &QCheckBox::toggled, this, [this] { changed(); });
}

QLabel* SurveyBar::AddLabelled(QWidget& field, const char* name) {
    auto* label = new QLabel;
    label->setBuddy(&field);
    field.setObjectName(QLatin1String(name));
    layout()->addWidget(label);
    layout()->addWidget(&field);
    return label;
}

SurveyFilter SurveyBar::Chosen() const {
    return {.words = words->text(),
            .tier = static_cast<std::int16_t>(tier->currentText().toInt()), // "All" is none
            .town = town->currentIndex() > 0 ? town->currentText() : QString(),
            .outliers = outliers->isChecked()};
}

void SurveyBar::Offer(const SurveyView& view) {
    const QString all = program.state.messages.SurveyWindowAll;
    QStringList tiers{all};
    for (const std::int16_t one : view.Tiers())
        tiers.append(QString::number(one));
    Refill(*tier, tiers);
    Refill(*town, QStringList{all} + view.Towns());
}

void SurveyBar::ShowCount(const SurveyView& view) {
    const auto number = [](std::size_t value) { return QString::number(value); };
    count->setText(view.Loaded()
                       ? Fill(program.state.messages.SurveyWindowShown,
                              {number(view.Shown().size()), number(view.Whole().rows.size())})
                       : QString());
}

void SurveyBar::Retranslate() {
    const Messages& messages = program.state.messages;
    wordsLabel->setText(messages.SurveyWindowFilter);
    tierLabel->setText(messages.SurveyWindowTier);
    townLabel->setText(messages.SurveyWindowTown);
    outliers->setText(messages.SurveyWindowOutliers);
    outliers->setToolTip(messages.SurveyWindowOutliersTip);
    words->setPlaceholderText(messages.SurveyWindowFilterHint);
    for (const QLabel* label : {wordsLabel, tierLabel, townLabel})
        label->buddy()->setAccessibleName(QString(label->text()).remove(u'&'));
}

void SurveyBar::FocusWords() {
    words->setFocus();
    words->selectAll();
}

bool SurveyBar::ClearWords() {
    const bool some = !words->text().isEmpty();
    words->clear();
    return some;
}

} // namespace Hesperin
