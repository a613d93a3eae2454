#include "com/component/controls/ListObject.h"

namespace tellurix::windows {

namespace {

const ui::ItemList::Item& itemOf(const ListObject& list, const CallArguments& arguments) {
    const std::int32_t item = arguments[0].integer();
    if (item < 0 || static_cast<std::size_t>(item) >= list.target().items().size())
        throw AutomationError(DISP_E_BADINDEX, "There is no item " + std::to_string(item));
    return list.target().items()[static_cast<std::size_t>(item)];
}

} // namespace

const DispatchTable& ListObject::table() const {
    using List = ListObject;
    using Given = const CallArguments&;
    static const DispatchTable members =
        DispatchTable()
            .method<List>(L"Name", [](List& list, Given) { return Variant(list.target().name()); })
            .method<List>(L"Count",
                          [](List& list, Given) {
                              return Variant(static_cast<std::int32_t>(list.target().items().size()));
                          })
            .method<List>(L"Text", [](List& list, Given given) { return Variant(itemOf(list, given).text); })
            .method<List>(L"ItemData",
                          [](List& list, Given given) {
                              return Variant(static_cast<std::int32_t>(itemOf(list, given).itemData));
                          })
            .property<List>(
                L"ListIndex",
                [](List& list, Given) { return Variant(std::int32_t{list.target().selected()}); },
                [](List& list, Given given) { list.target().select(given[0].integer()); })
            .method<List>(L"Clear", [](List& list, Given) { list.target().clear(); })
            .method<List>(L"AddItem", [](List& list, Given given) {
                list.target().add(given[0].text(), given[1].integer());
            });
    return members;
}

} // namespace tellurix::windows
