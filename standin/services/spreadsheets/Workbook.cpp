#include "standin/services/spreadsheets/Workbook.h"

#include "module/base/text.h"
#include "standin/services/spreadsheets/cell_values.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <utility>

namespace tellurix::standin {

namespace {

constexpr std::size_t longestSheetName = 31;
constexpr std::size_t longestHeader = 255;
constexpr std::size_t narrowestColumn = 6;
constexpr std::size_t widestColumn = 60;
/// From here on a page is better laid across.
constexpr double widthOfUprightPage = 95;

void check(lxw_error result) {
    if (result != LXW_NO_ERROR) {
        throw std::runtime_error{std::string{"Das Tabellenblatt kann nicht geschrieben werden: "} +
                                 lxw_strerror(result)};
    }
}

/// Characters of a text; what is no UTF-8 would make the file unreadable.
std::string wellFormed(const std::string& text) {
    return base::encodeUtf8(base::decodeUtf8(text));
}

std::string firstCharacters(const std::string& text, std::size_t count) {
    return base::encodeUtf8(base::decodeUtf8(text).substr(0, count));
}

/// The library's memory for one file.
class OpenWorkbook {
public:
    explicit OpenWorkbook(const std::filesystem::path& file)
        : workbook_(workbook_new(file.string().c_str())) {
        if (workbook_ == nullptr) check(LXW_ERROR_MEMORY_MALLOC_FAILED);
    }
    ~OpenWorkbook() {
        // One that was given up: closing is the only way to free it.
        if (workbook_ != nullptr) workbook_close(workbook_);
    }
    OpenWorkbook(const OpenWorkbook&) = delete;
    OpenWorkbook& operator=(const OpenWorkbook&) = delete;

    lxw_workbook* get() { return workbook_; }
    void close() { check(workbook_close(std::exchange(workbook_, nullptr))); }

private:
    lxw_workbook* workbook_;
};

/// Writes one table into one sheet.
class Sheet {
public:
    Sheet(lxw_workbook* workbook, const TableText& table, const std::string& title,
          const base::Locale& locale)
        : workbook_(workbook),
          sheet_(workbook_add_worksheet(workbook, sheetName(title).c_str())),
          table_(table),
          locale_(locale),
          top_(static_cast<lxw_row_t>(table.row - 1)) {
        if (sheet_ == nullptr) check(LXW_ERROR_SHEETNAME_LENGTH_EXCEEDED);
    }

    void write() {
        for (std::size_t row = 0; row < table_.rows.size(); ++row)
            writeRow(row);
    }

    void arrange(const std::string& title) {
        worksheet_freeze_panes(sheet_, top_ + 1, 0);
        worksheet_repeat_rows(sheet_, top_, top_);
        double total = 0;
        for (std::size_t column = 0; column < widths_.size(); ++column) {
            const auto width =
                static_cast<double>(std::clamp(widths_[column] + 2, narrowestColumn, widestColumn));
            total += width;
            const auto at = static_cast<lxw_col_t>(column);
            check(worksheet_set_column(sheet_, at, at, width, nullptr));
        }
        constexpr std::uint8_t a4 = 9;
        worksheet_set_paper(sheet_, a4);
        if (total > widthOfUprightPage) worksheet_set_landscape(sheet_);
        worksheet_fit_to_pages(sheet_, 1, 0);
        // "&" begins a command of the header; half of one must not stay at the end.
        std::string header = "&L&B" + base::replaceAll(title, "&", "&&");
        header = firstCharacters(header, longestHeader - 1);
        if (header.ends_with('&') && !header.ends_with("&&")) header.pop_back();
        check(worksheet_set_header(sheet_, header.c_str()));
        check(worksheet_set_footer(sheet_, "&R&P / &N"));
    }

private:
    enum class Look { plain, heading, sum };

    void writeRow(std::size_t row) {
        const std::vector<std::string>& cells = table_.rows[row];
        const bool isSum = row > 0 && std::ranges::find(cells, "SUMME:") != cells.end();
        const Look look = row == 0 ? Look::heading : isSum ? Look::sum : Look::plain;
        widths_.resize(std::max(widths_.size(), cells.size()));
        for (std::size_t column = 0; column < cells.size(); ++column) {
            const std::string text = wellFormed(cells[column]);
            widths_[column] = std::max(widths_[column], base::decodeUtf8(text).size());
            check(writeCell(top_ + static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(column), text, look));
        }
    }

    lxw_error writeCell(lxw_row_t row, lxw_col_t column, const std::string& text, Look look) {
        const bool numeric = table_.isNumeric(column);
        if (look != Look::heading) {
            if (const auto number = numeric ? numberIn(text, locale_) : std::nullopt)
                return worksheet_write_number(sheet_, row, column, number->value,
                                              format(look, number->mask, true));
            if (const auto date = numeric ? std::nullopt : dateIn(text)) {
                lxw_datetime moment{static_cast<int>(date->day.year()),
                                    static_cast<int>(unsigned{date->day.month()}),
                                    static_cast<int>(unsigned{date->day.day()}),
                                    date->hour,
                                    date->minute,
                                    static_cast<double>(date->second)};
                return worksheet_write_datetime(sheet_, row, column, &moment, format(look, date->mask));
            }
        }
        if (text.empty()) return worksheet_write_blank(sheet_, row, column, format(look, "", numeric));
        return worksheet_write_string(sheet_, row, column, text.c_str(), format(look, "", numeric));
    }

    /// One for each look, since a file keeps them apart by what they are.
    lxw_format* format(Look look, const std::string& mask, bool right = false) {
        lxw_format*& made = formats_[{look, mask, right}];
        if (made != nullptr) return made;
        made = workbook_add_format(workbook_);
        if (!mask.empty()) format_set_num_format(made, mask.c_str());
        // Dates count as numbers, but stand among the texts.
        format_set_align(made, right ? LXW_ALIGN_RIGHT : LXW_ALIGN_LEFT);
        if (look != Look::plain) format_set_bold(made);
        if (look == Look::heading) format_set_bottom(made, LXW_BORDER_THIN);
        if (look == Look::sum) format_set_top(made, LXW_BORDER_THIN);
        return made;
    }

    lxw_workbook* workbook_;
    lxw_worksheet* sheet_;
    const TableText& table_;
    const base::Locale& locale_;
    const lxw_row_t top_;
    std::vector<std::size_t> widths_;
    std::map<std::tuple<Look, std::string, bool>, lxw_format*> formats_;
};

} // namespace

std::string sheetName(const std::string& title) {
    std::u32string name;
    for (const char32_t character : base::decodeUtf8(title)) {
        const bool allowed = character >= U' ' &&
                             std::u32string_view{U"[]:*?/\\"}.find(character) == std::u32string_view::npos;
        const char32_t shown = allowed ? character : U' ';
        // A title is spaced out; a name has no room for that.
        if (shown == U' ' && (name.empty() || name.back() == U' ')) continue;
        name += shown;
    }
    // A character beyond the first plane counts twice.
    std::size_t length = 0;
    std::size_t kept = 0;
    while (kept < name.size() && (length += name[kept] > 0xffff ? 2U : 1U) <= longestSheetName)
        ++kept;
    name.resize(kept);
    while (!name.empty() && (name.back() == U' ' || name.back() == U'\''))
        name.pop_back();
    while (!name.empty() && name.front() == U'\'')
        name.erase(0, 1);
    const std::string text = base::encodeUtf8(name);
    // A name of its own that spreadsheet programs keep for themselves.
    return text.empty() || base::toUpper(text) == "HISTORY" ? "Tabelle" : text;
}

void writeWorkbook(const std::filesystem::path& file, const TableText& table, const std::string& title,
                   const std::string& author, const base::Locale& locale) {
    OpenWorkbook workbook{file};
    std::string titleText = wellFormed(title);
    std::string authorText = wellFormed(author);
    lxw_doc_properties properties{};
    properties.title = titleText.data();
    properties.author = authorText.data();
    check(workbook_set_properties(workbook.get(), &properties));
    Sheet sheet{workbook.get(), table, titleText, locale};
    sheet.write();
    sheet.arrange(titleText);
    workbook.close();
}

} // namespace tellurix::standin
