#include "window/survey_progress.h"

#include "text/fill.h"

#include <QHBoxLayout>

namespace Hesperin {

namespace {

constexpr int TakesLong = 500; // milliseconds

} // namespace

SurveyProgressLine::SurveyProgressLine(const Program& owner)
    : program(owner), bar(new QProgressBar), cancel(new QPushButton) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    bar->setObjectName(QStringLiteral("SurveyProgress"));
    cancel->setObjectName(QStringLiteral("SurveyCancel"));
    row->addWidget(bar, 1);
    row->addWidget(cancel);
    hide();
}

void SurveyProgressLine::Tell(const SurveyProgress& progress) {
    if (since.elapsed() < TakesLong)
        return;
    const Messages& messages = program.state.messages;
    const auto all = static_cast<int>(progress.all.load());
    const auto done = static_cast<int>(progress.done.load());
    bar->setRange(0, all); // up to 0 it only shows that it goes on
    bar->setValue(done);
    bar->setFormat(all == 0 ? messages.SurveyWindowWalking
                            : Fill(messages.SurveyWindowReading,
                                   {QString::number(done), QString::number(all)}));
    show();
}

void SurveyProgressLine::Retranslate() {
    cancel->setText(program.state.messages.MsgCancel);
}

} // namespace Hesperin
