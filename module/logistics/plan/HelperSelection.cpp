#include "module/logistics/plan/HelperSelection.h"

#include "module/base/Refused.h"
#include "module/logistics/plan/helper_statements.h"
#include "module/parts/ShownProgress.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <vector>

namespace tellurix::logistics {

namespace {

constexpr const char* helperList = "VERTRAG_KUNDE_WVO";
constexpr const char* personTable = "PERSONAL";

using PersonSet = std::set<std::int64_t>;

PersonSet without(const PersonSet& all, const PersonSet& some) {
    PersonSet rest;
    std::ranges::set_difference(all, some, std::inserter(rest, rest.end()));
    return rest;
}

} // namespace

HelperSelection::Persons HelperSelection::read(const LogisticsContract& contract) {
    Persons persons;
    for (auto row = contract.connection().open(helpers::present(contract.record)); !row->atEnd();
         row->moveNext())
        persons.insert(row->integer("ID_PERSONAL"));
    return persons;
}

std::optional<HelperSelection::Change> HelperSelection::run(const LogisticsContract& contract) {
    const Persons before = read(contract);
    host::HostServices& services = *contract.services;
    const std::string restriction = services.personQuery.restriction(contract.session, personTable);
    const auto chosen = services.multiSelection.choose(
        contract.session, helperList, helpers::eligible(contract.session.language, restriction),
        {before.begin(), before.end()});
    if (!chosen) return std::nullopt;
    const Persons marked{chosen->begin(), chosen->end()};
    // The list may have been open for long: whom a colleague has added meanwhile is not added once more.
    const Persons added = without(without(marked, before), read(contract));
    const Persons removed = without(before, marked);
    write(contract, added, removed);
    return Change{added.size(), removed.size()};
}

void HelperSelection::write(const LogisticsContract& contract, const Persons& added, const Persons& removed) {
    host::HostServices& services = *contract.services;
    if (added.empty() && removed.empty()) return;
    parts::ShownProgress progress{services.display, bar_, static_cast<int>(added.size() + removed.size())};
    std::size_t removals = 0;
    std::size_t additions = 0;
    const auto send = [&](const std::string& statement, std::size_t& done) {
        contract.connection().execute(statement);
        ++done;
        progress.step();
    };
    try {
        for (const std::int64_t person : removed)
            send(helpers::removePerson(contract.record, person), removals);
        for (const std::int64_t person : added)
            send(helpers::add(contract.record, person), additions);
    } catch (const std::exception& error) {
        services.errors.report(error);
        throw base::Refused{{{base::OwnText::someHelpersChanged,
                              {std::to_string(additions), std::to_string(added.size()),
                               std::to_string(removals), std::to_string(removed.size())}}}};
    }
}

} // namespace tellurix::logistics
