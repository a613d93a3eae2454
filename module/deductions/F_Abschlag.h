#pragma once

#include "module/base/own_text.h"
#include "module/deductions/LineTable.h"
#include "module/deductions/SharedLines.h"
#include "module/host/module_state.h"
#include "module/host/services.h"
#include "module/parts/UndoOffers.h"
#include "module/ui/Form.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tellurix::deductions {

/// The surcharge and deduction lines of one calculation, and the model that they were taken from.
///
/// "Ok" deletes the lines of the calculation and writes those of the screen anew, one statement at a
/// time, after what a colleague has saved meanwhile has been brought together with them. A failure in between
/// leaves part of them, tells how many, and keeps the screen open with everything in it: another "Ok" writes
/// all. "Abbrechen" writes nothing.
class F_Abschlag final : public ui::Form, public host::Screen, private host::CalculationForm {
public:
    explicit F_Abschlag(host::HostServices& services);

    /// Edits the lines and returns when the screen is closed.
    /// @param mode handed on to the host after an article was chosen
    /// @param calculation its name, which is the contract's
    /// @return the name of the model as it is stored then, empty for none
    std::string Run(const host::TlxVar& session, std::int16_t mode, const std::string& calculation);
    /// What the last visit has saved although the user did not change it, because a colleague had: a
    /// sentence, empty for nothing.
    const std::string& takenOver() const { return takenOver_; }
    /// Starts with empty lines and loads those of the calculation.
    void RunActions(const host::TlxVar& session, std::int16_t mode);

    /// A statistic and a value are there. Lines count from 0, here and below.
    bool IsCorectLine(std::size_t line) const { return table_.checked(line).complete(); }
    /// All lines can be saved.
    bool CheckFields() const { return !fault().has_value(); }
    /// Reads, keeps and shows the subset of a line.
    std::string FindSubset(std::size_t line) { return stored_.FindSubset(line); }
    void SetSubset(std::size_t line, const std::string& subset);
    void FillSubset(std::size_t line);
    /// Lets the user choose the article of a line, and shows it.
    void FindWarenId(std::size_t line);
    void FillWarenId(std::size_t line, std::int32_t article);
    /// Takes designation, price and subset of a line from its article.
    void FillFields(std::size_t line);
    /// Clears the tick and the button of the subset in all lines.
    void SetNullValues();
    /// Fills one list of statistics.
    void FillStatCombo(ui::ComboBox& list);

private:
    /// How far a save came that failed.
    struct PartlySaved {
        std::size_t lines = 0;
        std::size_t of = 0;
    };

    void connect();
    void loadLists();
    void LoadLines();
    /// Shows of the lines what is not theirs alone: subsets, the model, doubts.
    void showLines();
    std::optional<LineFault> fault() const;
    /// @return false when the lines cannot be saved, which the user has been told
    bool linesAreRight();
    /// @return false when nothing is to be written
    bool settle();
    /// @return what is said then
    std::string putBack(std::size_t line, const host::CalculationLine& values);

    void save();
    void writeLines(PartlySaved& saved);
    /// Tries the texts that go into statements as they stand, before anything is deleted.
    /// @throws ui::RefusedInput naming the control whose text no statement can carry
    void requireTexts();

    void selectSubset(std::size_t line);
    void tickSubset(std::size_t line);
    void chooseModel();
    void manageModels();
    /// Selects the model of that name; one that is no longer kept is shown all the same.
    void showModel();
    std::string category(host::HostMainWindow* mainWindow) const;

    host::CalculationLines lines() const override;
    void setLines(const host::CalculationLines& lines) override;

    void cancel();
    bool queryUnload() override;

    host::HostServices& services_;
    host::TlxVar session_;
    std::int16_t mode_ = 0;
    StoredCalculation stored_{services_, session_};
    std::string model_;       ///< shown, and written by the next save
    std::string storedModel_; ///< of the calculation as it is stored
    bool changed_ = false;    ///< by the user, since the lines were read
    bool typed_ = false;      ///< by the user, since the lines were read or taken from a model
    bool done_ = false;       ///< saved or cancelled: the window closes without a question
    std::optional<PartlySaved> partlySaved_;
    std::string takenOver_;

    ui::Label lblModell_{*this, "lblModell", "Modell"};
    ui::ComboBox CmbModel{*this, "CmbModel", 40};
    ui::Button btnModels{*this, "btnModels", "Modelle"};
    LineTable table_;
    SharedLines shared_;
    parts::UndoOffers undo_{status(), session_};
    ui::Button btnOk{*this, "btnOk", "Ok"};
    ui::Button btnAbbrechen{*this, "btnAbbrechen", "Abbrechen"};
};

} // namespace tellurix::deductions
