#include "localisation/apply_language.h"

#include "localisation/string_tables.h"

namespace Hesperin {

namespace {

constexpr MenuEntry MainForm::*LanguageEntries[] = {&MainForm::mnuEnglish, &MainForm::mnuRussian,
                                                    &MainForm::mnuFrench, &MainForm::mnuGerman};

template <typename T>
void SetCaptions(MainForm& form, std::span<const CaptionRow<T>> rows, std::size_t column) {
    for (const CaptionRow<T>& row : rows)
        if (row.texts[column] != nullptr)
            (form.*row.control).SetCaption(QString::fromUtf16(row.texts[column]));
}

/// Refills a list if the language has its items.
void SetItems(ComboBox& list, std::span<const Texts> rows, std::size_t column) {
    QStringList items;
    for (const Texts& texts : rows)
        if (texts[column] != nullptr)
            items.append(QString::fromUtf16(texts[column]));
    if (!items.isEmpty())
        list.SetItems(items);
}

} // namespace

void ApplyLanguage(Program& program, std::int16_t languageId) {
    if (languageId < 1 || languageId > 4)
        return;
    const auto column = static_cast<std::size_t>(languageId - 1);
    MainForm& form = program.form;

    for (std::size_t entry = 0; entry < std::size(LanguageEntries); ++entry)
        (form.*LanguageEntries[entry]).SetChecked(entry == column);
    for (const MessageRow& row : MessageRows)
        if (row.texts[column] != nullptr)
            program.state.*row.message = QString::fromUtf16(row.texts[column]);
    SetCaptions(form, MenuRows, column);
    for (std::size_t page = 0; page < PageRows.size(); ++page)
        if (PageRows[page][column] != nullptr)
            form.Tablus.Tab(static_cast<int>(page))
                .SetCaption(QString::fromUtf16(PageRows[page][column]));
    SetCaptions(form, FrameRows, column);
    SetItems(form.ComboFaction, FactionRows, column);
    SetItems(form.ComboRange, RangeRows, column);
    SetCaptions(form, LabelRows, column);
    if (AverageToolTip[column] != nullptr)
        form.lblValuesA.SetToolTip(QString::fromUtf16(AverageToolTip[column]));
    SetCaptions(form, ButtonRows, column);
}

} // namespace Hesperin
