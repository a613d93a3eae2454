#pragma once

#include "common/NumberField.h"
#include "lines/DeliveredQuantity.h"
#include "lines/F_OffeneMenge.h"
#include "lines/LineEditor.h"

#include <string>

namespace tellurix::lines {

/// The quantity lines of a contract. Besides what all line screens do: the quantity that is still
/// open, how it comes about, and a warning when more was delivered than agreed.
class F_VertragMengen final : public LineEditor {
public:
    explicit F_VertragMengen(host::HostServices& services);

private:
    void prepare(bool shown) override;
    std::vector<ui::Grid::Column> gridColumns() const override;
    ui::Grid::Row FillGridRow(common::Recordset& record) const override;
    void showFields(common::Recordset& line) override;
    void showNoLine() override;
    void emptyForNewLine() override;
    void requireFields() override;
    void writeFields(common::UpdatableRecordset& line) override;
    void currentLineShown() override;
    void stateShown() override;

    void markCurrentRow();
    void showNoOpenQuantity();
    void showOpenQuantity();
    void explainOpenQuantity();
    DeliveredQuantity delivered() const;

    std::string reference_;        ///< the contract's name
    common::Decimal overDelivery_; ///< per cent that may be delivered above the quantity
    common::Decimal agreed_;       ///< quantity of the current line

    ui::Label lblMenge{*this, "lblMenge", "Menge"};
    ui::TextBox txtMenge{*this, "txtMenge", 14};
    ui::Label lblOffen{*this, "lblOffen", "Offen"};
    ui::TextBox txtOffen{*this, "txtOffen", 14};
    ui::Button btnOffen{*this, "btnOffen", "Nachweis"};

    common::NumberField quantity_;
    F_OffeneMenge offeneMenge_;
};

} // namespace tellurix::lines
