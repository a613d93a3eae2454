#pragma once

#include "module/base/Decimal.h"
#include "module/base/Locale.h"
#include "module/parts/OpenContract.h"
#include "module/ui/Layout.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/TextBox.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::lines {

/// What a price is changed by: an amount that is added, or a percentage.
enum class ChangeKind { amount, percent };

/// The price after a change, rounded to the cent as the database rounds it.
/// @throws std::out_of_range when it has more than 18 digits
base::Decimal changedPrice(const base::Decimal& price, const base::Decimal& by, ChangeKind kind);

/// Changes the price of every line of a contract in one step. The button first shows the frame, in
/// which every line's old and new price can be seen while the amount is typed, and then asks and
/// changes.
class PriceChange {
public:
    /// @param changed called after the prices in the database have changed, with how many
    PriceChange(ui::Form& form, const base::Locale& locale, std::function<void(int)> changed);

    ui::Layout layout();
    ui::Button& button() { return btnPreiseAendern; }
    void setEnabled(bool enabled);
    /// The preview shows the lines as they are now.
    void linesChanged();
    /// Hides the frame, without a change. @return false when it is hidden already
    bool close();
    /// Begins with the prices of another contract: the frame is hidden, the amount forgotten.
    void open(parts::OpenContract contract);

private:
    struct Line {
        std::string description;
        std::optional<base::Decimal> price;
    };

    void press();
    void show();
    void readLines();
    void change();
    void hide();
    void preview();
    ChangeKind kind() const;
    std::string statement();

    base::Locale locale_;
    parts::OpenContract contract_;
    std::function<void(int)> changed_;
    std::vector<Line> lines_;

    ui::Button btnPreiseAendern;
    ui::Frame frmPreiseAendern;
    ui::Label lblErklarung;
    ui::Label lblWert;
    ui::TextBox txtWert;
    ui::Label lblFixProzent;
    ui::ComboBox cmbFixProzent;
    ui::Grid grdVorschau;
};

} // namespace tellurix::lines
