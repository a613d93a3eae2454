#pragma once

#include "module/lines/DeliveredQuantity.h"
#include "module/lines/F_OffeneMenge.h"
#include "module/lines/LineEditor.h"
#include "module/parts/fields/NumberField.h"

#include <string>

namespace tellurix::lines {

/// The quantity lines of a contract. Besides what all line screens do: the quantity that is still
/// open, how it comes about, and a warning when more was delivered than agreed.
class F_VertragMengen final : public LineEditor {
public:
    explicit F_VertragMengen(host::HostServices& services);

private:
    void prepare(bool shown) override;
    std::vector<parts::KeyedGrid::Column> gridColumns() const override;
    void lineShown(base::Recordset& line) override;
    void showNoLine() override;
    void emptyForNewLine() override;
    void requireFields() override;
    void writeFields(base::UpdatableRecordset& line) override;
    void currentLineShown() override;
    void stateShown() override;

    void markCurrentRow();
    void showNoOpenQuantity();
    void showOpenQuantity();
    void explainOpenQuantity();
    DeliveredQuantity delivered() const;

    base::Decimal overDelivery_; ///< per cent that may be delivered above the quantity
    base::Decimal agreed_;       ///< quantity of the current line

    ui::Label lblMenge{*this, "lblMenge", "Menge"};
    ui::TextBox txtMenge{*this, "txtMenge", 14};
    ui::Label lblOffen{*this, "lblOffen", "Offen"};
    ui::TextBox txtOffen{*this, "txtOffen", 14};
    ui::Button btnOffen{*this, "btnOffen", "Nachweis"};

    parts::NumberField quantity_;
    F_OffeneMenge offeneMenge_;
};

} // namespace tellurix::lines
