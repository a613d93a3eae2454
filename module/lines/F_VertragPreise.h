#pragma once

#include "module/lines/LineEditor.h"
#include "module/lines/PriceChange.h"
#include "module/parts/fields/NumberField.h"
#include "module/ui/input/GridEditor.h"

#include <memory>
#include <string>

namespace tellurix::lines {

/// The price lines of a contract. Besides what all line screens do: prices with a currency, a
/// measure-number percentage and a second price where the site has them, editing of prices in the
/// grid, and the change of all prices at once.
class F_VertragPreise final : public LineEditor {
public:
    explicit F_VertragPreise(host::HostServices& services);

private:
    /// What the second price is at the site; at a standard one there is none.
    enum class Site { standard, logistics, stockPrice };

    void prepare(bool shown) override;
    std::vector<parts::KeyedGrid::Column> gridColumns() const override;
    void showNoLine() override;
    void emptyForNewLine() override;
    bool confirmSave() override;
    void requireFields() override;
    void writeFields(base::UpdatableRecordset& line) override;
    /// Also a price that is being typed into its cell.
    bool changed() const override;
    /// Hides the change of all prices first.
    bool escape() override;
    void stateShown() override;
    /// Prices can be edited in the table while the tick says so and no line is.
    void openCells();
    void linesChanged() override;

    bool hasSecondPriceColumn() const { return !showsPercent_ && site_ != Site::standard; }
    void connectFields();
    std::string CommitCellEdit(int row, int column, const std::string& typed);
    /// Asks where somebody else has changed the cell's value since it was read.
    /// @return false when that one is taken
    bool mayWriteCell(int row, int column, const std::string& typed);
    std::unique_ptr<base::Recordset> openForCell(int row, const std::string& typed);

    bool showsPercent_ = false; ///< the host setting "MESZAHL" is 1
    Site site_ = Site::standard;

    ui::Label lblMsz{*this, "lblMsz", "Msz"};
    ui::TextBox txtMsz{*this, "txtMsz", 10};
    ui::Label lblPreis{*this, "lblPreis", "Preis"};
    ui::TextBox txtPreis{*this, "txtPreis", 14};
    ui::Label lblGeld{*this, "lblGeld", "Währung"};
    ui::ComboBox cboGeld{*this, "cboGeld", 8};
    ui::Label lblPreis_Abr2{*this, "lblPreis_Abr2", "Preis_Abr2"};
    ui::TextBox txtPreis_Abr2{*this, "txtPreis_Abr2", 14};
    ui::CheckBox chkEdit{*this, "chkEdit", "Edit"};
    ui::TextBox txtEdit{*this, "txtEdit", 14};

    parts::NumberField percent_;
    parts::NumberField price_;
    parts::NumberField secondPrice_;
    ui::GridEditor cellEditor_;
    PriceChange priceChange_;
};

} // namespace tellurix::lines
