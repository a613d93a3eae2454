#include "standin/library/TypingHandler.h"

namespace tellurix::windows {

TypingHandler::TypingHandler(const HostsRecord& record, const std::string& query,
                             const std::string& displayColumn)
    : session_(record.copied()) {
    service_.bind(session_.values(), mirror_.box, query, displayColumn);
}

std::int32_t TypingHandler::keyPress(Dispatch box, std::int32_t character) {
    auto typed = static_cast<char32_t>(character);
    mirror_.read(box);
    mirror_.box.onKeyPress(typed);
    mirror_.write(box);
    return static_cast<std::int32_t>(typed);
}

void TypingHandler::change(Dispatch box) {
    mirror_.read(box);
    mirror_.box.onChange();
    mirror_.write(box);
}

const DispatchTable& TypingHandler::table() const {
    using Given = const CallArguments&;
    static const DispatchTable members =
        DispatchTable()
            .method<TypingHandler>(L"KeyPress",
                                   [](TypingHandler& handler, Given given) {
                                       return Variant(
                                           handler.keyPress(Dispatch(given[0]), given[1].integer()));
                                   })
            .method<TypingHandler>(
                L"Change", [](TypingHandler& handler, Given given) { handler.change(Dispatch(given[0])); });
    return members;
}

} // namespace tellurix::windows
