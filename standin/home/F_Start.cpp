#include "standin/home/F_Start.h"

#include "module/base/date_format.h"
#include "module/base/field_text.h"
#include "module/base/whole_number.h"
#include "module/parts/M_Common.h"
#include "module/parts/fields/date_box.h"
#include "standin/home/contract_types.h"
#include "standin/services/pickers/search_keys.h"

#include <algorithm>
#include <array>
#include <memory>

namespace tellurix::standin {

using ui::column;
using ui::field;
using ui::row;

namespace {

constexpr std::int64_t allTypes = -1;
constexpr std::array<const char*, 2> languages{"de", "en"};

/// The host's standard client, from the settings of the installation; 0 for none.
std::int16_t standardClient(host::NamedSettings& settings, const host::TlxVar& session) {
    return base::wholeNumber<std::int16_t>(settings.text(session, "STANDARDMANDANT")).value_or(0);
}

} // namespace

F_Start::F_Start(WorkbenchServices& services, host::TlxVar& session, ContractOpener& opener,
                 std::function<void(const std::string&)> languageChanged, Closing closing)
    : Form("F_Start", "Verträge"),
      services_(services),
      session_(session),
      opener_(opener),
      languageChanged_(std::move(languageChanged)),
      closing_(closing),
      newContract_(services, session),
      notifications_(services, session),
      glance_(*this, services, session) {
    const auto type = [this](base::Fields& contract) {
        return contractTypeText(contract.text("VER_TYPE"), services_.localizer(), session_);
    };
    const auto status = [this](base::Fields& contract) {
        return named(contract.flag("ABGESCHLOSSEN") ? "start.isClosed" : "start.isOpen");
    };
    const auto due = [this](base::Fields& contract) { return dueText(contract); };
    const auto endsSoon = [this](base::Fields& contract) { return dueOf(contract) == Due::soon; };
    using Narrow = ui::Grid::Narrow;
    contracts_.setColumns(
        {{.caption = "Vertrag", .width = 40, .field = "VERTRAG_NAME", .sorts = true},
         {.caption = "Vertragsart", .width = 15, .narrow = Narrow::away, .sorts = true, .shown = type},
         {.caption = "Kunde",
          .width = 19,
          .field = "KURZBEZEICHNUNG",
          .narrow = Narrow::below,
          .sorts = true},
         {.caption = "Lieferung von",
          .width = 10,
          .field = "LIEFERVON",
          .narrow = Narrow::away,
          .sorts = true},
         {.caption = "bis", .width = 10, .field = "LIEFERBIS", .sorts = true},
         {.caption = "Frist",
          .width = 6,
          .narrow = Narrow::below,
          .shown = due,
          .remark = true,
          .warns = endsSoon},
         {.caption = "Status", .width = 12, .narrow = Narrow::away, .sorts = true, .shown = status},
         {.caption = "Preise",
          .width = 6,
          .field = "PREISE",
          .rightAligned = true,
          .narrow = Narrow::away,
          .sorts = true},
         {.caption = "Mengen",
          .width = 6,
          .field = "MENGEN",
          .rightAligned = true,
          .narrow = Narrow::away,
          .sorts = true}});
    cboLanguage.add("Deutsch");
    cboLanguage.add("English");
    limitSearch(txtSearch);
    connect();
    arrange();
}

void F_Start::connect() {
    txtSearch.onChange = [this] { reload(); };
    connectSearch(txtSearch, grdContracts, [this] { openCurrent(); });
    cboType.onChange = [this] { reload(); };
    cboClosed.onChange = [this] { reload(); };
    connectPeriod(txtFrom);
    connectPeriod(txtTo);
    cboLanguage.onChange = [this] { changeLanguage(); };
    btnOpen.onClick = [this] { openCurrent(); };
    btnNew.onClick = [this] { create(); };
    btnProvisionReports.onClick = [this] { opener_.openProvisionReports(chosenKind()); };
    btnQuantityReports.onClick = [this] { opener_.openQuantityReports(chosenKind()); };
    btnNotifications.setQuiet(true);
    btnNotifications.onClick = [this] { notifications_.Run(); };
    grdContracts.onCurrentChange = [this] { lookAtCurrent(); };
    // At once, because the window of a browser goes without being closed.
    grdContracts.onColumnSized = [this] { layouts_->keep(); };
    grdContracts.onHeadingClick.after([this](int) { layouts_->keep(); });
}

void F_Start::connectPeriod(ui::TextBox& box) {
    parts::makeDateBox(box, services_.host(), session_, [this] { return named("start.period"); });
    box.onLeave.after([this] {
        reload();
        return true;
    });
    box.onPick.after([this] { reload(); });
}

void F_Start::arrange() {
    setLayout(column({
        ui::filters({field(lblSearch, txtSearch), field(lblType, cboType), field(lblClosed, cboClosed),
                     field(lblFrom, txtFrom), field(lblTo, txtTo), field(lblLanguage, cboLanguage)}),
        ui::sides(ui::column({ui::Layout{grdContracts}.growing(), lblCount}).growing(), glance_.layout())
            .growing(),
        ui::bar({ui::Layout{btnOpen}.primary(), btnNew},
                {field(lblKind, cboKind), btnProvisionReports, btnQuantityReports}, {btnNotifications}),
    }));
}

void F_Start::Run() {
    fillLists();
    services_.localizer().localize(session_, *this);
    reload();
    layouts_.emplace(services_.host(), session_, *this);
    services_.host().display.showModal(*this);
    layouts_->keep();
}

void F_Start::fillLists() {
    const int type = std::max(cboType.selected(), 0);
    cboType.clear();
    cboType.add(named("start.all"), allTypes);
    addContractTypes(cboType, services_.localizer(), session_);
    cboType.select(type);

    const int closed = cboClosed.selected();
    cboClosed.clear();
    cboClosed.add(named("start.all"));
    cboClosed.add(named("start.open"));
    cboClosed.add(named("start.closed"));
    cboClosed.select(closed == ui::ItemList::none ? static_cast<int>(ContractFilter::Closed::open) : closed);

    const int kind = std::max(cboKind.selected(), 0);
    cboKind.clear();
    for (const ContractKind& offered : contractKinds(services_.host().settings, session_))
        cboKind.add(offered.name, offered.kind);
    cboKind.select(kind);

    const auto language = std::ranges::find(languages, session_.language);
    cboLanguage.select(language == languages.end() ? 0 : static_cast<int>(language - languages.begin()));
}

void F_Start::changeLanguage() {
    session_.language = languages[static_cast<std::size_t>(std::max(cboLanguage.selected(), 0))];
    fillLists();
    services_.localizer().localize(session_, *this);
    contracts_.redraw();
    sayNothingFound(txtSearch, grdContracts);
    showCount();
    lookedAt_.reset();
    lookAtCurrent();
    if (languageChanged_) languageChanged_(session_.language);
}

std::string F_Start::chosenType() const {
    if (cboType.selected() == ui::ItemList::none) return {};
    const std::int64_t index = cboType.items()[static_cast<std::size_t>(cboType.selected())].itemData;
    return index == allTypes ? std::string{} : std::string{contractTypes[static_cast<std::size_t>(index)]};
}

std::int16_t F_Start::chosenKind() const {
    const auto kind = static_cast<std::size_t>(std::max(cboKind.selected(), 0));
    return static_cast<std::int16_t>(cboKind.items().at(kind).itemData);
}

ContractFilter F_Start::filter() const {
    return {.search = txtSearch.text(),
            .type = chosenType(),
            .closed = static_cast<ContractFilter::Closed>(std::max(cboClosed.selected(), 0)),
            .from = base::parseDate(txtFrom.text()),
            .to = base::parseDate(txtTo.text())};
}

void F_Start::reload() {
    reload(contracts_.currentKey().value_or(0));
}

void F_Start::reload(std::int64_t current) {
    const int row = std::max(grdContracts.currentRow(), 0);
    auto read =
        parts::KeyedRows::read(*session_.connection, contractsQuery(filter()), "ID_VERTRAG", listedAtMost);
    more_ = read.more;
    contracts_.show(std::move(read.rows));
    sayNothingFound(txtSearch, grdContracts);
    showCount();
    if (!contracts_.select(current)) grdContracts.setCurrent(std::min(row, contracts_.rowCount() - 1));
    btnOpen.setEnabled(!contracts_.empty());
    lookAtCurrent();
}

void F_Start::lookAtCurrent() {
    const auto key = contracts_.currentKey();
    if (!key) {
        later(nullptr);
        lookedAt_.reset();
        return glance_.showNothing();
    }
    glance_.setOld(key != lookedAt_);
    // Every letter of a search lists anew; what is read need not be read again.
    if (key == lookedAt_) return later(nullptr);
    const auto contract = static_cast<std::int32_t>(*key);
    later([this, contract, reading = std::make_shared<GlanceReading>(services_, session_, contract)] {
        try {
            if (reading->next()) return true;
        } catch (const base::DatabaseError&) {
            // Who opens the contract is told; who passes by in the list is not held up by a message.
            lookedAt_.reset();
            glance_.showNothing(named("glance.failed"));
            return false;
        }
        lookedAt_ = contract;
        reading->glance() ? glance_.show(*reading->glance()) : glance_.showNothing(named("start.gone"));
        return false;
    });
}

Due F_Start::dueOf(base::Fields& contract) const {
    const auto end = base::dayIn(contract.field("LIEFERBIS"));
    if (!end) return Due::notYet;
    return standin::dueOf(*end, contract.flag("ABGESCHLOSSEN"), services_.host().clock.today());
}

std::string F_Start::dueText(base::Fields& contract) const {
    const Due due = dueOf(contract);
    if (due == Due::notYet) return {};
    if (due == Due::over) return named("start.over");
    const base::Date end = *base::dayIn(contract.field("LIEFERBIS"));
    return filled(named("start.endsIn"), {std::to_string(daysUntil(end, services_.host().clock.today()))});
}

void F_Start::showCount() {
    const std::string count = std::to_string(contracts_.rowCount());
    std::string says = more_                        ? filled(named("start.more"), {count, count})
                       : contracts_.rowCount() == 1 ? named("start.countOne")
                                                    : filled(named("start.count"), {count});
    const auto tell = [&](Due due, const char* one, const char* several) {
        const auto number = std::ranges::count_if(
            contracts_.rows(), [&](base::Fields& contract) { return dueOf(contract) == due; });
        if (number > 0)
            says += ", " + (number == 1 ? named(one) : filled(named(several), {std::to_string(number)}));
    };
    if (more_) return lblCount.setCaption(std::move(says)); // of those that are not listed nothing is known
    tell(Due::soon, "start.endsSoonOne", "start.endSoon");
    tell(Due::over, "start.isOverOne", "start.areOver");
    lblCount.setCaption(std::move(says));
}

void F_Start::openCurrent() {
    const int row = grdContracts.currentRow();
    if (row == ui::Grid::none) return;
    parts::KeyedRow contract = contracts_.row(row);
    const auto id = static_cast<std::int32_t>(contract.key());
    if (!contractExists(*session_.connection, id)) {
        parts::ShowMessage(services_.host().display, named("start.gone"), ui::box::information);
        reload();
        return;
    }
    open(id, contract.text("VERTRAG_NAME"), contract.text("VER_TYPE"), false);
}

void F_Start::create() {
    const auto created = newContract_.Run(chosenType());
    if (!created) return;
    // Listed before it is opened: should opening fail, the row is there to be seen.
    reload(created->id);
    open(created->id, created->name, created->type, true);
}

void F_Start::open(std::int32_t id, const std::string& name, const std::string& type, bool newContract) {
    opener_.open({.id = id,
                  .name = name,
                  .type = type,
                  .isNew = newContract,
                  .caption = named("start.caption"),
                  .standardClient = standardClient(services_.host().settings, session_)});
    lookedAt_.reset();
    reload(id);
}

} // namespace tellurix::standin
