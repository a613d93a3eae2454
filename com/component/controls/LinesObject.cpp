#include "com/component/controls/LinesObject.h"

namespace tellurix::windows {

namespace {

using Given = const CallArguments&;

std::size_t numberOf(Given given) {
    const std::int32_t line = given[0].integer();
    if (line < 0 || static_cast<std::size_t>(line) >= host::calculationLineCount)
        throw AutomationError(DISP_E_BADINDEX, "There is no line " + std::to_string(line));
    return static_cast<std::size_t>(line);
}

template <auto field>
Variant read(LinesObject& lines, Given given) {
    return Variant(lines.target().lines()[numberOf(given)].*field);
}

void setLine(LinesObject& lines, Given given) {
    host::CalculationLines all = lines.target().lines();
    all[numberOf(given)] = {.statistic = given[1].integer(),
                            .designation = given[2].text(),
                            .value = given[3].text(),
                            .references = given[4].text(),
                            .subset = given[5].text(),
                            .article = given[6].integer()};
    lines.target().setLines(all);
}

} // namespace

const DispatchTable& LinesObject::table() const {
    using Line = host::CalculationLine;
    static const DispatchTable members =
        DispatchTable()
            .method<LinesObject>(L"Count",
                                 [](LinesObject&, Given) {
                                     return Variant(static_cast<std::int32_t>(host::calculationLineCount));
                                 })
            .method<LinesObject>(L"Statistic", read<&Line::statistic>)
            .method<LinesObject>(L"Designation", read<&Line::designation>)
            .method<LinesObject>(L"Value", read<&Line::value>)
            .method<LinesObject>(L"References", read<&Line::references>)
            .method<LinesObject>(L"Subset", read<&Line::subset>)
            .method<LinesObject>(L"Article", read<&Line::article>)
            .method<LinesObject>(L"SetLine", setLine);
    return members;
}

} // namespace tellurix::windows
