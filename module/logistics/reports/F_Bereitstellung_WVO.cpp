#include "module/logistics/reports/F_Bereitstellung_WVO.h"

#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/base/text.h"
#include "module/base/whole_number.h"
#include "module/logistics/reports/ProvisionSaving.h"
#include "module/logistics/row_saving.h"
#include "module/logistics/spreadsheet_parameters.h"
#include "module/logistics/week_chart.h"
#include "module/parts/M_Common.h"
#include "module/parts/contract_title.h"
#include "module/parts/grids/grid_layout.h"
#include "module/parts/questions.h"
#include "module/ui/controls/caption.h"

namespace tellurix::logistics {

using base::OwnText;
using parts::KeyedRow;

namespace {

constexpr const char* table = "WVO_BEREITMELDUNG_KW";
constexpr const char* screenCaption = "Bereitstellungsmeldung";
constexpr const char* layoutKey = "F_BEREITSTELLUNG_WVO";

} // namespace

F_Bereitstellung_WVO::F_Bereitstellung_WVO(host::HostServices& services)
    : Form("F_Bereitstellung_WVO", screenCaption),
      services_(services),
      contractBox_(txtVertrag, services, session_, [this] { return ui::plainCaption(lblVertrag.caption()); },
                   {.list = [this] { return reportingContracts(modul_); },
                    .resolution = contractOfName,
                    .shown = "VERTRAG_NAME"}),
      weekBox_(txtKalender, services, session_, [this] { return ui::plainCaption(lblKalender.caption()); },
               {.list = [this] { return ProvisionStatements{chosenWeek()}.weeks(); },
                .resolution =
                    [this](ui::TextBox& box) { return ProvisionStatements{chosenWeek()}.weekOfText(box); },
                .shown = "LONG",
                .beside = &txtKalenderTage}),
      table_(MSFG, txtEdit, chkOhneMeldung, services.locale),
      mode_({.edit = &btnBearbeiten, .save = &btnSpeichern, .cancel = &btnAbbrechen},
            {.inView = {&txtVertrag, &txtKalender, &txtWaldhelfer, &txtWHNummer, &chkOhneMeldung,
                        &btnFHPExport, &btnSchliesen},
             .onRow = {&btnExcel, &btnExcelAlles},
             .whileEdited = {&btnAllezusagen},
             .rows = &MSFG},
            [this] { return week_.chosen() && !table_.empty(); }),
      loadsByWeek_(services) {
    txtKalenderTage.setLocked(true);
    pgbSpeichern.setVisible(false);
    connect();
    arrange();
}

void F_Bereitstellung_WVO::connect() {
    connectChoice();
    connectFilter(txtWaldhelfer);
    connectFilter(txtWHNummer);
    table_.onChange = [this] { showSums(); };
    mode_.onEnter = [this] {
        table_.setEditing(!mode_.viewing());
        btnZuegeJeWoche.setEnabled(mode_.viewing() && !contractBox_.key().empty());
        setCancelButton(mode_.viewing() ? btnSchliesen : btnAbbrechen);
    };
    btnBearbeiten.onClick = [this] { startEdit(); };
    btnSpeichern.onClick = [this] { save(); };
    btnAbbrechen.onClick = [this] { cancel(); };
    btnAllezusagen.onClick = [this] { table_.confirmAll(); };
    btnExcel.onClick = [this] { exportTable(false); };
    btnExcelAlles.onClick = [this] { exportTable(true); };
    btnFHPExport.onClick = [this] { parts::ShowMessage(services_.display, "FHP Exporttabelle fehlerhaft."); };
    btnZuegeJeWoche.onClick = [this] { showLoadsByWeek(); };
    btnSchliesen.onClick = [this] { unload(); };
    // A contract that is not found keeps nobody here.
    btnSchliesen.setCausesValidation(false);
}

void F_Bereitstellung_WVO::connectChoice() {
    for (ui::TextBox* box : {&txtVertrag, &txtKalender}) {
        // Rows of another contract or week must not stand below a choice that leads to none.
        box->onLeave.before([this] {
            if (loaded_ == choice()) return true;
            loaded_.reset();
            table_.clear();
            showLoaded();
            showSums();
            return true;
        });
        box->onLeave.after([this, box] {
            if (loaded_) return true;
            if (box == &txtVertrag) keepWeek();
            reload();
            return true;
        });
    }
}

void F_Bereitstellung_WVO::connectFilter(ui::TextBox& box) {
    box.setMaxLength(60);
    const auto filter = [this, &box] {
        reload();
        if (table_.empty() && week_.chosen() && !box.text().empty()) status().say(own(OwnText::nothingFound));
    };
    box.onLeave = [filter] {
        filter();
        return true;
    };
    box.onKeyDown = [this, filter](ui::KeyDown& key) {
        if (key.key != ui::Key::enter) return;
        key.key = ui::Key::none;
        filter();
        parts::SafeSetFocus(MSFG);
    };
}

void F_Bereitstellung_WVO::arrange() {
    enum Column { name = 1, announced = 3, remark, confirmed };
    setLayout(ui::column({
        ui::filters({ui::field(lblVertrag, txtVertrag), ui::field(lblKalender, txtKalender, txtKalenderTage),
                     ui::field(lblWaldhelfer, txtWaldhelfer), ui::field(lblWHNummer, txtWHNummer),
                     chkOhneMeldung}),
        ui::sums(MSFG, ui::frame(frmSummen,
                                 {ui::row({ui::under(name, lblWH1), ui::under(announced, lblZuege, lblWH2),
                                           ui::under(confirmed, lblZugesagt, lblWH3)}),
                                  ui::row({ui::under(name, lblZ1), ui::under(announced, lblZ2),
                                           ui::under(remark, lblVS), ui::under(confirmed, lblZ3)})}))
            .growing(),
        ui::row({lblGemeldet, lblFehlen, pgbSpeichern}),
        ui::bar({btnBearbeiten, ui::Layout{btnSpeichern}.primary(), btnAbbrechen, btnAllezusagen},
                {btnExcel, btnExcelAlles, btnFHPExport, btnZuegeJeWoche}, {btnSchliesen}),
    }));
}

void F_Bereitstellung_WVO::Run(const host::TlxVar& session, std::int16_t modul) {
    session_ = session;
    modul_ = modul;
    table_.open(session_.language, services_.columnWidth.of(session_, table, reportField::carrier));
    parts::localizeWithTitle(services_, session_, *this, screenCaption, "");
    caption_ = title();
    services_.gridLayouts.restore(session_, MSFG, layoutKey);
    reload();
    services_.display.showModal(*this);
    parts::keepLayout(services_, session_, MSFG, layoutKey);
}

ReportWeek F_Bereitstellung_WVO::chosenWeek() const {
    constexpr int weeksPerYear = 100; // in the key of a week
    const int week = base::wholeNumber<int>(weekBox_.key()).value_or(0);
    return {.contract = contractBox_.key(), .year = week / weeksPerYear, .week = week % weeksPerYear};
}

void F_Bereitstellung_WVO::keepWeek() {
    if (txtKalender.text().empty()) return;
    const auto week = session_.connection->open(ProvisionStatements{chosenWeek()}.weekOfText(txtKalender));
    const bool found = !week->atEnd();
    weekBox_.show(found ? week->text("KW") : "", found ? week->text("ID") : "");
    txtKalenderTage.setText(found ? week->text("LONG") : "");
}

void F_Bereitstellung_WVO::reload() {
    const ReportWeek chosen = chosenWeek();
    const ProvisionStatements statements{chosen};
    std::vector<KeyedRow> rows =
        parts::KeyedRows::read(*session_.connection, statements.helpers(txtWaldhelfer, txtWHNummer),
                               reportField::helper)
            .rows;
    otherAnnounced_ = otherConfirmed_ = {};
    if (chosen.chosen()) {
        const auto sums = session_.connection->open(statements.otherReports());
        otherAnnounced_ = base::numberIn(sums->field(0)).value_or(base::Decimal{});
        otherConfirmed_ = base::numberIn(sums->field(1)).value_or(base::Decimal{});
    }
    week_ = chosen;
    statements_ = statements;
    table_.show(std::move(rows), week_.chosen());
    takenOver_.clear();
    loaded_ = choice();
    mode_.enter(parts::EditMode::State::view);
    showLoaded();
    showSums();
}

void F_Bereitstellung_WVO::showLoaded() {
    const bool known = loaded_ && !contractBox_.key().empty();
    setTitle(parts::titleWith(caption_, known ? txtVertrag.text() : ""));
    MSFG.setEmptyText(whyEmpty());
}

std::string F_Bereitstellung_WVO::whyEmpty() const {
    if (!loaded_ || !week_.chosen()) return own(OwnText::noReportYet);
    // Only the tick hides helpers.
    if (!table_.empty()) return own(OwnText::allReported);
    std::vector<std::string> sought;
    for (const ui::TextBox* filter : {&txtWaldhelfer, &txtWHNummer})
        if (!filter->text().empty()) sought.push_back(filter->text());
    return sought.empty() ? own(OwnText::noReports)
                          : own(OwnText::nothingFoundFor, {base::joined(sought, ", ")});
}

void F_Bereitstellung_WVO::showSums() {
    const auto shown = [this](ui::Label& label, const base::Decimal& sum) {
        label.setCaption(loaded_ && week_.chosen() ? base::formatNumber(sum, "##,##0", services_.locale)
                                                   : "");
    };
    shown(lblWH2, table_.announced());
    shown(lblWH3, table_.confirmed());
    shown(lblZ2, table_.announced() + otherAnnounced_);
    shown(lblZ3, table_.confirmed() + otherConfirmed_);
    showReported();
}

void F_Bereitstellung_WVO::showReported() {
    constexpr std::size_t most = 8;
    std::string counted;
    std::string named;
    if (loaded_ && week_.chosen() && !table_.empty()) {
        const std::size_t all = table_.rows().size();
        std::vector<std::string> missing = table_.missing();
        counted = own(OwnText::helpersReported, {std::to_string(all - missing.size()), std::to_string(all)});
        if (missing.size() > most) {
            missing.resize(most);
            missing.emplace_back("…");
        }
        if (!missing.empty()) named = own(OwnText::helpersMissing, {base::joined(missing, ", ")});
    }
    lblGemeldet.setCaption(counted);
    lblGemeldet.setWarning(named.empty() ? "" : counted);
    lblFehlen.setCaption(named);
}

void F_Bereitstellung_WVO::startEdit() {
    mode_.enter(parts::EditMode::State::edit);
    table_.goToFirstCell();
    parts::SafeSetFocus(MSFG);
}

void F_Bereitstellung_WVO::cancel() {
    const bool discards = table_.hasTyped();
    reload();
    parts::SafeSetFocus(MSFG);
    if (discards) status().say(own(OwnText::changesDiscarded));
}

void F_Bereitstellung_WVO::save() {
    ProvisionSaving saving{services_, session_, statements_, table_, takenOver_};
    try {
        if (!saving.write(pgbSpeichern)) return showSums();
    } catch (...) {
        showSums();
        throw;
    }
    const auto besides = saving.besides();
    if (saving.someAreGone()) {
        showSums();
        throw base::Refused{besides};
    }
    const parts::TakenOver taken = takenOver_;
    reload();
    parts::SafeSetFocus(MSFG);
    status().say(taken.told(OwnText::saved, session_.language));
    if (!besides.empty())
        parts::ShowMessage(services_.display, base::Refused{besides}.message(session_.language),
                           ui::box::exclamation);
}

void F_Bereitstellung_WVO::exportTable(bool internal) {
    const std::string title = "Vertrag: " + txtVertrag.text() + "                Kalender: KW" +
                              std::to_string(week_.week) + " (" + txtKalenderTage.text() + ")";
    services_.spreadsheets.exportTable(session_,
                                       spreadsheetParameters("0;;;0;;;;0;;0;", table_.text(internal)), title);
    status().say(own(OwnText::tableExported));
}

void F_Bereitstellung_WVO::showLoadsByWeek() {
    const auto week = loadsByWeek_.Run(session_, chosenWeek(), txtVertrag.text());
    if (!week) return;
    txtKalender.setText(weekName(*week) + "/" + std::to_string(week->year));
    keepWeek();
    reload();
    parts::SafeSetFocus(MSFG);
}

bool F_Bereitstellung_WVO::escape() {
    return !table_.hasTyped() || parts::confirmed(services_, session_, OwnText::discardChanges);
}

bool F_Bereitstellung_WVO::queryUnload() {
    return !table_.hasTyped() || parts::confirmed(services_, session_, OwnText::closeChanged);
}

} // namespace tellurix::logistics
