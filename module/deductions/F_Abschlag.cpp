#include "module/deductions/F_Abschlag.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"
#include "module/base/text.h"
#include "module/host/text_numbers.h"
#include "module/parts/M_Common.h"
#include "module/parts/contract_title.h"
#include "module/parts/fields/typed_text.h"
#include "module/parts/questions.h"
#include "module/ui/controls/caption.h"
#include "module/ui/input/RefusedInput.h"

namespace tellurix::deductions {

using base::OwnText;
using base::StatementText;

namespace {

constexpr const char* screenCaption = "Zu - / Abschlag Modell";
constexpr const char* table = "ABSCHLAG";
constexpr const char* articlesOfGoods = "WAREN";
constexpr const char* articleChosen = "1LV";
/// Item data of a model that the calculation has and the model service does not.
constexpr std::int64_t notKept = 0;
/// The statistics, by their position, whose lines may apply to a subset of the goods.
bool mayHaveSubset(int statistic) {
    constexpr int first = 1;
    constexpr int last = 12;
    return statistic >= first && statistic <= last;
}

/// A character beyond it has no key code to be checked with; the mask refuses it anyway.
constexpr char32_t lastKeyCode = 0x7FFF;

} // namespace

F_Abschlag::F_Abschlag(host::HostServices& services)
    : Form("F_Abschlag", screenCaption),
      services_(services),
      table_(*this, services.locale),
      shared_(table_, services, session_, model_, [this] { return ui::plainCaption(lblModell_.caption()); }) {
    connect();
    setLayout(ui::column({
        ui::row({ui::field(lblModell_, CmbModel), btnModels}),
        table_.layout(),
        ui::bar({ui::Layout{btnOk}.primary(), btnAbbrechen}),
    }));
}

void F_Abschlag::connect() {
    table_.onChange = [this] { changed_ = typed_ = true; };
    table_.onRefresh = [this] { shared_.mark(); };
    table_.beforeRemoval = [this](std::size_t line) {
        undo_.offer(base::ownText(OwnText::statisticRemoved, session_.language, {std::to_string(line + 1)}),
                    [this, line, values = table_.read(line)] { return putBack(line, values); });
    };
    for (std::size_t line = 0; line < LineTable::size; ++line) {
        table_.Command1[line].onClick = [this, line] { FindWarenId(line); };
        table_.Command2[line].onClick = [this, line] { selectSubset(line); };
        table_.Check1[line].onClick = [this, line] { tickSubset(line); };
        ui::TextBox& value = table_.TextWert[line];
        value.onKeyPress = [this, mask = std::move(value.onKeyPress)](char32_t& key) {
            if (key <= lastKeyCode &&
                parts::CheckKeyForColumn(session_, *this, static_cast<std::int16_t>(key), table, "WERT_TEXT",
                                         services_.locale) == 0)
                key = 0;
            if (key != 0) mask(key);
        };
    }
    CmbModel.onChange = [this] { chooseModel(); };
    btnModels.onClick = [this] { manageModels(); };
    btnOk.onClick = [this] { save(); };
    btnAbbrechen.onClick = [this] { cancel(); };
    btnAbbrechen.setCausesValidation(false);
}

std::string F_Abschlag::Run(const host::TlxVar& session, std::int16_t mode, const std::string& calculation) {
    session_ = session;
    stored_.open(calculation, base::toUpper(host::moduleState().context.VerType));
    model_ = storedModel_ = stored_.ReadModelColumn("ABS_MODEL");
    RunActions(session, mode);
    const int width = services_.columnWidth.of(session_, table, "BEZEICH");
    for (ui::TextBox& designation : table_.TextBez)
        designation.setMaxLength(width);
    parts::localizeWithTitle(services_, session_, *this, screenCaption, calculation);
    services_.display.showModal(*this);
    return storedModel_;
}

void F_Abschlag::RunActions(const host::TlxVar& session, std::int16_t mode) {
    session_ = session;
    mode_ = mode;
    changed_ = typed_ = done_ = false;
    partlySaved_.reset();
    takenOver_.clear();
    undo_.forget();
    loadLists();
    table_.start(session_.language);
    SetNullValues();
    LoadLines();
}

void F_Abschlag::loadLists() {
    services_.models.fill(session_, CmbModel, category(nullptr));
    for (ui::ComboBox& list : table_.CmbStat)
        FillStatCombo(list);
}

void F_Abschlag::FillStatCombo(ui::ComboBox& list) {
    list.clear();
    // clang-format off
    auto statistic = session_.connection->open(
        "SELECT * FROM STATISTIK WHERE TEXT IS NOT NULL ORDER BY STATISTIK_ID");
    // clang-format on
    for (; !statistic->atEnd(); statistic->moveNext())
        list.add(statistic->text("TEXT"), statistic->integer("STATISTIK_ID"));
}

void F_Abschlag::SetNullValues() {
    for (std::size_t line = 0; line < LineTable::size; ++line) {
        table_.Check1[line].setChecked(false);
        table_.Command2[line].setToolTip("");
    }
}

void F_Abschlag::LoadLines() {
    shared_.show(stored_.read());
    showLines();
}

void F_Abschlag::showLines() {
    for (std::size_t line = 0; line < LineTable::size; ++line)
        FillSubset(line);
    showModel();
    table_.refresh();
}

std::optional<LineFault> F_Abschlag::fault() const {
    std::array<CheckedLine, LineTable::size> all;
    for (std::size_t line = 0; line < all.size(); ++line)
        all[line] = table_.checked(line);
    return firstFault(all, services_.locale);
}

bool F_Abschlag::linesAreRight() {
    if (const auto wrong = fault()) {
        parts::ShowMessage(services_.display,
                           services_.localizer.text(host::textNumber::invalidEntry, session_),
                           ui::box::exclamation);
        table_.mark(*wrong);
        return false;
    }
    requireTexts();
    return true;
}

bool F_Abschlag::settle() {
    // What a failed save has left is nobody's work: all lines are written again.
    if (partlySaved_) return true;
    const bool settled = shared_.settle([this] { return stored_.read(); });
    showLines();
    return settled;
}

std::string F_Abschlag::putBack(std::size_t line, const host::CalculationLine& values) {
    host::CalculationLine present = table_.read(line);
    present.statistic = values.statistic;
    present.article = values.article;
    table_.show(line, present);
    FillSubset(line);
    table_.refresh();
    changed_ = typed_ = true;
    return base::ownText(OwnText::statisticPutBack, session_.language, {std::to_string(line + 1)});
}

void F_Abschlag::save() {
    if (!linesAreRight() || !settle()) return;
    // With a colleague's lines there can be a gap between them.
    if (!linesAreRight()) return;
    const std::string taken = shared_.takenOver();
    PartlySaved saved;
    for (std::size_t line = 0; line < LineTable::size; ++line)
        saved.of += IsCorectLine(line) ? 1U : 0U;
    stored_.DeleteLines();
    try {
        writeLines(saved);
    } catch (const std::exception& error) {
        changed_ = true;
        partlySaved_ = saved;
        services_.errors.report(error);
        throw base::Refused{
            {{OwnText::someLinesSaved, {std::to_string(saved.lines), std::to_string(saved.of)}}}};
    }
    // Where there is no line there is none that keeps the name.
    storedModel_ = saved.of == 0 ? "" : model_;
    takenOver_ = taken;
    done_ = true;
    unload();
    host::moduleState().context.blnOK = host::Boolean16::True;
}

void F_Abschlag::requireTexts() {
    for (std::size_t line = 0; line < LineTable::size; ++line) {
        if (!IsCorectLine(line)) continue;
        for (ui::TextBox* box : {&table_.TextBez[line], &table_.TextWert[line], &table_.txtWert[line]})
            static_cast<void>(parts::typedText(*box));
    }
    try {
        stored_.requireModel(model_);
    } catch (const base::StatementError& error) {
        auto message = base::refusedValue(error.value(), ui::plainCaption(lblModell_.caption()));
        message.push_back({error.reason()});
        throw ui::RefusedInput{CmbModel, std::move(message)};
    }
}

void F_Abschlag::writeLines(PartlySaved& saved) {
    for (std::size_t line = 0; line < LineTable::size; ++line) {
        if (!IsCorectLine(line)) continue;
        if (!mayHaveSubset(table_.read(line).statistic)) SetSubset(line, "");
        stored_.SaveLine(line, table_.read(line));
        ++saved.lines;
    }
    stored_.UpdateModelColumn("ABS_MODEL", model_);
    for (std::size_t line = 0; line < LineTable::size; ++line) {
        if (IsCorectLine(line)) table_.Check1[line].setChecked(!FindSubset(line).empty());
    }
}

void F_Abschlag::SetSubset(std::size_t line, const std::string& subset) {
    table_.setSubset(line, subset);
    FillSubset(line);
}

void F_Abschlag::FillSubset(std::size_t line) {
    table_.Check1[line].setChecked(!table_.subset(line).empty());
    table_.Command2[line].setToolTip(table_.subset(line));
}

void F_Abschlag::selectSubset(std::size_t line) {
    const host::HostContext& context = host::moduleState().context;
    const auto chosen =
        services_.selectionDialog.edit(session_, table_.subset(line), base::toUpper(context.StrVer_Type),
                                       context.strServiceOut1, context.strServiceOut2);
    if (!chosen) return;
    SetSubset(line, std::string{base::trim(*chosen)});
    table_.refresh();
    table_.onChange();
}

void F_Abschlag::tickSubset(std::size_t line) {
    if (!table_.Check1[line].checked()) {
        SetSubset(line, "");
        table_.refresh();
        table_.onChange();
        return;
    }
    // A tick without a subset would say something that is not so, whatever becomes of the dialog.
    FillSubset(line);
    selectSubset(line);
}

void F_Abschlag::FindWarenId(std::size_t line) {
    host::HostContext& context = host::moduleState().context;
    const ui::BusyPointer busy{services_.display};
    const std::int32_t article = services_.catalogue.choose(
        session_, articlesOfGoods, base::toUpper(context.StrVer_Type), table_.article(line));
    if (article > 0) FillWarenId(line, article);
    services_.moduleService.request(session_, articleChosen, std::to_string(mode_), context.strServiceOut1,
                                    context.strServiceOut2);
}

void F_Abschlag::FillWarenId(std::size_t line, std::int32_t article) {
    table_.setArticle(line, article);
    changed_ = typed_ = true;
    FillFields(line);
    table_.refresh();
}

void F_Abschlag::FillFields(std::size_t line) {
    const auto ofArticle = [&](std::string_view query) {
        return session_.connection->open(StatementText{query}.number(table_.article(line)).text());
    };
    {
        // The formula is read for whoever computes the invoice some day; the screen has no place for it.
        const auto article =
            ofArticle("SELECT BEZEICH1, ID_FORMULA, EINHPREIS FROM WARENKATALOG WHERE ART_ID = ");
        if (article->atEnd()) return;
        table_.setDesignation(line, article->text("BEZEICH1"));
        table_.TextWert[line].setText(
            base::numberText(article->field("EINHPREIS"), "#0.00", services_.locale));
    }
    const auto article = ofArticle("SELECT SUBSET_DEF FROM WARENKATALOG WHERE ART_ID = ");
    SetSubset(line, article->atEnd() ? std::string{} : article->text("SUBSET_DEF"));
}

std::string F_Abschlag::category(host::HostMainWindow* mainWindow) const {
    return parts::GetTypeColumn(table, base::toUpper(host::moduleState().context.StrVer_Type), mainWindow);
}

void F_Abschlag::chooseModel() {
    const int index = CmbModel.selected();
    if (index == ui::ItemList::none) return;
    const ui::ItemList::Item chosen = CmbModel.items()[static_cast<std::size_t>(index)];
    if (chosen.text == model_) return;
    const bool replaces =
        !typed_ || parts::confirmed(services_, session_, OwnText::replaceByModel, {chosen.text});
    if (!replaces) {
        showModel();
        return;
    }
    if (chosen.itemData != notKept) {
        try {
            services_.models.copy(session_, category(host::moduleState().context.F_Main.get()),
                                  static_cast<std::int32_t>(chosen.itemData), *this);
        } catch (...) {
            showModel();
            throw;
        }
        // The lines that something could be put back into are gone.
        undo_.forget();
    }
    model_ = chosen.text;
    changed_ = true;
    typed_ = false;
    undo_.say(base::ownText(OwnText::modelTaken, session_.language, {model_}));
}

void F_Abschlag::manageModels() {
    if (!CheckFields()) return;
    services_.models.manage(session_, category(nullptr), *this, CmbModel);
    if (CmbModel.selected() != ui::ItemList::none && CmbModel.selectedText() != model_) {
        model_ = CmbModel.selectedText();
        changed_ = true;
    }
    showModel();
}

void F_Abschlag::showModel() {
    const auto found = [this] {
        for (std::size_t i = 0; i < CmbModel.items().size(); ++i)
            if (CmbModel.items()[i].text == model_) return static_cast<int>(i);
        return ui::ItemList::none;
    };
    if (!model_.empty() && found() == ui::ItemList::none) CmbModel.add(model_, notKept);
    CmbModel.select(found());
}

host::CalculationLines F_Abschlag::lines() const {
    host::CalculationLines all;
    for (std::size_t line = 0; line < all.size(); ++line)
        all[line] = table_.read(line);
    return all;
}

void F_Abschlag::setLines(const host::CalculationLines& lines) {
    for (std::size_t line = 0; line < lines.size(); ++line) {
        table_.show(line, lines[line]);
        FillSubset(line);
    }
    table_.refresh();
}

void F_Abschlag::cancel() {
    // What a failed save has left is asked about like anything that is lost.
    done_ = !partlySaved_;
    unload();
}

bool F_Abschlag::queryUnload() {
    if (!done_ && changed_) {
        const bool leaves =
            partlySaved_
                ? parts::confirmed(services_, session_, OwnText::closePartlySaved,
                                   {std::to_string(partlySaved_->lines), std::to_string(partlySaved_->of)})
                : parts::confirmed(services_, session_, OwnText::closeChanged);
        if (!leaves) return false;
        done_ = true;
    }
    host::moduleState().context.blnOK = host::Boolean16::False;
    return true;
}

} // namespace tellurix::deductions
