#include "bench/statements/screen_statements.h"

#include "bench/support/ContractSession.h"
#include "bench/support/SampleFile.h"
#include "database/embedded/Database.h"
#include "database/embedded/values/date_text.h"
#include "database/tracing/TracingConnection.h"
#include "standin/home/contract_list.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <stdexcept>

namespace tellurix::bench {

namespace {

constexpr const char* editor = "F_Vertrag";
constexpr const char* header = "F_HeaderVertrag";
constexpr const char* list = "F_ListPicker";
constexpr const char* persons = "F_PersonPicker";

/// A contract in which every field of the header is filled or left empty somewhere.
constexpr std::int32_t existing = 1;

std::vector<Step> editing() {
    return {
        pick(header, "txtRechn"),
        chooseRow(list, "grdList", 1),
        click(list, "btnOk"),
        pick(header, "txtBuchn"),
        chooseRow(list, "grdList", 1),
        click(list, "btnOk"),
        pick(header, "txtWahrung"),
        click(list, "btnOk"),
        pick(header, "txtMandant(0)"),
        chooseRow(persons, "grdPersons", 1),
        click(persons, "btnOk"),
        pick(header, "txtLieferadresse(0)"),
        chooseRow(persons, "grdPersons", 1),
        click(persons, "btnOk"),
        focus(header, "txtKopf(5)"),
        edit(header, "txtKopf(5)", "Übernahme nur mit Lieferschein"),
        click(header, "btnOk"),
    };
}

std::vector<Step> workOnExisting() {
    std::vector<Step> script{
        click(editor, "KundeButton"),
        chooseRow(persons, "grdPersons", 2),
        click(persons, "btnOk"),
        click(editor, "btnZusatz"),
        edit(editor, "txtZusatz", "Abfuhr nur bei Frost."),
        focus(editor, "txtZusatzText(0)"),
        edit(editor, "txtZusatzText(0)", "Waage Nord"),
        focus(editor, "txtZusatzText(1)"),
        edit(editor, "txtZusatzText(1)", "Tor 3"),
        focus(editor, "txtZusatz"),
        edit(editor, "txtZusatz", ""),
        click(editor, "btnDeleteMan"),
        click(editor, "btnHeader"),
    };
    std::ranges::move(editing(), std::back_inserter(script));
    script.push_back(click(editor, "btnHeader"));
    script.push_back(click(header, "btnCancel"));
    script.push_back(click(editor, "btnSpeichern"));
    return script;
}

bool isWordCharacter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// A literal as it stands in the text, without its quotes; nothing for NULL.
using Literal = std::optional<std::string>;

std::vector<Literal> literalTextsOf(std::string_view statement) {
    std::vector<Literal> literals;
    std::size_t at = 0;
    const auto take = [&](const auto& belongs) {
        const std::size_t from = at;
        while (at < statement.size() && belongs(statement[at]))
            ++at;
        return std::string{statement.substr(from, at - from)};
    };
    while (at < statement.size()) {
        const char c = statement[at];
        if (c == '\'') {
            ++at;
            literals.emplace_back(take([](char each) { return each != '\''; }));
            ++at;
        } else if (std::isdigit(static_cast<unsigned char>(c)) != 0) {
            literals.emplace_back(take([](char each) { return isWordCharacter(each) || each == '.'; }));
        } else if (isWordCharacter(c)) {
            if (take(isWordCharacter) == "NULL") literals.emplace_back();
        } else {
            ++at;
        }
    }
    return literals;
}

base::Value valueOf(const Literal& literal, char kind) {
    if (!literal) return {};
    switch (kind) {
    case 't':
        return *literal;
    case 'd': {
        const auto date = embedded::readDate(*literal, embedded::DateOrder::dayMonthYear);
        if (!date) throw std::runtime_error{"no date: " + *literal};
        return *date;
    }
    case 'i':
    case 'b':
        return std::int64_t{std::stoll(*literal)};
    default: {
        const auto number = base::Decimal::parse(*literal);
        if (!number) throw std::runtime_error{"no number: " + *literal};
        return number->rounded(kind - '0');
    }
    }
}

} // namespace

std::vector<std::string> screenStatements(const std::filesystem::path& file) {
    const embedded::Database database{file, standingClock};
    const auto connection = database.connect();
    std::vector<std::string> texts;
    tracing::TracingConnection traced{*connection, [&texts](const tracing::Statement& statement) {
                                          if (std::ranges::count(texts, statement.text) == 0)
                                              texts.push_back(statement.text);
                                      }};
    ScriptedPage page;
    ContractSession session{traced, page};
    page.play(workOnExisting());
    session.open(existing, "R");
    const std::int32_t created = standin::createContract(*connection, "Messung", "R");
    page.play({closeWindow(editor), answer(ui::Answer::yes)});
    session.open(created, "R", true);
    return texts;
}

std::vector<base::Value> literalsOf(std::string_view statement, Kinds kinds) {
    const std::vector<Literal> literals = literalTextsOf(statement);
    if (literals.size() != kinds.size())
        throw std::runtime_error{"not every literal has its kind: " + std::string{statement}};
    std::vector<base::Value> values;
    for (std::size_t i = 0; i < literals.size(); ++i) {
        if (kinds[i] != '-') values.push_back(valueOf(literals[i], kinds[i]));
    }
    return values;
}

} // namespace tellurix::bench
