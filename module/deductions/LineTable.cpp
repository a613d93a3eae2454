#include "module/deductions/LineTable.h"

#include "module/base/number_format.h"
#include "module/base/own_text.h"
#include "module/base/text.h"
#include "module/deductions/reference_lines.h"
#include "module/ui/Form.h"
#include "module/ui/input/number_box.h"

#include <algorithm>

namespace tellurix::deductions {

namespace {

constexpr const char* shownMask = "#0.00";
constexpr const char* typedMask = "-#########0.00";

} // namespace

LineTable::LineTable(ui::Form& form, const base::Locale& locale)
    : lblStatistik_(form, "lblStatistik", "Statistik"),
      lblBezeichnung_(form, "lblBezeichnung", "Bezeichnung"),
      lblWert_(form, "lblWert", "Wert"),
      lblBezugszeilen_(form, "lblBezugszeilen", "Bezugszeile(n)"),
      lblSubset_(form, "lblSubset", "Subset"),
      Label1(ui::controlArray<ui::Label, size>(form, "Label1")),
      CmbStat(ui::controlArray<ui::ComboBox, size>(form, "CmbStat", 24)),
      TextBez(ui::controlArray<ui::TextBox, size>(form, "TextBez", 40)),
      TextWert(ui::controlArray<ui::TextBox, size>(form, "TextWert", 12)),
      txtWert(ui::controlArray<ui::TextBox, size>(form, "txtWert", 16)),
      Check1(ui::controlArray<ui::CheckBox, size>(form, "Check1")),
      Command2(ui::controlArray<ui::Button, size>(form, "Command2", "Selektion")),
      Command1(ui::controlArray<ui::Button, size>(form, "Command1", "...")),
      locale_(locale) {
    for (std::size_t line = 0; line < size; ++line)
        connect(line);
}

ui::Layout LineTable::layout() {
    const ui::Layout none = ui::row({});
    std::vector<ui::Layout> cells{
        none, lblStatistik_, lblBezeichnung_, lblWert_, lblBezugszeilen_, lblSubset_, none, none};
    const auto columns = static_cast<int>(cells.size());
    for (std::size_t line = 0; line < size; ++line) {
        for (ui::Control* control : controlsOf(line))
            cells.emplace_back(*control);
    }
    return ui::table(columns, std::move(cells));
}

std::array<ui::Control*, 8> LineTable::controlsOf(std::size_t line) {
    return {&Label1[line],  &CmbStat[line], &TextBez[line],  &TextWert[line],
            &txtWert[line], &Check1[line],  &Command2[line], &Command1[line]};
}

void LineTable::connect(std::size_t line) {
    Label1[line].setCaption(std::to_string(line + 1));
    CmbStat[line].onChange = [this, line] { statisticChosen(line); };
    CmbStat[line].onKeyDown = [this, line](ui::KeyDown& key) { statisticKey(line, key); };
    CmbStat[line].setOwnKeys({base::OwnText::keyRemoveStatistic});
    ui::makeNumberBox(TextWert[line], typedMask, locale_);
    TextWert[line].onLeave = [this, line] {
        leaveValue(line);
        return true;
    };
    txtWert[line].setTakes({base::OwnText::takesLines});
    txtWert[line].onKeyPress = [](char32_t& key) {
        if ((key < U'0' || key > U'9') && key != U',') key = 0;
    };
    txtWert[line].onLeave = [this, line] {
        leaveReferences(line);
        return true;
    };
    for (ui::TextBox* box : {&TextBez[line], &TextWert[line], &txtWert[line]})
        box->onChange = [this] { changed(); };
    for (ui::Control* control : controlsOf(line))
        control->onFocus = [this, line] { reach(line); };
}

void LineTable::start(std::string language) {
    language_ = std::move(language);
    reached_ = 0;
    for (std::size_t line = 0; line < size; ++line)
        show(line, {});
    refresh();
}

void LineTable::show(std::size_t line, const host::CalculationLine& values) {
    CmbStat[line].select(values.statistic);
    CmbStat[line].setError({});
    TextBez[line].show(values.designation);
    TextWert[line].show(values.value.empty() ? "" : amountText(values.value));
    txtWert[line].show(values.references);
    setSubset(line, values.subset);
    setArticle(line, values.article);
}

host::CalculationLine LineTable::read(std::size_t line) const {
    return {.statistic = CmbStat[line].selected(),
            .designation = TextBez[line].text(),
            .value = TextWert[line].text(),
            .references = txtWert[line].text(),
            .subset = subsets_[line],
            .article = articles_[line]};
}

CheckedLine LineTable::checked(std::size_t line) const {
    return {.position = CmbStat[line].selected(),
            .statistic = CmbStat[line].selectedText(),
            .value = TextWert[line].text(),
            .designation = TextBez[line].text()};
}

const std::string& LineTable::heading(std::size_t column) const {
    const std::array<const ui::Label*, 5> headings{&lblStatistik_, &lblBezeichnung_, &lblWert_,
                                                   &lblBezugszeilen_, &lblSubset_};
    return headings.at(column)->caption();
}

std::string LineTable::amountText(const std::string& text) const {
    const auto amount = amountIn(text, locale_);
    return amount ? base::formatNumber(*amount, shownMask, locale_) : text;
}

void LineTable::setArticle(std::size_t line, std::int32_t article) {
    articles_[line] = article;
    Label1[line].setHighlighted(article >= 1);
}

void LineTable::setDesignation(std::size_t line, const std::string& text) {
    std::u32string characters = base::decodeUtf8(text);
    const auto most = static_cast<std::size_t>(TextBez[line].maxLength());
    if (most > 0 && characters.size() > most) characters.resize(most);
    TextBez[line].setText(base::encodeUtf8(characters));
}

void LineTable::changed() {
    refresh();
    if (onChange) onChange();
}

void LineTable::statisticChosen(std::size_t line) {
    const bool chosen = !CmbStat[line].selectedText().empty();
    if (chosen && TextWert[line].text().empty()) TextWert[line].setText(amountText("0"));
    // The line is the user's own now, no longer the catalogue's.
    setArticle(line, 0);
    changed();
}

void LineTable::statisticKey(std::size_t line, ui::KeyDown& key) {
    if (key.key != ui::Key::del || key.ctrl || key.alt || key.shift) return;
    key.key = ui::Key::none;
    ui::ComboBox& list = CmbStat[line];
    const auto empty = std::ranges::find_if(list.items(), [](const auto& item) { return item.text.empty(); });
    const int index =
        empty == list.items().end() ? ui::ItemList::none : static_cast<int>(empty - list.items().begin());
    if (index == list.selected()) return;
    if (beforeRemoval) beforeRemoval(line);
    list.select(index);
    statisticChosen(line);
}

void LineTable::leaveValue(std::size_t line) {
    std::string text{base::trim(TextWert[line].text())};
    if (text.empty() || text == "-") text = "0";
    TextWert[line].setText(amountText(text));
    refresh();
}

void LineTable::leaveReferences(std::size_t line) {
    txtWert[line].setText(tidyReferences(txtWert[line].text()));
    refresh();
}

void LineTable::reach(std::size_t line) {
    if (line <= reached_) return;
    reached_ = line;
    showQuietLines();
}

bool LineTable::inUse(std::size_t line) const {
    const CheckedLine values = checked(line);
    return values.complete() || !isEmptyLine(values, locale_) || !txtWert[line].text().empty() ||
           !subsets_[line].empty() || articles_[line] > 0;
}

void LineTable::showQuietLines() {
    std::size_t last = reached_;
    for (std::size_t line = 0; line < size; ++line)
        if (inUse(line)) last = std::max(last, line);
    for (std::size_t line = 0; line < size; ++line) {
        for (ui::Control* control : controlsOf(line))
            control->setQuiet(line > last);
    }
}

void LineTable::refresh() {
    const auto isComplete = [this](std::size_t line) { return checked(line).complete(); };
    for (std::size_t line = 0; line < size; ++line) {
        txtWert[line].setWarning(doubtsAbout(txtWert[line].text(), line, isComplete, language_));
        for (ui::Control* control :
             std::initializer_list<ui::Control*>{&Label1[line], &CmbStat[line], &TextWert[line]})
            control->setWarning("");
    }
    showQuietLines();
    if (onRefresh) onRefresh();
}

void LineTable::mark(const LineFault& fault) {
    const bool statistic = fault.lack == LineFault::Lack::statistic;
    ui::Control& lacking = statistic ? static_cast<ui::Control&>(CmbStat[fault.line]) : TextWert[fault.line];
    const std::string reason =
        base::ownText(statistic ? base::OwnText::statisticMissing : base::OwnText::valueMissing, language_);
    Label1[fault.line].setWarning(reason);
    lacking.form().setFocus(lacking);
    lacking.setError(reason);
}

} // namespace tellurix::deductions
