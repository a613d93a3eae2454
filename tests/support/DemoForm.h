#pragma once

#include "module/ui/Display.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/controls/ProgressBar.h"
#include "module/ui/controls/UpDown.h"
#include "module/ui/input/date_box.h"
#include "module/ui/input/number_box.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

namespace tellurix::tests {

/// A small window above the demo form: chooses one of a few names.
class DemoPicker final : public ui::Form {
public:
    explicit DemoPicker() : Form("DemoPicker", "Kunde auswählen") {
        for (const char* name : {"Holzhandel Müller", "Sägewerk Ahrens", "O'Brien Timber", "Zimmerei Bär"}) {
            lstNames.add(name);
        }
        lstNames.onDoubleClick = [this] { choose(); };
        btnOk.onClick = [this] { choose(); };
        btnCancel.onClick = [this] { unload(); };
        btnCancel.setCausesValidation(false);
        setCancelButton(btnCancel);
        setLayout(ui::column(
            {ui::field(lblSearch, txtSearch), ui::Layout{lstNames}.growing(), ui::row({btnOk, btnCancel})}));
    }

    ui::Label lblSearch{*this, "lblSearch", "&Suche:"};
    ui::TextBox txtSearch{*this, "txtSearch", 30};
    ui::ListBox lstNames{*this, "lstNames", 40, 6};
    ui::Button btnOk{*this, "btnOk", "&Übernehmen"};
    ui::Button btnCancel{*this, "btnCancel", "&Abbrechen"};
    std::string chosen;

private:
    void choose() {
        chosen = lstNames.selectedText();
        unload();
    }
};

/// Every kind of control in one screen, with what displays get wrong easily: a filter, a check that
/// takes the focus back, a picker, a question on closing, a slow handler.
class DemoForm final : public ui::Form {
public:
    explicit DemoForm(ui::Display& display)
        : Form("DemoForm", "Vertrag 2024/017 – Holzhandel Müller"), display_(display) {
        fill();
        connect();
        arrange();
    }

    ui::Label lblName{*this, "lblName", "&Vertragsname:"};
    ui::TextBox txtName{*this, "txtName", 32};
    ui::Label lblDate{*this, "lblDate", "&Datum:"};
    ui::TextBox txtDate{*this, "txtDate", 10};
    ui::Label lblAmount{*this, "lblAmount", "&Menge (fm):"};
    ui::TextBox txtAmount{*this, "txtAmount", 10};
    ui::Label lblKunde{*this, "lblKunde", "&Kunde:"};
    ui::TextBox txtKunde{*this, "txtKunde", 28};
    ui::Button btnDelete{*this, "btnDelete", "Kunde entfernen", "delete"};
    ui::Button btnDocument{*this, "btnDocument", "Dokument", "document"};
    ui::Label lblLocked{*this, "lblLocked", "Angelegt von:"};
    ui::TextBox txtLocked{*this, "txtLocked", 20};
    ui::Label lblDisabled{*this, "lblDisabled", "Gesperrt:"};
    ui::TextBox txtDisabled{*this, "txtDisabled", 10};
    ui::Label lblType{*this, "lblType", "Vertrags&art:"};
    ui::ComboBox cboType{*this, "cboType", 22};
    ui::CheckBox chkClosed{*this, "chkClosed", "Vertrag abge&schlossen"};
    ui::Tabs tabs{*this, "tabs", {"Positionen", "Texte"}};
    ui::Grid grdLines{*this, "grdLines", 7};
    ui::ListBox lstSorts{*this, "lstSorts", 18, 5};
    ui::Frame frmTexts{*this, "frmTexts", "Zusatztexte"};
    ui::Label lblNotes{*this, "lblNotes", "&Bemerkung:"};
    ui::TextBox txtNotes{*this, "txtNotes", 60};
    ui::Label lblWeek{*this, "lblWeek", "Woche:"};
    ui::TextBox txtWeek{*this, "txtWeek", 4};
    ui::UpDown updWeek{*this, "updWeek"};
    ui::ProgressBar progress{*this, "progress"};
    ui::TextBox txtState{*this, "txtState", 80};
    ui::Button btnQuestion{*this, "btnQuestion", "&Frage"};
    ui::Button btnSlow{*this, "btnSlow", "Lan&gsam"};
    ui::Button btnFail{*this, "btnFail", "F&ehler"};
    ui::Button btnOpen{*this, "btnOpen", "&Öffnen"};
    ui::Button btnClose{*this, "btnClose", "Schl&ießen"};

    /// What the screen knows, to be compared with what is on the page.
    std::string state() const {
        return txtName.text() + "|" + txtDate.text() + "|" + txtAmount.text() + "|" + txtKunde.text();
    }

    /// How many screens were asked whether they may be closed, over all sessions.
    static inline std::atomic<int> queriedUnloads = 0;

protected:
    bool queryUnload() override {
        ++queriedUnloads;
        return txtName.text() != "offen" ||
               display_.messageBox("Änderungen verwerfen?", ui::box::yesNo | ui::box::question, "Tellurix") ==
                   ui::Answer::yes;
    }

private:
    void fill() {
        txtLocked.setText("M. Weiß, 03.02.2024");
        txtLocked.setLocked(true);
        txtState.setLocked(true);
        txtDisabled.setText("nein");
        txtDisabled.setEnabled(false);
        txtName.setMaxLength(30);
        txtNotes.setLines(4);
        txtKunde.setToolTip("Strg oder F4 öffnet die Auswahl");
        for (const char* type :
             {"Einkauf Rundholz", "Einkauf Schnittholz", "Verkauf Rundholz", "Verkauf Schnittholz"})
            cboType.add(type);
        cboType.select(0);
        for (const char* sort :
             {"Fichte B", "Fichte C", "Kiefer B", "Lärche A", "Eiche TF", "Buche B", "Tanne C"})
            lstSorts.add(sort);
        grdLines.setColumns(
            {{"Pos.", 4, true},
             {"Holzart", 14, false},
             {"Sorte", 12, false},
             {"Stärke", 10, false},
             {"Menge fm", 10, true},
             {.caption = "Preis €", .width = 10, .rightAligned = true, .toolTip = "je Einheit"},
             {"ID", 6, true, false}});
        std::vector<ui::Grid::Row> rows;
        for (int i = 1; i <= 600; ++i) {
            const std::string number = std::to_string(i);
            rows.push_back(
                {number, i % 3 == 0 ? "Lärche" : "Fichte", "B/C", "2b – 4", number + ",50", "98,40", number});
        }
        grdLines.setRows(std::move(rows));
        grdLines.setCurrent(0);
        progress.setProgress(40, 100);
        txtWeek.setText("14");
    }

    void connect() {
        const auto show = [this] { txtState.setText(state()); };
        for (ui::TextBox* box : {&txtName, &txtDate, &txtAmount, &txtKunde})
            box->onChange = show;
        const auto today = [] { return base::Date{std::chrono::year{2025} / 6 / 5}; };
        ui::makeDateBox(txtDate, today, [this] {
            // As long as a question to a busy database, so that there is time to type ahead.
            std::this_thread::sleep_for(std::chrono::milliseconds{150});
            display_.messageBox("Kein gültiges Datum: " + txtDate.text(), ui::box::ok | ui::box::exclamation,
                                "Tellurix");
            txtDate.setError("TT.MM.JJJJ");
        });
        ui::makeNumberBox(txtAmount, "##,##0.00", base::Locale::german());
        txtKunde.onPick = [this, show] {
            DemoPicker picker;
            display_.showModal(picker);
            if (!picker.chosen.empty()) txtKunde.setText(picker.chosen);
            show();
        };
        btnDelete.onClick = [this, show] {
            status().say("Kunde entfernt", "&Rückgängig", [this, show, before = txtKunde.text()] {
                txtKunde.setText(before);
                show();
            });
            txtKunde.setText("");
            show();
        };
        grdLines.onDoubleClick = [this] {
            txtState.setText("Zeile " + std::to_string(grdLines.currentRow() + 1));
        };
        grdLines.onKeyDown = [this](ui::KeyDown& key) {
            if (key.key == ui::Key::f2)
                txtState.setText("F2 in Zeile " + std::to_string(grdLines.currentRow() + 1));
        };
        grdLines.onCurrentChange = [this] { progress.setProgress(grdLines.currentRow(), 600); };
        chkClosed.onClick = [this] { frmTexts.setEnabled(!chkClosed.checked()); };
        updWeek.onUp = [this] { txtWeek.setText(std::to_string(std::stoi(txtWeek.text()) + 1)); };
        updWeek.onDown = [this] { txtWeek.setText(std::to_string(std::stoi(txtWeek.text()) - 1)); };
        btnQuestion.onClick = [this] {
            const ui::Answer answer = display_.messageBox(
                "Der Vertrag wurde geändert.\nSollen die Änderungen gespeichert werden?",
                ui::box::yesNoCancel | ui::box::question | ui::box::defaultButton2, "Tellurix");
            txtState.setText("Antwort " + std::to_string(static_cast<int>(answer)));
        };
        btnSlow.onClick = [this] {
            const ui::BusyPointer busy{display_};
            std::this_thread::sleep_for(std::chrono::milliseconds{400});
            txtName.form().setFocus(txtName);
            txtName.selectAll();
        };
        btnFail.onClick = [] { throw std::runtime_error{"Die Anweisung ist fehlgeschlagen."}; };
        btnOpen.onClick = [this] {
            DemoForm another{display_};
            another.setTitle("Zweiter Vertrag");
            display_.showModal(another);
        };
        // Opens a file of the user's and gives it back.
        btnDocument.onClick = [this] {
            const auto path =
                display_.openFile("Dokument wählen", "PDF (*.pdf)|*.pdf|Alle Dateien (*.*)|*.*");
            if (!path) {
                txtState.setText("keine Datei");
                return;
            }
            const std::filesystem::path file{*path};
            std::ifstream read{file, std::ios::binary};
            const std::string content{std::istreambuf_iterator<char>{read}, {}};
            txtState.setText(file.filename().string() + ": " + std::to_string(content.size()));
            display_.presentFile("Kopie von " + file.filename().string(), content);
        };
        btnClose.onClick = [this] { unload(); };
    }

    void arrange() {
        setLayout(ui::column({
            ui::fields(
                3, {ui::field(lblName, txtName), ui::field(lblDate, txtDate), ui::field(lblAmount, txtAmount),
                    ui::row({ui::field(lblKunde, txtKunde), btnDelete, btnDocument}),
                    ui::field(lblLocked, txtLocked), ui::field(lblDisabled, txtDisabled),
                    ui::field(lblType, cboType), ui::row({ui::field(lblWeek, txtWeek), updWeek}), chkClosed}),
            ui::tabs(tabs, {ui::row({ui::Layout{grdLines}.growing(), lstSorts}),
                            ui::frame(frmTexts, {ui::field(lblNotes, txtNotes)})})
                .growing(),
            progress,
            txtState,
            ui::row({btnQuestion, btnSlow, btnFail, btnOpen, btnClose}),
        }));
    }

    ui::Display& display_;
};

} // namespace tellurix::tests
