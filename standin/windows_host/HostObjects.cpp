#include "standin/windows_host/HostObjects.h"

namespace tellurix::windows {

const DispatchTable& MainWindowObject::table() const {
    static const DispatchTable table =
        DispatchTable()
            .method<MainWindowObject>(L"IsArtikel",
                                      [](MainWindowObject& object, const CallArguments&) {
                                          return Variant{object.window_->IsArtikel()};
                                      })
            // The start page, as it is in front of the user whenever it opens a contract.
            .method<MainWindowObject>(L"hWnd", [](MainWindowObject&, const CallArguments&) {
                return Variant{static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(GetActiveWindow()))};
            });
    return table;
}

const DispatchTable& NotificationListener::table() const {
    static const DispatchTable table = DispatchTable().method<NotificationListener>(
        L"Notify", [](NotificationListener& listener, const CallArguments& arguments) {
            listener.receiver_(arguments[0].text(), arguments[1].text());
        });
    return table;
}

} // namespace tellurix::windows
