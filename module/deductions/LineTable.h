#pragma once

#include "module/base/Locale.h"
#include "module/deductions/line_check.h"
#include "module/host/CalculationForm.h"
#include "module/ui/Layout.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/TextBox.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>

namespace tellurix::deductions {

/// The sixteen lines on the screen: their controls, and what has no control of its own, the article and
/// the subset of each. What the host's services are needed for is the screen's.
///
/// A line with an article has a number that stands out. The lines below the last one in use are quiet
/// until the user goes there. Reference lines that are doubtful have a warning.
class LineTable {
public:
    static constexpr std::size_t size = host::calculationLineCount;

    LineTable(ui::Form& form, const base::Locale& locale);

    ui::Layout layout();

    /// Empties all lines for another visit.
    /// @param language of the session, for warnings
    void start(std::string language);
    void show(std::size_t line, const host::CalculationLine& values);
    host::CalculationLine read(std::size_t line) const;
    CheckedLine checked(std::size_t line) const;
    /// What a column is called, from 0 for the statistic to 4 for the subset.
    const std::string& heading(std::size_t column) const;
    /// A value in the form in which it is shown and stored; a text that is no number stays as it is.
    std::string amountText(const std::string& text) const;

    std::int32_t article(std::size_t line) const { return articles_[line]; }
    /// 0 for none.
    void setArticle(std::size_t line, std::int32_t article);
    /// Takes a designation as far as the box does.
    void setDesignation(std::size_t line, const std::string& text);
    const std::string& subset(std::size_t line) const { return subsets_[line]; }
    void setSubset(std::size_t line, std::string subset) { subsets_[line] = std::move(subset); }

    /// Shows which lines are in use and which references are doubtful; takes the marks of `mark` away.
    void refresh();
    /// Marks what a line lacks and goes there.
    void mark(const LineFault& fault);

    /// What is shown may be other than before.
    std::function<void()> onRefresh;
    /// The user changed something.
    std::function<void()> onChange;
    /// The user is about to take the statistic out of a line by Del.
    std::function<void(std::size_t line)> beforeRemoval;

private:
    ui::Label lblStatistik_;
    ui::Label lblBezeichnung_;
    ui::Label lblWert_;
    ui::Label lblBezugszeilen_;
    ui::Label lblSubset_;

public:
    std::array<ui::Label, size> Label1;
    std::array<ui::ComboBox, size> CmbStat;
    std::array<ui::TextBox, size> TextBez;
    std::array<ui::TextBox, size> TextWert;
    std::array<ui::TextBox, size> txtWert;
    std::array<ui::CheckBox, size> Check1;
    std::array<ui::Button, size> Command2;
    std::array<ui::Button, size> Command1;

private:
    void connect(std::size_t line);
    void changed();
    void statisticChosen(std::size_t line);
    void statisticKey(std::size_t line, ui::KeyDown& key);
    void leaveValue(std::size_t line);
    void leaveReferences(std::size_t line);
    void reach(std::size_t line);
    void showQuietLines();
    bool inUse(std::size_t line) const;
    std::array<ui::Control*, 8> controlsOf(std::size_t line);

    base::Locale locale_;
    std::string language_;
    std::array<std::int32_t, size> articles_{};
    std::array<std::string, size> subsets_{};
    std::size_t reached_ = 0; ///< the lowest line that the user has been in
};

} // namespace tellurix::deductions
